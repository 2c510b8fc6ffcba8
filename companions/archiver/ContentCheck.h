#pragma once

#include "Headers.h"

#include <blake2.h>

namespace archiver {

/// Compares a file's content with the size and the checksums that its header has.
class ContentCheck {
public:
    /// For an entry whose header has a hash or not.
    void begin(bool hasHash);
    void add(Bytes bytes) { add(bytes, crc32(bytes)); }
    /// With the bytes' own checksum, where it is known.
    void add(Bytes bytes, std::uint32_t crc);
    [[nodiscard]] std::uint64_t size() const { return m_size; }
    /// `entry`: the header of its last part.
    [[nodiscard]] bool fits(const FileHeader &entry);

private:
    std::uint64_t m_size = 0;
    std::uint32_t m_crc = 0;
    bool m_hasHash = false;
    // BLAKE2sp is a tree of BLAKE2s: blocks go to its leaves in turn. The library's own tree makes threads.
    static constexpr std::size_t leafCount = 8;
    static constexpr std::size_t leafBlock = 64;
    void addToLeaves(Bytes bytes);
    [[nodiscard]] FileHeader::Hash hash();
    std::array<blake2s_state, leafCount> m_leaves{};
};

} // namespace archiver
