#include "LiteralBlock.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace archiver {

namespace {

// Each code has to be known before the next one can be looked for, and a processor mostly waits for that. So
// a block's bits are unpacked in several stretches at once. Where codes begin in the middle is not known; but
// whoever begins anywhere is in step with them soon, and from there on what he unpacked is right.
constexpr std::size_t laneCount = 3;
constexpr std::size_t mostOutOfStep = 1500; // codes
constexpr std::size_t lookups = 4; // of at most BlockCodes::width bits each, from the 57 bits of a peek
constexpr std::size_t spare = mostOutOfStep + 8;

struct Lane {
    BitReader bits; ///< up to where the next one begins
    std::uint8_t *out = nullptr;
    const std::uint8_t *end = nullptr; ///< of all room
};

struct Stretch {
    const std::uint8_t *begin;            ///< of what its lane unpacked
    std::vector<std::uint32_t> positions; ///< of its first codes, as its lane took them
};

std::size_t shortestLiteral(const CodeLengths &lengths)
{
    std::size_t shortest = longestCode;
    for (const std::uint8_t length : std::span(lengths).first(literalSymbols))
        if (length > 0) shortest = std::min<std::size_t>(shortest, length);
    return shortest;
}

/// False where no code begins like that.
bool takeOne(Lane &lane, const BlockCodes &codes)
{
    const CodedSymbol symbol = codes.symbol(lane.bits.peek());
    lane.bits.skip(symbol.length);
    *lane.out++ = static_cast<std::uint8_t>(symbol.value);
    return symbol.length > 0;
}

bool takeRest(Lane &lane, const BlockCodes &codes)
{
    for (;;) {
        lane.out = unpackLiterals(lane.bits, codes, lane.out, lane.end);
        if (lane.bits.atEnd()) return true;
        if (!takeOne(lane, codes)) return false;
    }
}

/// False for a code that is longer than a lookup.
bool lookUp(Lane &lane, std::uint64_t &next, const BlockCodes &codes)
{
    const BlockCodes::Start start = codes.start(next);
    std::memcpy(lane.out, start.bytes.data(), 2);
    lane.out += start.literals;
    next <<= start.bits;
    lane.bits.skip(start.bits);
    return start.literals > 0;
}

/// Until one of them is near its end. Written out for each lane, so that what they are at stays in registers.
template <std::size_t... index>
bool takeTogether(std::array<Lane, laneCount> &lanes, const BlockCodes &codes,
                  std::index_sequence<index...> /*lanes*/)
{
    std::array<Lane, laneCount> now = lanes;
    bool good = true;
    while (good && ((now[index].bits.left() >= lookups * BlockCodes::width) && ...)) {
        std::array<std::uint64_t, laneCount> next{now[index].bits.peek()...};
        bool quick = true;
        for (std::size_t lookup = 0; lookup < lookups; ++lookup)
            quick &= (lookUp(now[index], next[index], codes) & ...);
        if (!quick) good = (takeOne(now[index], codes) && ...);
    }
    lanes = now;
    return good;
}

/// The positions of codes, from wherever the lane begins, in the first half of its stretch at most.
std::optional<std::vector<std::uint32_t>> takeFirst(Lane &lane, const BlockCodes &codes)
{
    std::vector<std::uint32_t> positions(
        std::min(mostOutOfStep, lane.bits.left() / (2 * std::size_t{longestCode})));
    for (std::uint32_t &position : positions) {
        position = static_cast<std::uint32_t>(lane.bits.position());
        if (!takeOne(lane, codes)) return std::nullopt;
    }
    return positions;
}

/// Goes on until it is where the next lane was; how many codes that one had taken before. None where that
/// doesn't come.
std::optional<std::size_t> takeUntilInStep(Lane &lane, const std::vector<std::uint32_t> &positions,
                                           const BlockCodes &codes)
{
    auto other = positions.begin();
    for (std::size_t taken = 0; taken < mostOutOfStep; ++taken) {
        const std::size_t position = lane.bits.position();
        other = std::find_if(other, positions.end(), [position](std::size_t at) { return at >= position; });
        if (other == positions.end()) break;
        if (*other == position) return static_cast<std::size_t>(other - positions.begin());
        if (!takeOne(lane, codes)) break;
    }
    return std::nullopt;
}

/// None where it takes too long until the lanes are in step, or anything is damaged.
std::optional<std::size_t> unpackInLanes(const BitReader &bits, std::size_t shortest, const BlockCodes &codes,
                                         std::span<std::uint8_t> out)
{
    std::array<Lane, laneCount> lanes;
    std::array<Stretch, laneCount> stretches;
    const auto begin = [&bits](std::size_t index) { return bits.left() * index / laneCount; };
    for (std::size_t index = 0; index < laneCount; ++index) {
        std::uint8_t *const place = out.data() + begin(index) / shortest + index * spare;
        lanes[index] = {bits.between(bits.position() + begin(index), bits.position() + begin(index + 1)),
                        place, out.data() + out.size()};
        stretches[index].begin = place;
        if (index == 0) continue;
        auto positions = takeFirst(lanes[index], codes);
        if (!positions) return std::nullopt;
        stretches[index].positions = std::move(*positions);
    }
    if (!takeTogether(lanes, codes, std::make_index_sequence<laneCount>())) return std::nullopt;

    std::uint8_t *end = out.data();
    std::size_t outOfStep = 0;
    for (std::size_t index = 0; index < laneCount; ++index) {
        Lane &lane = lanes[index];
        if (!takeRest(lane, codes)) return std::nullopt;
        const std::uint8_t *const from = stretches[index].begin + outOfStep;
        if (index + 1 < laneCount) {
            const auto next = takeUntilInStep(lane, stretches[index + 1].positions, codes);
            if (!next) return std::nullopt;
            outOfStep = *next;
        } else if (lane.bits.overrun()) {
            return std::nullopt;
        }
        end = std::copy(from, static_cast<const std::uint8_t *>(lane.out), end);
    }
    return static_cast<std::size_t>(end - out.data());
}

} // namespace

std::size_t roomForLiterals(const BitReader &bits, const CodeLengths &lengths)
{
    return bits.left() / shortestLiteral(lengths) + laneCount * spare;
}

std::optional<std::size_t> unpackLiteralBlock(BitReader bits, const CodeLengths &lengths,
                                              const BlockCodes &codes, std::span<std::uint8_t> out,
                                              std::size_t worthLanes)
{
    if (bits.left() >= worthLanes)
        if (const auto count = unpackInLanes(bits, shortestLiteral(lengths), codes, out)) return count;
    Lane lane{bits, out.data(), out.data() + out.size()};
    if (!takeRest(lane, codes) || lane.bits.overrun()) return std::nullopt;
    return static_cast<std::size_t>(lane.out - out.data());
}

} // namespace archiver
