#pragma once

#include "smime/ByteReader.h"

#include <algorithm>
#include <vector>

using Input = std::vector<std::uint8_t>;

/// Gives the input in pieces of odd sizes, so that everything is cut somewhere.
class Pieces final : public ByteSource {
public:
    explicit Pieces(Bytes bytes) : m_rest(bytes) {}
    Bytes read() override
    {
        m_size = m_size % 61 + 1;
        const Bytes piece = m_rest.first(std::min(m_size, m_rest.size()));
        m_rest = m_rest.subspan(piece.size());
        return piece;
    }

private:
    Bytes m_rest;
    std::size_t m_size = 0;
};

class Collected final : public ByteSink {
public:
    bool write(Bytes bytes) override
    {
        all.insert(all.end(), bytes.begin(), bytes.end());
        return true;
    }
    Input all;
};
