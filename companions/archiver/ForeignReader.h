#pragma once

#include "ContentSink.h"
#include "JoinedEntries.h"

#include <memory>
#include <string>

struct archive;

namespace archiver {

/// Unpacks what other archivers packed, through libarchive: the older format's compression, and RAR 5 with a
/// dictionary. libarchive takes a cut archive for an ordinary end, and some checksums for none, so all is
/// compared here.
class ForeignReader {
public:
    /// `path`: the first volume.
    ForeignReader(const std::string &path, Diagnostics &diagnostics);

    /// Entries are counted from 0.
    struct Place {
        std::size_t dictionary; ///< the entry that it begins with
        std::size_t entry;
    };
    /// The content of an entry, behind those before it; `name` is for messages. False has been reported.
    [[nodiscard]] bool unpack(Place place, const std::string &name, ContentSink &sink);
    /// Whether the archive has a fault that no walk through it gets past.
    [[nodiscard]] bool failed() const { return m_entries.failed(); }

private:
    bool begin(std::size_t first);
    bool goTo(std::size_t index);
    bool unpackContent(const FileHeader &expected, ContentSink &sink);
    bool cannotUnpack();

    Diagnostics &m_diagnostics;
    JoinedEntries m_entries;
    std::unique_ptr<archive, void (*)(archive *)> m_archive;
    std::string m_name; ///< of the entry that is wanted, for messages
    std::size_t m_first = 0;
};

} // namespace archiver
