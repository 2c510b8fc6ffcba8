#include "EntryUnpacker.h"

#include <limits>

namespace archiver {

EntryUnpacker::EntryUnpacker(EntryReceiver &receiver, Diagnostics &diagnostics)
    : m_receiver(receiver), m_diagnostics(diagnostics)
{
}

bool EntryUnpacker::canUnpack(const FileHeader &entry)
{
    const auto refuse = [&](const std::string &why) {
        return m_diagnostics.report(printable(entry.name) + why);
    };
    if (entry.encrypted) return refuse(" is encrypted by the archiver, which is not supported");
    if (!m_isPacked) return true;
    if (entry.version > 0) return refuse(" is packed in a way that only the archiver that made it undoes");
    const bool isShort =
        !entry.solid && !entry.sizeUnknown && entry.unpackedSize <= Unpacker::largestDictionary;
    if (entry.dictionarySize() > Unpacker::largestDictionary && !isShort)
        return refuse(" needs a dictionary of " + std::to_string(entry.dictionarySize() >> 20) +
                      " MB to be unpacked, more than the " +
                      std::to_string(Unpacker::largestDictionary >> 20) + " MB that there are");
    if (m_isChainBroken) return refuse(" can't be unpacked without the entries before it: checksum error");
    return true;
}

void EntryUnpacker::begin(const FileHeader &entry)
{
    m_isPacked = entry.hasBlocks();
    if (m_isPacked && !entry.solid) m_isChainBroken = false;
    m_isDamaged = false;
    m_isRefused = !canUnpack(entry);
    if (m_isRefused && m_isPacked) m_isChainBroken = true;
    m_most = entry.sizeUnknown ? std::numeric_limits<std::uint64_t>::max() : entry.unpackedSize;
    m_check.begin(entry.hash.has_value());
    m_isOpen = !m_isRefused && m_receiver.beginFile(entry);
    if (m_isPacked && !m_isRefused) m_unpacker.begin(entry.dictionarySize(), entry.solid);
}

void EntryUnpacker::stored(Bytes bytes, std::uint32_t crc)
{
    if (isWanted()) deliver(bytes, crc);
}

bool EntryUnpacker::write(Bytes bytes) { return deliver(bytes, crc32(bytes)); }

bool EntryUnpacker::deliver(Bytes bytes, std::uint32_t crc)
{
    if (interrupted()) return false;
    m_check.add(bytes, crc);
    if (m_check.size() > m_most) m_isDamaged = true;
    if (!isWanted()) return !m_isDamaged; // others may need it for their dictionary
    if (m_receiver.write(bytes)) return true;
    m_receiver.abandonFile();
    m_isOpen = false;
    return true;
}

void EntryUnpacker::note(Unpacker::Outcome outcome)
{
    if (outcome == Unpacker::Outcome::Unpacked) return;
    m_isDamaged = true;
    m_isChainBroken = true;
}

void EntryUnpacker::block(Bytes payload, const BlockHeader &header)
{
    if (!m_isRefused && !m_isDamaged) note(m_unpacker.block(payload, header, *this));
}

void EntryUnpacker::literals(ByteBuffer &bytes, std::size_t size, std::uint32_t crc,
                             const CodeLengths &lengths)
{
    if (m_isRefused || m_isDamaged) return;
    if (m_unpacker.onlyLiterals() && !deliver(Bytes(bytes).first(size), crc))
        return note(Unpacker::Outcome::Refused);
    note(m_unpacker.literals(bytes, size, lengths, *this));
}

void EntryUnpacker::end(const FileHeader &last, bool isWhole)
{
    if (!isWhole && m_isPacked) m_isChainBroken = true;
    if (m_isRefused) return;
    if (isWhole && m_isPacked && !m_isDamaged) note(m_unpacker.end(*this));
    const bool fits = !m_isDamaged && m_check.fits(last);
    if (m_isOpen && isWhole && fits) return m_receiver.finishFile(last);
    const bool isToBeSaid = isWhole && !fits && m_isOpen && !interrupted();
    if (m_isOpen) m_receiver.abandonFile();
    m_isOpen = false;
    if (isToBeSaid) m_diagnostics.report(printable(last.name) + ": checksum error");
}

void EntryUnpacker::unpack(const FileHeader &entry, Bytes packed)
{
    begin(entry);
    if (!m_isPacked) {
        stored(packed, crc32(packed));
        return end(entry, true);
    }
    for (bool isLast = false; !isLast && !m_isRefused && !m_isDamaged;) {
        const std::size_t size = packed.size() < shortestBlockHeader ? 0 : blockHeaderSize(packed);
        const auto header = parseBlockHeader(packed.first(std::min(size, packed.size())));
        // Bytes behind the last block belong to nothing.
        m_isDamaged = !header || header->payloadSize > packed.size() - size ||
                      (header->last && header->payloadSize < packed.size() - size);
        if (m_isDamaged) {
            damage();
            break;
        }
        isLast = header->last;
        block(packed.subspan(size, header->payloadSize), *header);
        packed = packed.subspan(size + header->payloadSize);
    }
    end(entry, true);
}

} // namespace archiver
