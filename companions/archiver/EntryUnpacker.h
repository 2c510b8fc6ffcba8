#pragma once

#include "ArchiveReader.h"
#include "ContentSink.h"
#include "HuffmanDecoder.h"

namespace archiver {

/// Turns the packed data of entries back into their content, and checks it.
class EntryUnpacker {
public:
    explicit EntryUnpacker(Diagnostics &diagnostics);

    enum class Result { Whole, Failed, NeedsDictionary };
    /// The reader's present entry. Failed has been reported. NeedsDictionary: it is packed in a way that only
    /// a full implementation of the compression can undo; part of the content may have gone into the sink
    /// already.
    [[nodiscard]] Result unpack(ArchiveReader &reader, ContentSink &sink);

private:
    [[nodiscard]] Result unpackStored(ArchiveReader &reader, ContentSink &sink);
    [[nodiscard]] Result unpackBlocks(ArchiveReader &reader, ContentSink &sink);
    [[nodiscard]] Result unpackBlock(const FileHeader &entry, ContentSink &sink);
    [[nodiscard]] bool deliver(Bytes bytes, ContentSink &sink);
    [[nodiscard]] Result check(const FileHeader &entry);
    Result damaged(const FileHeader &entry);

    Diagnostics &m_diagnostics;
    HuffmanDecoder m_decoder;
    ByteBuffer m_payload;
    ByteBuffer m_output;
    std::uint64_t m_size = 0;
    std::uint32_t m_crc = 0;
};

} // namespace archiver
