#pragma once

#include "Content.h"
#include "Unpacker.h"

namespace archiver {

/// Brings entries of RAR 5, and stored ones of any format, to a receiver, and checks them. What is damaged is
/// reported once for an entry. One that shares the dictionary of those before it has to come behind them.
class EntryUnpacker final : private ContentSink {
public:
    EntryUnpacker(EntryReceiver &receiver, Diagnostics &diagnostics);

    /// An entry all of whose packed data is in memory, with BitReader::padding bytes more behind it.
    void unpack(const FileHeader &entry, Bytes packed);

    // The same in pieces.
    void begin(const FileHeader &entry);
    void stored(Bytes bytes, std::uint32_t crc);
    /// See Unpacker for these two.
    void block(Bytes payload, const BlockHeader &header);
    void literals(ByteBuffer &bytes, std::size_t size, std::uint32_t crc, const CodeLengths &lengths);
    /// The packed data makes no sense.
    void damage() { note(Unpacker::Outcome::Damaged); }
    /// `last`: the header of its last part. `isWhole`: all of its packed data came; where not, that has been
    /// reported.
    void end(const FileHeader &last, bool isWhole);
    /// Whether there is still something to be made of the entry's data.
    [[nodiscard]] bool isWanted() const { return m_isOpen && !m_isDamaged; }

    /// Entries before the next one were unpacked elsewhere: it has no dictionary to go on with.
    void breakChain() { m_isChainBroken = true; }

private:
    [[nodiscard]] bool canUnpack(const FileHeader &entry);
    void note(Unpacker::Outcome outcome);
    bool write(Bytes bytes) override;
    bool deliver(Bytes bytes, std::uint32_t crc);

    EntryReceiver &m_receiver;
    Diagnostics &m_diagnostics;
    Unpacker m_unpacker;
    ContentCheck m_check;
    std::uint64_t m_most = 0; ///< bytes that the entry may have
    bool m_isOpen = false;    ///< the receiver has begun it
    bool m_isRefused = false; ///< why it can't be unpacked has been reported
    bool m_isDamaged = false;
    bool m_isPacked = false;
    bool m_isChainBroken = false;
};

} // namespace archiver
