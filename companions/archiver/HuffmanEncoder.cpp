#include "HuffmanEncoder.h"

#include "HuffmanCode.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace archiver {

namespace {

constexpr unsigned codeLimit =
    12; // two codes fit 26 bits; and 12 bits are what the fast way of unpacking looks at
constexpr std::size_t tablesBound = 600; // bytes, generously
constexpr std::size_t largestBlockHeader = 5;

std::array<std::uint32_t, 256> histogram(Bytes input)
{
    // Four counters for each byte: one would make every repeated byte wait for the one before.
    std::array<std::array<std::uint32_t, 256>, 4> counts{};
    std::size_t index = 0;
    for (; index + 4 <= input.size(); index += 4)
        for (std::size_t lane = 0; lane < 4; ++lane)
            ++counts[lane][input[index + lane]];
    for (; index < input.size(); ++index)
        ++counts[0][input[index]];
    for (std::size_t lane = 1; lane < 4; ++lane)
        for (std::size_t byte = 0; byte < 256; ++byte)
            counts[0][byte] += counts[lane][byte];
    return counts[0];
}

/// Collects bits, the most significant first. The caller sees to it that the output has 8 bytes to spare.
class BitWriter {
public:
    explicit BitWriter(std::uint8_t *output) : m_next(output) {}

    void put(std::uint32_t bits, unsigned count)
    {
        m_bits |= std::uint64_t{bits} << (64 - m_used - count);
        m_used += count;
    }
    void flush()
    {
        std::uint64_t bytes = m_bits;
        if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
        std::memcpy(m_next, &bytes, sizeof bytes);
        m_next += m_used / 8;
        m_bits <<= m_used & ~7u;
        m_used &= 7;
    }
    /// For single symbols, at most 57 bits together with those that wait.
    void putAndFlush(std::uint32_t bits, unsigned count)
    {
        put(bits, count);
        flush();
    }
    /// The byte behind the last bit, and how many bits of the last byte are in use.
    std::pair<std::uint8_t *, unsigned> finish()
    {
        flush();
        return m_used == 0 ? std::pair(m_next, 8u) : std::pair(m_next + 1, m_used);
    }

private:
    std::uint8_t *m_next;
    std::uint64_t m_bits = 0;
    unsigned m_used = 0; // at most 7 after a flush
};

struct LengthSymbol {
    std::uint8_t symbol;
    std::uint8_t extraBits;
    std::uint8_t extra;
};

/// A run of one length: of zeros by symbols 18 and 19, of others by the length itself, then 16 and 17.
void putRun(std::vector<LengthSymbol> &symbols, std::uint8_t length, std::size_t run)
{
    if (length > 0) {
        symbols.push_back({length, 0, 0});
        --run;
    }
    const std::uint8_t shortRun = length > 0 ? 16 : 18;
    const std::uint8_t longRun = length > 0 ? 17 : 19;
    while (run >= 11) {
        const std::size_t part = std::min<std::size_t>(run, 138);
        symbols.push_back({longRun, 7, static_cast<std::uint8_t>(part - 11)});
        run -= part;
    }
    if (run >= 3) {
        symbols.push_back({shortRun, 3, static_cast<std::uint8_t>(run - 3)});
        run = 0;
    }
    for (; run > 0; --run)
        symbols.push_back({length, 0, 0});
}

/// The lengths of all alphabets as symbols of the length alphabet, with the codes of those.
struct Tables {
    std::vector<LengthSymbol> symbols;
    std::vector<std::uint8_t> lengths;
    std::vector<std::uint16_t> codes;
    std::size_t bits = 0;
};

/// `plainZeros` of the many zeros at the end are written one by one, which changes nothing but the number of
/// bits.
Tables planTables(std::span<const std::uint8_t> literalLengths, std::size_t plainZeros)
{
    std::vector<std::uint8_t> all(literalLengths.begin(), literalLengths.end());
    all.resize(allSymbols - plainZeros, 0); // no command and no match is ever used
    Tables tables;
    for (std::size_t start = 0; start < all.size();) {
        std::size_t end = start + 1;
        while (end < all.size() && all[end] == all[start])
            ++end;
        putRun(tables.symbols, all[start], end - start);
        start = end;
    }
    tables.symbols.insert(tables.symbols.end(), plainZeros, {0, 0, 0});

    std::array<std::uint32_t, lengthSymbols> frequencies{};
    for (const LengthSymbol &symbol : tables.symbols)
        ++frequencies[symbol.symbol];
    constexpr unsigned limit = 7; // stays clear of 15, which needs an escape
    tables.lengths = codeLengths(frequencies, limit);
    tables.codes = canonicalCodes(tables.lengths);
    tables.bits = 4 * lengthSymbols;
    for (const LengthSymbol &symbol : tables.symbols)
        tables.bits += std::size_t{tables.lengths[symbol.symbol]} + symbol.extraBits;
    return tables;
}

unsigned usedBitsOfLastByte(std::size_t bits) { return bits % 8 == 0 ? 8 : static_cast<unsigned>(bits % 8); }

/// Tables with which the last block, of `dataBits`, leaves as much of its last byte unused as can be had: at
/// the end of the data some readers look further ahead than the last symbol is long, and take it for a cut
/// archive when there is nothing.
Tables planLastTables(std::span<const std::uint8_t> literalLengths, std::size_t dataBits)
{
    constexpr std::size_t mostPlainZeros = 64;
    Tables best = planTables(literalLengths, 0);
    for (std::size_t plainZeros = 1; plainZeros <= mostPlainZeros; ++plainZeros) {
        if (usedBitsOfLastByte(best.bits + dataBits) == 1) break;
        Tables tables = planTables(literalLengths, plainZeros);
        if (usedBitsOfLastByte(tables.bits + dataBits) < usedBitsOfLastByte(best.bits + dataBits))
            best = std::move(tables);
    }
    return best;
}

void writeTables(BitWriter &bits, const Tables &tables)
{
    for (const std::uint8_t length : tables.lengths)
        bits.putAndFlush(length, 4);
    for (const LengthSymbol &symbol : tables.symbols) {
        bits.putAndFlush(tables.codes[symbol.symbol], tables.lengths[symbol.symbol]);
        if (symbol.extraBits > 0) bits.putAndFlush(symbol.extra, symbol.extraBits);
    }
}

/// Puts the block's header right before its payload; gives its first byte.
std::uint8_t *putBlockHeader(std::uint8_t *payload, std::size_t size, unsigned usedBits, bool last)
{
    const unsigned sizeBytes = size < 1u << 8 ? 1 : size < 1u << 16 ? 2 : 3;
    auto flags =
        static_cast<std::uint8_t>((usedBits - 1) | (sizeBytes - 1) << 3 | (last ? 0x40u : 0u) | 0x80u);
    std::uint8_t check = 0x5A ^ flags;
    std::uint8_t *start = payload - 2 - sizeBytes;
    for (unsigned index = 0; index < sizeBytes; ++index) {
        const auto byte = static_cast<std::uint8_t>(size >> 8 * index);
        start[2 + index] = byte;
        check ^= byte;
    }
    start[0] = flags;
    start[1] = check;
    return start;
}

} // namespace

HuffmanEncoder::HuffmanEncoder()
    : m_joined(std::make_unique<std::array<std::uint32_t, 65536>>())
    , m_output(largestBlockHeader + tablesBound + blockInput * codeLimit / 8 + 16)
{
}

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
    const std::array<std::uint32_t, 256> counts = histogram(input);
    const std::vector<std::uint8_t> lengthList = codeLengths(counts, codeLimit);
    const std::vector<std::uint16_t> codeList = canonicalCodes(lengthList);
    std::array<std::uint8_t, 256> lengths{};
    std::array<std::uint16_t, 256> codes{};
    std::ranges::copy(lengthList, lengths.begin());
    std::ranges::copy(codeList, codes.begin());
    fillJoined(lengths, codes);

    std::uint8_t *const payload = m_output.data() + largestBlockHeader;
    BitWriter bits(payload);
    std::size_t dataBits = 0;
    for (std::size_t byte = 0; byte < counts.size(); ++byte)
        dataBits += std::size_t{counts[byte]} * lengths[byte];
    writeTables(bits, last ? planLastTables(lengthList, dataBits) : planTables(lengthList, 0));
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
