#pragma once

#include "Bytes.h"

#include <memory>
#include <zstd.h>

namespace archiver {

/// Finds repetitions, through libzstd.
class MatchFinder {
public:
    explicit MatchFinder(int level);

    /// What repeats in `window` behind its first `history` bytes, also what these hold already: each with the
    /// bytes before it that don't. Valid until the next call. Who packs by it looks whether it is so: the
    /// library's function isn't among those that it promises.
    [[nodiscard]] std::span<const ZSTD_Sequence> find(Bytes window, std::size_t history);

private:
    std::unique_ptr<ZSTD_CCtx, std::size_t (*)(ZSTD_CCtx *)> m_context;
    std::unique_ptr<ZSTD_Sequence[]> m_found; ///< memory that is never touched costs nothing
    std::size_t m_room = 0;
};

/// Goes through what was found, in steps as long as it is wanted.
class MatchCursor {
public:
    explicit MatchCursor(std::span<const ZSTD_Sequence> found) : m_left(found) {}

    /// Bytes that don't repeat, and behind them some that were there `distance` bytes before.
    struct Step {
        std::size_t literals = 0;
        std::size_t length = 0;
        std::size_t distance = 0;
    };
    /// 1 to `most` bytes; all of them where nothing more was found.
    [[nodiscard]] Step next(std::size_t most);

private:
    std::span<const ZSTD_Sequence> m_left;
    Step m_rest; ///< of the present one
};

} // namespace archiver
