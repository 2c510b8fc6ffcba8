#pragma once

#include "Diagnostics.h"
#include "Headers.h"

#include <algorithm>
#include <blake2.h>
#include <memory>

namespace archiver {

/// Takes the unpacked bytes of a file.
class ContentSink {
public:
    virtual ~ContentSink() = default;
    /// False where they can't be kept, which has been reported.
    virtual bool write(Bytes bytes) = 0;
};

/// What becomes of an archive's entries, on one thread. Every function reports what it can't do.
class EntryReceiver : public ContentSink {
public:
    virtual void folder(const FileHeader &) {}
    virtual void link(const FileHeader &) {}
    /// Its content comes in write(), then one of the two others, before the next file begins. False where it
    /// can't be made, and nothing comes.
    virtual bool beginFile(const FileHeader &) { return true; }
    /// The content is complete and right.
    virtual void finishFile(const FileHeader &) {}
    /// It is not, and is wanted no more.
    virtual void abandonFile() {}
    /// Where the entry is put. While a file is under way, no other entry comes to its place or below it.
    /// Empty where that makes no difference.
    [[nodiscard]] virtual std::string place(const FileHeader &) const { return {}; }
};

/// Makes receivers for an archive's entries.
struct EntryReceivers {
    /// For a thread; what the receiver reports goes to those diagnostics. It is called on any thread.
    std::function<std::unique_ptr<EntryReceiver>(Diagnostics &)> make;
    /// All entries come one after the other, as they are in the archive.
    bool inOrder = false;
};

/// Compares a file's content with the size and the checksums that its header has.
class ContentCheck {
public:
    /// For an entry whose header has a hash or not.
    void begin(bool hasHash)
    {
        m_size = 0;
        m_crc = 0;
        m_hasHash = hasHash;
        for (std::uint8_t leaf = 0; hasHash && leaf < leafCount; ++leaf)
            beginNode(m_leaves[leaf], 0, leaf, leafCount, leaf + 1u == leafCount);
    }

    void add(Bytes bytes) { add(bytes, crc32(bytes)); }
    /// With the bytes' own checksum, where it is known.
    void add(Bytes bytes, std::uint32_t crc)
    {
        m_crc = m_size == 0 ? crc : joinedCrc32(m_crc, crc, bytes.size());
        if (m_hasHash) addToLeaves(bytes);
        m_size += bytes.size();
    }

    [[nodiscard]] std::uint64_t size() const { return m_size; }
    /// `entry`: the header of its last part.
    [[nodiscard]] bool fits(const FileHeader &entry)
    {
        if (!entry.sizeUnknown && m_size != entry.unpackedSize) return false;
        if (entry.crc && *entry.crc != m_crc) return false;
        return !entry.hash || (m_hasHash && hash() == *entry.hash);
    }

private:
    std::uint64_t m_size = 0;
    std::uint32_t m_crc = 0;
    bool m_hasHash = false;
    // BLAKE2sp is a tree of BLAKE2s: blocks go to its leaves in turn. The library's own tree makes threads.
    static constexpr std::size_t leafCount = 8;
    static constexpr std::size_t leafBlock = 64;
    static constexpr std::uint8_t hashSize = std::tuple_size_v<FileHeader::Hash>;

    static void beginNode(blake2s_state &state, std::uint8_t depth, std::uint8_t offset, std::size_t leaves,
                          bool isLast)
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

    void addToLeaves(Bytes bytes)
    {
        for (std::uint64_t position = m_size; !bytes.empty();) {
            const std::size_t left = leafBlock - static_cast<std::size_t>(position % leafBlock);
            const Bytes part = bytes.first(std::min(bytes.size(), left));
            blake2s_update(&m_leaves[position / leafBlock % leafCount], part.data(), part.size());
            position += part.size();
            bytes = bytes.subspan(part.size());
        }
    }

    [[nodiscard]] FileHeader::Hash hash()
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

    std::array<blake2s_state, leafCount> m_leaves{};
};

} // namespace archiver
