#pragma once

#include "ArchiveReader.h"
#include "ContentSink.h"

namespace archiver {

/// Unpacks what archivers of RAR 3 and 4 packed, through libarchive. That can't read entries that are cut
/// into volumes everywhere, takes a cut archive for an ordinary end, and some checksums for none: so each
/// entry is handed to it as an archive of its own, in one piece, and all is compared here.
class ForeignReader {
public:
    /// `path`: the first volume.
    ForeignReader(const std::string &path, Diagnostics &diagnostics);

    /// The content of the entry that `reader` is at, number `index` from 0. False has been reported. Numbers
    /// have to rise.
    [[nodiscard]] bool unpack(std::size_t index, ArchiveReader &reader, ContentSink &sink);
    /// Whether the archive has a fault that no walk through it gets past.
    [[nodiscard]] bool failed() const { return m_scout.failed(); }

private:
    [[nodiscard]] std::optional<std::uint64_t> packedSize(std::size_t index);

    Diagnostics &m_diagnostics;
    VolumeFiles m_volumes;
    ArchiveReader m_scout; ///< it finds out how long an entry is in all volumes
    bool m_isOpen = false;
    std::size_t m_next = 0; ///< number of the entry that comes next
};

} // namespace archiver
