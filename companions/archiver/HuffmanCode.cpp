#include "HuffmanCode.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace archiver {

namespace {

struct Node {
    std::uint64_t weight = 0;
    std::uint32_t parent = 0;
};

/// Depths of the leaves of the Huffman tree over `weights`, which are sorted, two or more. Leaves come before
/// the inner nodes, which arise in the order of their weights: two queues in one array.
std::vector<unsigned> treeDepths(const std::vector<std::uint64_t> &weights)
{
    std::vector<Node> nodes(weights.size());
    for (std::size_t leaf = 0; leaf < weights.size(); ++leaf)
        nodes[leaf].weight = weights[leaf];
    const std::size_t leaves = nodes.size();
    std::size_t nextLeaf = 0;
    std::size_t nextInner = leaves;
    const auto takeLightest = [&] {
        const bool leaf = nextLeaf < leaves &&
                          (nextInner >= nodes.size() || nodes[nextLeaf].weight <= nodes[nextInner].weight);
        return leaf ? nextLeaf++ : nextInner++;
    };
    while (nodes.size() < 2 * leaves - 1) {
        const std::size_t left = takeLightest();
        const std::size_t right = takeLightest();
        const auto parent = static_cast<std::uint32_t>(nodes.size());
        nodes[left].parent = parent;
        nodes[right].parent = parent;
        nodes.push_back({nodes[left].weight + nodes[right].weight, 0});
    }
    std::vector<unsigned> depths(nodes.size(), 0);
    for (std::size_t node = nodes.size() - 1; node-- > 0;)
        depths[node] = depths[nodes[node].parent] + 1;
    depths.resize(leaves);
    return depths;
}

} // namespace

std::vector<std::uint8_t> codeLengths(std::span<const std::uint32_t> frequencies, unsigned limit)
{
    std::vector<std::size_t> symbols;
    for (std::size_t symbol = 0; symbol < frequencies.size(); ++symbol)
        if (frequencies[symbol] > 0) symbols.push_back(symbol);
    // Readers want a bit for each symbol: a lone one gets a companion that never occurs.
    for (std::size_t symbol = 0; symbols.size() < 2; ++symbol)
        if (frequencies[symbol] == 0) symbols.push_back(symbol);
    std::ranges::sort(symbols, {},
                      [&](std::size_t symbol) { return std::pair(frequencies[symbol], symbol); });

    std::vector<std::uint64_t> weights(symbols.size());
    std::ranges::transform(symbols, weights.begin(),
                           [&](std::size_t symbol) { return std::max(frequencies[symbol], 1u); });
    std::vector<unsigned> depths = treeDepths(weights);
    // Levelling the weights shortens the longest codes; what that costs is far below a thousandth.
    while (*std::ranges::max_element(depths) > limit) {
        for (std::uint64_t &weight : weights)
            weight = weight / 2 + 1;
        depths = treeDepths(weights);
    }

    std::vector<std::uint8_t> lengths(frequencies.size(), 0);
    for (std::size_t index = 0; index < symbols.size(); ++index)
        lengths[symbols[index]] = static_cast<std::uint8_t>(depths[index]);
    return lengths;
}

std::vector<std::uint16_t> canonicalCodes(std::span<const std::uint8_t> lengths)
{
    std::array<std::uint32_t, longestCode + 2> next{};
    for (const std::uint8_t length : lengths)
        if (length > 0) ++next[length + 1u];
    // next[n] counted the codes of n - 1 bits; now it becomes the first code of n bits.
    for (unsigned length = 2; length <= longestCode; ++length)
        next[length] = (next[length - 1] + next[length]) << 1;
    std::vector<std::uint16_t> codes(lengths.size(), 0);
    next[1] = 0;
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
        if (lengths[symbol] > 0) codes[symbol] = static_cast<std::uint16_t>(next[lengths[symbol]]++);
    return codes;
}

bool validLengths(std::span<const std::uint8_t> lengths)
{
    const auto share = [](std::uint32_t sum, std::uint8_t length) {
        return length == 0 ? sum : sum + (1u << (longestCode - length));
    };
    return std::accumulate(lengths.begin(), lengths.end(), 0u, share) <= 1u << longestCode;
}

} // namespace archiver
