#pragma once

#include "Bytes.h"

namespace archiver {

/// A stretch of a file that was changed before it was packed so that it packs better, and how.
struct UnpackFilter {
    enum class Kind : std::uint8_t { Delta, E8, E8E9, Arm };
    static constexpr unsigned kinds = 4;
    static constexpr std::size_t longest = 4 << 20;

    Kind kind = Kind::Delta;
    unsigned channels = 1;   ///< of Delta: bytes of a sample, say
    std::uint64_t begin = 0; ///< in the file
    std::size_t length = 0;

    [[nodiscard]] std::uint64_t end() const { return begin + length; }
    /// Puts the stretch as it was into `restored`; `changed` has `length` bytes.
    void undo(Bytes changed, ByteBuffer &restored) const;
};

} // namespace archiver
