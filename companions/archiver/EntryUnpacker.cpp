#include "EntryUnpacker.h"

#include "Interrupt.h"

#include <algorithm>

namespace archiver {

namespace {

constexpr std::size_t outputSize = 64 << 10; // stays in the nearest cache until its checksum is taken

} // namespace

EntryUnpacker::EntryUnpacker(Diagnostics &diagnostics) : m_diagnostics(diagnostics), m_output(outputSize) {}

EntryUnpacker::Result EntryUnpacker::unpack(ArchiveReader &reader, ContentSink &sink)
{
    m_size = 0;
    m_crc = 0;
    if (reader.entry().encrypted) {
        m_diagnostics.report(printable(reader.entry().name) +
                             " is encrypted by the archiver, which is not supported");
        return Result::Failed;
    }
    const FileHeader &entry = reader.entry();
    const bool isEmpty = entry.packedSize == 0 && entry.unpackedSize == 0 && !entry.continuesAfter;
    if (!entry.stored() && !isEmpty && (entry.solid || entry.older)) return Result::NeedsDictionary;
    const Result result = entry.stored() || isEmpty ? unpackStored(reader, sink) : unpackBlocks(reader, sink);
    return result == Result::Whole ? check(reader.entry()) : result;
}

EntryUnpacker::Result EntryUnpacker::unpackStored(ArchiveReader &reader, ContentSink &sink)
{
    for (;;) {
        const Bytes bytes = reader.packed();
        if (bytes.empty()) return reader.failed() ? Result::Failed : Result::Whole;
        if (!deliver(bytes, sink)) return Result::Failed;
        reader.consume(bytes.size());
    }
}

EntryUnpacker::Result EntryUnpacker::unpackBlocks(ArchiveReader &reader, ContentSink &sink)
{
    for (bool last = false; !last;) {
        const Bytes start = reader.packed(largestBlockHeaderSize);
        if (reader.failed()) return Result::Failed;
        const std::optional<BlockHeader> header = parseBlockHeader(start);
        if (!header) return damaged(reader.entry());
        reader.consume(header->headerSize);
        last = header->last;

        const Bytes payload = reader.packed(std::max<std::size_t>(header->payloadSize, 1));
        if (reader.failed()) return Result::Failed;
        if (payload.size() < header->payloadSize) return damaged(reader.entry());
        m_payload.assign(payload.begin(), payload.begin() + static_cast<std::ptrdiff_t>(header->payloadSize));
        reader.consume(header->payloadSize);
        m_payload.resize(header->payloadSize + HuffmanDecoder::padding);

        const Bytes block = Bytes(m_payload).first(header->payloadSize);
        switch (m_decoder.start(block, *header)) {
        case HuffmanDecoder::Start::NeedsDictionary:
            return Result::NeedsDictionary;
        case HuffmanDecoder::Start::Damaged:
            return damaged(reader.entry());
        case HuffmanDecoder::Start::Ready:
            break;
        }
        const Result result = unpackBlock(reader.entry(), sink);
        if (result != Result::Whole) return result;
    }
    // Bytes behind the last block belong to nothing.
    if (!reader.packed().empty()) return damaged(reader.entry());
    return reader.failed() ? Result::Failed : Result::Whole;
}

EntryUnpacker::Result EntryUnpacker::unpackBlock(const FileHeader &entry, ContentSink &sink)
{
    for (;;) {
        const std::size_t count = m_decoder.decode(m_output);
        if (m_decoder.damaged()) return damaged(entry);
        if (count == 0) return Result::Whole;
        if (!deliver(Bytes(m_output).first(count), sink)) return Result::Failed;
    }
}

bool EntryUnpacker::deliver(Bytes bytes, ContentSink &sink)
{
    if (interrupted()) return false;
    m_crc = crc32(bytes, m_crc);
    m_size += bytes.size();
    return sink.write(bytes);
}

EntryUnpacker::Result EntryUnpacker::check(const FileHeader &entry)
{
    const bool sizeFits = entry.sizeUnknown || m_size == entry.unpackedSize;
    if (sizeFits && (!entry.crc || *entry.crc == m_crc)) return Result::Whole;
    return damaged(entry);
}

EntryUnpacker::Result EntryUnpacker::damaged(const FileHeader &entry)
{
    m_diagnostics.report(printable(entry.name) + ": checksum error");
    return Result::Failed;
}

} // namespace archiver
