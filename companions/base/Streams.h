#pragma once

#include "FileDescriptor.h"
#include "OrderedWork.h"

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
    explicit BackgroundSink(ByteSink &next);

    /// False: the other sink has failed, now or before.
    [[nodiscard]] bool write(Bytes bytes) override;
    /// Waits until the other sink has got everything. False: it has failed.
    [[nodiscard]] bool finish();

private:
    struct Piece {
        WipedBytes bytes;
        std::size_t size = 0;
    };

    Piece &begunPiece();
    void give();
    void handOn(Piece &piece);

    ByteSink &m_next;
    std::atomic<bool> m_hasFailed = false;
    Piece *m_begun = nullptr; ///< that isn't full yet; null: none
    OrderedWork<Piece> m_work;
};

} // namespace base
