#pragma once

#include "FileDescriptor.h"
#include "OrderedWork.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>

namespace base {

/// Overwrites memory with zeros in a way that the compiler does not leave out.
inline void wipe(void *memory, std::size_t size)
{
    if (size > 0) explicit_bzero(memory, size);
}

struct WipingDeleter {
    std::size_t size = 0;

    void operator()(std::uint8_t *bytes) const
    {
        wipe(bytes, size);
        delete[] bytes;
    }
};

/// Room for bytes that may be of a secret: they are in memory no longer once it is gone. What is in it at
/// first is anything.
class WipedBytes {
public:
    WipedBytes() = default;
    explicit WipedBytes(std::size_t size) : m_bytes(new std::uint8_t[size], WipingDeleter{size}) {}

    [[nodiscard]] std::uint8_t *data() const { return m_bytes.get(); }
    [[nodiscard]] std::size_t size() const { return m_bytes.get_deleter().size; }

private:
    std::unique_ptr<std::uint8_t[], WipingDeleter> m_bytes;
};

/// Bytes that come in pieces.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// The next piece, valid until the next call. Empty: the end, or a failure that the source reported.
    [[nodiscard]] virtual Bytes read() = 0;
};

/// Where bytes go to.
class ByteSink {
public:
    virtual ~ByteSink() = default;
    /// False: they could not all be written. The sink knows why.
    [[nodiscard]] virtual bool write(Bytes bytes) = 0;
};

/// Hands on to another sink, on a thread of its own, what is written to it.
class BackgroundSink final : public ByteSink {
public:
    /// `next` belongs to the thread until finish() or the end of this.
    explicit BackgroundSink(ByteSink &next)
        : m_next(next), m_work(1, mostPieces, [this](Piece &piece) {
            if (!m_hasFailed && !m_next.write({piece.bytes.data(), piece.size})) m_hasFailed = true;
            piece.size = 0;
        })
    {
    }

    /// False: the other sink has failed, now or before.
    [[nodiscard]] bool write(Bytes bytes) override
    {
        while (!bytes.empty() && !m_hasFailed) {
            Piece &piece = begunPiece();
            const std::size_t count = std::min(bytes.size(), pieceSize - piece.size);
            std::copy_n(bytes.begin(), count, piece.bytes.data() + piece.size);
            piece.size += count;
            bytes = bytes.subspan(count);
            if (piece.size == pieceSize) give();
        }
        return !m_hasFailed;
    }

    /// Waits until the other sink has got everything. False: it has failed.
    [[nodiscard]] bool finish()
    {
        if (m_begun) give();
        while (m_work.take())
            m_work.release();
        return !m_hasFailed;
    }

private:
    static constexpr std::size_t pieceSize = 262'144; // in bytes: what two threads' caches hold
    static constexpr std::size_t mostPieces = 4;

    struct Piece {
        WipedBytes bytes;
        std::size_t size = 0;
    };

    Piece &begunPiece()
    {
        if (!m_begun) m_begun = m_work.free();
        if (!m_begun) {
            (void)m_work.take();
            m_work.release();
            m_begun = m_work.free();
        }
        if (m_begun->bytes.size() == 0) m_begun->bytes = WipedBytes(pieceSize);
        return *m_begun;
    }

    void give()
    {
        m_begun = nullptr;
        m_work.give();
    }

    ByteSink &m_next;
    std::atomic<bool> m_hasFailed = false;
    Piece *m_begun = nullptr; ///< that isn't full yet; null: none
    OrderedWork<Piece> m_work;
};

} // namespace base
