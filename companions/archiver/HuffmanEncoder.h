#pragma once

#include "PackedBlock.h"

#include <array>
#include <memory>

namespace archiver {

/// Packs bytes by the frequency of each, in blocks that any reader of the format unpacks. Text such as base64
/// shrinks to little more than its entropy; repetitions are not looked for.
class HuffmanEncoder {
public:
    HuffmanEncoder();

    /// Bytes that each block but the last one unpacks to. Readers refuse more than half of the dictionary in
    /// a block.
    static constexpr std::size_t blockInput = 512 << 10;
    static constexpr unsigned dictionary = 3; ///< 128 KiB << 3
    static constexpr unsigned method = 5;

    /// The complete block, header included, valid until the next call. `input` holds 1 to blockInput bytes.
    [[nodiscard]] Bytes encode(Bytes input, bool last);
    /// The same behind other blocks.
    Bytes encode(Bytes input, bool last, PackedBlocks &into);

    /// Bytes that encode() would give, within a few.
    [[nodiscard]] static std::size_t estimate(Bytes input);

private:
    void fillJoined(const std::array<std::uint8_t, 256> &lengths,
                    const std::array<std::uint16_t, 256> &codes);

    /// For every two bytes (the first one in the low half of the index) their codes side by side, and in the
    /// lowest 6 bits the length of both.
    std::unique_ptr<std::array<std::uint32_t, 65536>> m_joined;
    PackedBlocks m_own;
};

} // namespace archiver
