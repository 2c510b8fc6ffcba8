#include "Bytes.h"

#include <libdeflate.h>
#include <zlib.h>

namespace archiver {

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
