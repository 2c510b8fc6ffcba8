#pragma once

#include "FileDescriptor.h"

#include <string_view>

namespace archiver {

using base::Bytes;

/// Takes little-endian numbers off the front of bytes that may be anything. After a read beyond the end, or
/// of a number that is too long, ok() is false and every further read gives 0 or nothing.
class ByteReader {
public:
    explicit ByteReader(Bytes bytes) : m_left(bytes) {}

    [[nodiscard]] bool ok() const { return m_ok; }
    [[nodiscard]] std::size_t remaining() const { return m_left.size(); }

    Bytes take(std::uint64_t count)
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

    std::uint8_t u8() { return static_cast<std::uint8_t>(littleEndian(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(littleEndian(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(littleEndian(4)); }
    std::uint64_t u64() { return littleEndian(8); }
    /// Groups of 7 bits, the lowest first, the top bit set in all but the last; at most 10 bytes.
    std::uint64_t vint();

private:
    std::uint64_t littleEndian(std::size_t width)
    {
        std::uint64_t value = 0;
        unsigned shift = 0;
        for (const std::uint8_t byte : take(width)) {
            value |= std::uint64_t{byte} << shift;
            shift += 8;
        }
        return value;
    }

    Bytes m_left;
    bool m_ok = true;
};

using ByteBuffer = std::vector<std::uint8_t>;

void putBytes(ByteBuffer &into, Bytes bytes);
void putText(ByteBuffer &into, std::string_view text);
/// The lowest `width` bytes, the lowest one first.
void putNumber(ByteBuffer &into, std::uint64_t value, std::size_t width);
/// Padded to `width` bytes where the value needs fewer, so that it can be replaced later by another of that
/// width.
void putVint(ByteBuffer &into, std::uint64_t value, std::size_t width = 1);

[[nodiscard]] std::uint32_t crc32(Bytes bytes, std::uint32_t start = 0);
/// Of two pieces side by side, from the checksum of each.
[[nodiscard]] std::uint32_t joinedCrc32(std::uint32_t first, std::uint32_t second, std::uint64_t secondSize);

} // namespace archiver
