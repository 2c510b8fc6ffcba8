#include "ByteReader.h"

Bytes ByteReader::available()
{
    if (m_piece.empty()) m_piece = m_source.read();
    return m_piece;
}

void ByteReader::skip(std::size_t count)
{
    m_piece = m_piece.subspan(count);
    m_position += count;
}

std::optional<std::uint8_t> ByteReader::get()
{
    if (available().empty()) return std::nullopt;
    const std::uint8_t byte = m_piece.front();
    skip(1);
    return byte;
}
