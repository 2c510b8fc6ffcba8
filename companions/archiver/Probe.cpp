#include "Probe.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace archiver {

namespace {

constexpr double worthwhile = 0.985; // of the size that it had

/// Bits of information in a byte, were each independent of those around it.
double entropy(Bytes sample)
{
    const auto total = static_cast<double>(sample.size());
    double bits = 0;
    for (const std::uint32_t count : histogram(sample))
        if (count > 0) bits += count / total * std::log2(total / count);
    return bits;
}

/// At how many places there is a string that was there before.
std::size_t repetitions(Bytes sample)
{
    constexpr std::size_t length = 5;
    constexpr unsigned tableBits = 14;
    std::array<std::uint32_t, 1u << tableBits> places{};
    std::size_t count = 0;
    for (std::size_t place = 0; place + length <= sample.size(); ++place) {
        const auto *const here = sample.data() + place;
        std::uint32_t start = 0;
        std::memcpy(&start, here, sizeof start);
        std::uint32_t &before =
            places[((start ^ here[length - 1] * 0x9E37u) * 0x9E3779B1u) >> (32 - tableBits)];
        count += before > 0 && std::equal(here, here + length, sample.data() + before - 1);
        before = static_cast<std::uint32_t>(place + 1);
    }
    return count;
}

} // namespace

bool looksRandom(Bytes content)
{
    constexpr std::size_t most = 4 << 10;
    // From the middle: many kinds of packed files have plain headers.
    const std::size_t size = std::min(content.size(), most);
    const Bytes sample = content.subspan((content.size() - size) / 2, size);
    constexpr std::size_t enough = 512;
    constexpr double allBits = 8;
    if (sample.size() < 2) return true;
    // Few bytes show less than there is: not even random ones are all different.
    if (sample.size() < enough)
        return entropy(sample) > 0.85 * std::min(std::log2(static_cast<double>(sample.size())), allBits);
    const double unseen = 255 / (2 * std::log(2.0) * static_cast<double>(sample.size()));
    return entropy(sample) + unseen > worthwhile * allBits;
}

Coding probe(int file, std::uint64_t size)
{
    constexpr std::uint64_t stretches = 8;
    constexpr std::size_t stretchSize = 8 << 10;
    constexpr std::size_t fewRepetitions = 50; // one in so many bytes
    ByteBuffer sample(stretches * stretchSize);
    double bits = 0;
    for (std::uint64_t index = 0; index < stretches; ++index) {
        const auto stretch = std::span(sample).subspan(index * stretchSize, stretchSize);
        const std::uint64_t offset = (size - stretchSize) / (stretches - 1) * index;
        if (base::readFullyAt(file, stretch, offset) <= 0)
            return Coding::Store; // whoever reads it all, tells
        bits += entropy(stretch) / stretches;
    }
    if (repetitions(sample) > sample.size() / fewRepetitions) return Coding::Matches;
    return bits < worthwhile * 8 ? Coding::Literals : Coding::Store;
}

} // namespace archiver
