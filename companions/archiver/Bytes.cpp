#include "Bytes.h"

#include <libdeflate.h>
#include <zlib.h>

namespace archiver {

Bytes ByteReader::take(std::uint64_t count)
{
    if (!m_ok || count > m_left.size()) {
        m_ok = false;
        m_left = {};
        return {};
    }
    const Bytes taken = m_left.first(static_cast<std::size_t>(count));
    m_left = m_left.subspan(taken.size());
    return taken;
}

std::uint64_t ByteReader::littleEndian(std::size_t width)
{
    std::uint64_t value = 0;
    unsigned shift = 0;
    for (const std::uint8_t byte : take(width)) {
        value |= std::uint64_t{byte} << shift;
        shift += 8;
    }
    return value;
}

std::uint8_t ByteReader::u8() { return static_cast<std::uint8_t>(littleEndian(1)); }
std::uint16_t ByteReader::u16() { return static_cast<std::uint16_t>(littleEndian(2)); }
std::uint32_t ByteReader::u32() { return static_cast<std::uint32_t>(littleEndian(4)); }
std::uint64_t ByteReader::u64() { return littleEndian(8); }

std::uint64_t ByteReader::vint()
{
    std::uint64_t value = 0;
    for (unsigned shift = 0; shift < 70; shift += 7) {
        const std::uint8_t byte = u8();
        if (!m_ok) return 0;
        if (shift == 63 && byte > 1) break;
        value |= std::uint64_t{byte & 0x7Fu} << shift;
        if (byte < 0x80) return value;
    }
    m_ok = false;
    m_left = {};
    return 0;
}

void putBytes(ByteBuffer &into, Bytes bytes) { into.insert(into.end(), bytes.begin(), bytes.end()); }
void putText(ByteBuffer &into, std::string_view text) { into.insert(into.end(), text.begin(), text.end()); }

void putNumber(ByteBuffer &into, std::uint64_t value, std::size_t width)
{
    for (; width > 0; --width, value >>= 8)
        into.push_back(static_cast<std::uint8_t>(value));
}

void putVint(ByteBuffer &into, std::uint64_t value, std::size_t width)
{
    std::size_t written = 1;
    for (; value >= 0x80 || written < width; ++written) {
        into.push_back(static_cast<std::uint8_t>(0x80 | (value & 0x7F)));
        value >>= 7;
    }
    into.push_back(static_cast<std::uint8_t>(value));
}

std::uint32_t crc32(Bytes bytes, std::uint32_t start)
{
    return libdeflate_crc32(start, bytes.data(), bytes.size());
}

std::uint32_t joinedCrc32(std::uint32_t first, std::uint32_t second, std::uint64_t secondSize)
{
    return static_cast<std::uint32_t>(crc32_combine(first, second, static_cast<z_off_t>(secondSize)));
}

} // namespace archiver
