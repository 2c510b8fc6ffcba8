#include "HuffmanEncoder.h"

#include "PackedBlock.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace archiver {

namespace {

constexpr unsigned codeLimit =
    12; // two codes fit 26 bits; and 12 bits are what the fast way of unpacking looks at
constexpr std::size_t tablesBound = 600; // bytes, generously

unsigned usedBitsOfLastByte(std::size_t bits) { return bits % 8 == 0 ? 8 : static_cast<unsigned>(bits % 8); }

/// Tables with which the last block, of `dataBits`, leaves as much of its last byte unused as can be had: at
/// the end of the data some readers look further ahead than the last symbol is long, and take it for a cut
/// archive when there is nothing.
CodeTables lastTables(std::span<const std::uint8_t> literalLengths, std::size_t dataBits)
{
    constexpr std::size_t mostPlainZeros = 64;
    CodeTables best(literalLengths);
    for (std::size_t plainZeros = 1; plainZeros <= mostPlainZeros; ++plainZeros) {
        if (usedBitsOfLastByte(best.bits() + dataBits) == 1) break;
        CodeTables tables(literalLengths, plainZeros);
        if (usedBitsOfLastByte(tables.bits() + dataBits) < usedBitsOfLastByte(best.bits() + dataBits))
            best = std::move(tables);
    }
    return best;
}

} // namespace

HuffmanEncoder::HuffmanEncoder() : m_joined(std::make_unique<std::array<std::uint32_t, 65536>>()) {}

void HuffmanEncoder::fillJoined(const std::array<std::uint8_t, 256> &lengths,
                                const std::array<std::uint16_t, 256> &codes)
{
    for (std::size_t second = 0; second < 256; ++second) {
        if (lengths[second] == 0) continue;
        std::uint32_t *const row = m_joined->data() + (second << 8);
        for (std::size_t first = 0; first < 256; ++first) {
            const std::uint32_t both = std::uint32_t{codes[first]} << lengths[second] | codes[second];
            row[first] = both << 6 | (std::uint32_t{lengths[first]} + lengths[second]);
        }
    }
}

Bytes HuffmanEncoder::encode(Bytes input, bool last)
{
    m_own.keep(0);
    return encode(input, last, m_own);
}

Bytes HuffmanEncoder::encode(Bytes input, bool last, PackedBlocks &into)
{
    const std::array<std::uint32_t, 256> counts = histogram(input);
    const std::vector<std::uint8_t> lengthList = codeLengths(counts, codeLimit);
    const std::vector<std::uint16_t> codeList = canonicalCodes(lengthList);
    std::array<std::uint8_t, 256> lengths{};
    std::array<std::uint16_t, 256> codes{};
    std::ranges::copy(lengthList, lengths.begin());
    std::ranges::copy(codeList, codes.begin());
    fillJoined(lengths, codes);

    std::size_t dataBits = 0;
    for (std::size_t byte = 0; byte < counts.size(); ++byte)
        dataBits += std::size_t{counts[byte]} * lengths[byte];
    std::uint8_t *const payload =
        into.space(largestBlockStart + tablesBound + dataBits / 8 + 16) + largestBlockStart;
    const CodeTables tables = last ? lastTables(lengthList, dataBits) : CodeTables(lengthList);
    BitWriter bits = tables.write(BitWriter(payload));
    const auto &joined = *m_joined;
    const auto pair = [&](std::size_t index) {
        return joined[std::size_t{input[index + 1]} << 8 | input[index]];
    };
    std::size_t index = 0;
    for (; index + 4 <= input.size(); index += 4) {
        const std::uint32_t one = pair(index);
        const std::uint32_t two = pair(index + 2);
        bits.put(one >> 6, one & 63);
        bits.put(two >> 6, two & 63);
        bits.flush();
    }
    for (; index < input.size(); ++index)
        bits.putAndFlush(codes[input[index]], lengths[input[index]]);

    const auto [end, usedBits] = bits.finish();
    const std::uint8_t *start =
        putBlockHeader(payload, static_cast<std::size_t>(end - payload), usedBits, last);
    into.add(start, end);
    return {start, end};
}

std::size_t HuffmanEncoder::estimate(Bytes input)
{
    if (input.empty()) return 0;
    const std::array<std::uint32_t, 256> counts = histogram(input);
    const auto total = static_cast<double>(input.size());
    double bits = 0;
    std::size_t distinct = 0;
    for (const std::uint32_t count : counts) {
        if (count == 0) continue;
        bits += count * std::max(std::log2(total / count), 1.0 / 8);
        ++distinct;
    }
    return static_cast<std::size_t>(bits / 8 * 1.003) + 24 + distinct / 2;
}

} // namespace archiver
