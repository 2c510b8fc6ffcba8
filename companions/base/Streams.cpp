#include "Streams.h"

#include <algorithm>

namespace base {

namespace {

constexpr std::size_t pieceSize = 262'144; // in bytes: what two threads' caches hold
constexpr std::size_t mostPieces = 4;

} // namespace

BackgroundSink::BackgroundSink(ByteSink &next)
    : m_next(next), m_work(1, mostPieces, [this](Piece &piece) { handOn(piece); })
{
}

bool BackgroundSink::write(Bytes bytes)
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

bool BackgroundSink::finish()
{
    if (m_begun) give();
    while (m_work.take())
        m_work.release();
    return !m_hasFailed;
}

BackgroundSink::Piece &BackgroundSink::begunPiece()
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

void BackgroundSink::give()
{
    m_begun = nullptr;
    m_work.give();
}

void BackgroundSink::handOn(Piece &piece)
{
    if (!m_hasFailed && !m_next.write({piece.bytes.data(), piece.size})) m_hasFailed = true;
    piece.size = 0;
}

} // namespace base
