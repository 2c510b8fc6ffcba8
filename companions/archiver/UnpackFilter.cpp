#include "UnpackFilter.h"

namespace archiver {

namespace {

std::uint32_t word(const std::uint8_t *at)
{
    return at[0] | std::uint32_t{at[1]} << 8 | std::uint32_t{at[2]} << 16 | std::uint32_t{at[3]} << 24;
}

void setWord(std::uint8_t *at, std::uint32_t value)
{
    for (unsigned index = 0; index < 4; ++index)
        at[index] = static_cast<std::uint8_t>(value >> 8 * index);
}

/// Differences, one channel after the other.
void undoDelta(Bytes changed, unsigned channels, ByteBuffer &restored)
{
    restored.resize(changed.size());
    std::size_t from = 0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        std::uint8_t value = 0;
        for (std::size_t to = channel; to < restored.size(); to += channels)
            restored[to] = value = static_cast<std::uint8_t>(value - changed[from++]);
    }
}

/// The targets of calls and jumps: they were made absolute, within a space of 16 MB.
void undoCalls(std::span<std::uint8_t> bytes, std::uint64_t begin, bool jumps)
{
    constexpr std::uint32_t space = 1 << 24;
    constexpr std::uint32_t negative = 1u << 31;
    for (std::size_t at = 0; at + 4 < bytes.size(); ++at) {
        if (bytes[at] != 0xE8 && !(jumps && bytes[at] == 0xE9)) continue;
        std::uint8_t *const operand = &bytes[at + 1];
        const auto offset = static_cast<std::uint32_t>((begin + at + 1) % space);
        const std::uint32_t target = word(operand);
        if (target & negative) {
            if (!((target + offset) & negative)) setWord(operand, target + space);
        } else if ((target - space) & negative) {
            setWord(operand, target - offset);
        }
        at += 4;
    }
}

void undoArm(std::span<std::uint8_t> bytes, std::uint64_t begin)
{
    constexpr std::uint32_t space = 1 << 24;
    constexpr std::uint8_t call = 0xEB;
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4) {
        if (bytes[at + 3] != call) continue;
        const std::uint32_t target = word(&bytes[at]) - static_cast<std::uint32_t>((begin + at) / 4);
        setWord(&bytes[at], target % space | std::uint32_t{call} << 24);
    }
}

} // namespace

void UnpackFilter::undo(Bytes changed, ByteBuffer &restored) const
{
    if (kind == Kind::Delta) return undoDelta(changed, channels, restored);
    restored.assign(changed.begin(), changed.end());
    if (kind == Kind::Arm) return undoArm(restored, begin);
    undoCalls(restored, begin, kind == Kind::E8E9);
}

} // namespace archiver
