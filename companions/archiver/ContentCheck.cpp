#include "ContentCheck.h"

#include <algorithm>
#include <zlib.h>

namespace archiver {

namespace {

constexpr std::uint8_t hashSize = std::tuple_size_v<FileHeader::Hash>;

void beginNode(blake2s_state &state, std::uint8_t depth, std::uint8_t offset, std::size_t leaves, bool isLast)
{
    blake2s_param parameters{};
    parameters.digest_length = hashSize;
    parameters.inner_length = hashSize;
    parameters.fanout = static_cast<std::uint8_t>(leaves);
    parameters.depth = 2;
    parameters.node_depth = depth;
    parameters.node_offset[0] = offset;
    blake2s_init_param(&state, &parameters);
    state.last_node = isLast;
}

} // namespace

void ContentCheck::begin(bool hasHash)
{
    m_size = 0;
    m_crc = 0;
    m_hasHash = hasHash;
    for (std::uint8_t leaf = 0; hasHash && leaf < leafCount; ++leaf)
        beginNode(m_leaves[leaf], 0, leaf, leafCount, leaf + 1u == leafCount);
}

void ContentCheck::add(Bytes bytes, std::uint32_t crc)
{
    const auto joined = [&] {
        return static_cast<std::uint32_t>(crc32_combine(m_crc, crc, static_cast<z_off_t>(bytes.size())));
    };
    m_crc = m_size == 0 ? crc : joined();
    if (m_hasHash) addToLeaves(bytes);
    m_size += bytes.size();
}

void ContentCheck::addToLeaves(Bytes bytes)
{
    for (std::uint64_t position = m_size; !bytes.empty();) {
        const std::size_t left = leafBlock - static_cast<std::size_t>(position % leafBlock);
        const Bytes part = bytes.first(std::min(bytes.size(), left));
        blake2s_update(&m_leaves[position / leafBlock % leafCount], part.data(), part.size());
        position += part.size();
        bytes = bytes.subspan(part.size());
    }
}

FileHeader::Hash ContentCheck::hash()
{
    FileHeader::Hash hash{};
    blake2s_state root{};
    beginNode(root, 1, 0, leafCount, true);
    for (blake2s_state &leaf : m_leaves) {
        blake2s_final(&leaf, hash.data(), hash.size());
        blake2s_update(&root, hash.data(), hash.size());
    }
    blake2s_final(&root, hash.data(), hash.size());
    return hash;
}

bool ContentCheck::fits(const FileHeader &entry)
{
    if (!entry.sizeUnknown && m_size != entry.unpackedSize) return false;
    if (entry.crc && *entry.crc != m_crc) return false;
    return !entry.hash || (m_hasHash && hash() == *entry.hash);
}

} // namespace archiver
