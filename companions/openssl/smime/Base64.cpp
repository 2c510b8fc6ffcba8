#include "Base64.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace base64 {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t groupBytes = 3;
constexpr std::size_t groupSize = 4;

// Above every value of 24 bits, so that it survives being mixed with the other characters of a group.
constexpr std::uint32_t noBase64 = 0x0100'0000;

using Pair = std::array<std::uint8_t, 2>;
using Table = std::array<std::uint32_t, 256>;

/// The two characters of every value of twelve bits.
constexpr std::array<Pair, 4096> makePairs()
{
    std::array<Pair, 4096> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value)
        pairs[value] = {static_cast<std::uint8_t>(alphabet[value >> 6]),
                        static_cast<std::uint8_t>(alphabet[value & 63])};
    return pairs;
}

/// The bits of a character where it is the first, second, third or fourth of its group.
constexpr std::array<Table, 4> makeTables()
{
    std::array<Table, 4> tables{};
    for (unsigned place = 0; place < tables.size(); ++place) {
        tables[place].fill(noBase64);
        for (std::uint32_t value = 0; value < alphabet.size(); ++value)
            tables[place][static_cast<std::uint8_t>(alphabet[value])] = value << (18 - 6 * place);
    }
    return tables;
}

constexpr std::array<Pair, 4096> pairs = makePairs();
constexpr std::array<Table, 4> tables = makeTables();

void encodeGroup(const std::uint8_t *bytes, std::uint8_t *text)
{
    const unsigned bits = bytes[0] << 16 | bytes[1] << 8 | bytes[2];
    std::memcpy(text, pairs[bits >> 12].data(), 2);
    std::memcpy(text + 2, pairs[bits & 0xfff].data(), 2);
}

/// Of at most lineBytes.
std::uint8_t *encodeLine(base::Bytes bytes, std::uint8_t *text)
{
    for (; bytes.size() >= groupBytes; bytes = bytes.subspan(groupBytes), text += groupSize)
        encodeGroup(bytes.data(), text);
    if (!bytes.empty()) {
        std::array<std::uint8_t, groupBytes> last{};
        std::ranges::copy(bytes, last.begin());
        encodeGroup(last.data(), text);
        std::fill(text + 1 + bytes.size(), text + groupSize, std::uint8_t{'='});
        text += groupSize;
    }
    *text++ = '\n';
    return text;
}

} // namespace

std::size_t encode(base::Bytes bytes, std::uint8_t *text)
{
    std::uint8_t *to = text;
    for (; bytes.size() >= lineBytes; bytes = bytes.subspan(lineBytes))
        to = encodeLine(bytes.first<lineBytes>(), to);
    if (!bytes.empty()) to = encodeLine(bytes, to);
    return static_cast<std::size_t>(to - text);
}

Progress decode(base::Bytes text, std::span<std::uint8_t> into)
{
    const std::uint8_t *from = text.data();
    const std::uint8_t *const lastGroup = from + text.size() - std::min(text.size(), groupSize);
    std::uint8_t *to = into.data();
    const std::uint8_t *const lastRoom = to + into.size() - std::min(into.size(), groupBytes);
    if (text.size() < groupSize || into.size() < groupBytes) return {};
    while (from <= lastGroup && to <= lastRoom) {
        const std::uint32_t bits =
            tables[0][from[0]] | tables[1][from[1]] | tables[2][from[2]] | tables[3][from[3]];
        if (bits & noBase64) {
            if (*from != '\n') break;
            ++from;
            continue;
        }
        to[0] = static_cast<std::uint8_t>(bits >> 16);
        to[1] = static_cast<std::uint8_t>(bits >> 8);
        to[2] = static_cast<std::uint8_t>(bits);
        from += groupSize;
        to += groupBytes;
    }
    return {static_cast<std::size_t>(from - text.data()), static_cast<std::size_t>(to - into.data())};
}

std::uint8_t valueOf(std::uint8_t character)
{
    return static_cast<std::uint8_t>(std::min<std::uint32_t>(tables[3][character], 64));
}

} // namespace base64
