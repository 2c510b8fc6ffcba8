#pragma once

#include "ByteStreams.h"
#include "OrderedWork.h"
#include "WipedBytes.h"

#include <atomic>

/// Hands on to another sink, on a thread of its own, what is written to it.
class BackgroundSink final : public ByteSink {
public:
    /// `next` belongs to the thread until finish() or the end of this.
    explicit BackgroundSink(ByteSink &next);

    /// False: the other sink has failed, now or before.
    [[nodiscard]] bool write(Bytes bytes) override;
    /// Waits until the other sink has got everything. False: it has failed.
    [[nodiscard]] bool finish();

private:
    struct Piece {
        base::WipedBytes bytes;
        std::size_t size = 0;
    };

    Piece &begunPiece();
    void give();
    void handOn(Piece &piece);

    ByteSink &m_next;
    std::atomic<bool> m_hasFailed = false;
    Piece *m_begun = nullptr; ///< that isn't full yet; null: none
    base::OrderedWork<Piece> m_work;
};
