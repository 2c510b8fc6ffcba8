#pragma once

#include "ByteStreams.h"

#include <cstddef>
#include <optional>

/// Reads a source by the byte or by the piece, as it suits the reader.
class ByteReader {
public:
    explicit ByteReader(ByteSource &source) : m_source(source) {}

    /// What comes next, at least one byte. Empty: the end, or a failure that the source reported.
    [[nodiscard]] Bytes available();
    /// Goes past bytes, no more of them than were available.
    void skip(std::size_t count);
    /// The next byte, which is then past; nothing at the end.
    [[nodiscard]] std::optional<std::uint8_t> get();
    /// How many bytes are past.
    [[nodiscard]] std::uint64_t position() const { return m_position; }

private:
    ByteSource &m_source;
    Bytes m_piece;
    std::uint64_t m_position = 0;
};
