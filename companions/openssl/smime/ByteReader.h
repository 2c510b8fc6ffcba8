#pragma once

#include "Streams.h"

#include <optional>
#include <string_view>

using base::Bytes;
using base::ByteSink;
using base::ByteSource;

/// What is wrong with the file that is read, told by whichever layer comes upon it first.
class Fault {
public:
    /// `predicate` says it of the file, as in "is damaged". What was reported before stays. Returns false,
    /// so that whoever reports can fail in the same breath.
    bool report(std::string_view predicate)
    {
        if (m_predicate.empty()) m_predicate = predicate;
        return false;
    }
    bool reportCutShort() { return report("ends too early: it was cut short"); }
    bool reportRubbish() { return report("goes on after the end of the message"); }

    [[nodiscard]] bool isSet() const { return !m_predicate.empty(); }
    [[nodiscard]] const std::string &predicate() const { return m_predicate; }

private:
    std::string m_predicate;
};

/// Reads a source by the byte or by the piece, as it suits the reader.
class ByteReader {
public:
    explicit ByteReader(ByteSource &source) : m_source(source) {}

    /// What comes next, at least one byte. Empty: the end, or a failure that the source reported.
    [[nodiscard]] Bytes available()
    {
        if (m_piece.empty()) m_piece = m_source.read();
        return m_piece;
    }
    /// Goes past bytes, no more of them than were available.
    void skip(std::size_t count)
    {
        m_piece = m_piece.subspan(count);
        m_position += count;
    }
    /// The next byte, which is then past; nothing at the end.
    [[nodiscard]] std::optional<std::uint8_t> get()
    {
        if (available().empty()) return std::nullopt;
        const std::uint8_t byte = m_piece.front();
        skip(1);
        return byte;
    }
    /// So many bytes more, which are then past; fewer only at the end.
    [[nodiscard]] std::vector<std::uint8_t> take(std::size_t count)
    {
        std::vector<std::uint8_t> taken;
        while (taken.size() < count && !available().empty()) {
            const Bytes part = m_piece.first(std::min(m_piece.size(), count - taken.size()));
            taken.insert(taken.end(), part.begin(), part.end());
            skip(part.size());
        }
        return taken;
    }
    /// How many bytes are past.
    [[nodiscard]] std::uint64_t position() const { return m_position; }

private:
    ByteSource &m_source;
    Bytes m_piece;
    std::uint64_t m_position = 0;
};
