#pragma once

#include "ContentSink.h"
#include "Diagnostics.h"

#include <memory>
#include <string>
#include <vector>

struct archive;

namespace archiver {

/// Unpacks what other archivers packed, through libarchive: the older format, and RAR 5 with a dictionary. It
/// takes a missing volume or a cut archive for an ordinary end, so all sizes are compared here.
class ForeignReader {
public:
    /// `paths`: all volumes, in order.
    ForeignReader(std::vector<std::string> paths, Diagnostics &diagnostics);
    ~ForeignReader();
    ForeignReader(const ForeignReader &) = delete;
    ForeignReader &operator=(const ForeignReader &) = delete;

    enum class Step { Entry, End, Failed };
    /// The next entry, which it describes in `header` as far as libarchive knows it. Failed has been
    /// reported.
    [[nodiscard]] Step next(FileHeader &header);
    /// The content of that entry; `expected` tells its size and checksum. False has been reported.
    [[nodiscard]] bool unpack(const FileHeader &expected, ContentSink &sink);
    /// Goes on to entry `index`, counted from 0, and unpacks it. Indices have to rise. False has been
    /// reported.
    [[nodiscard]] bool unpackEntry(std::size_t index, const FileHeader &expected, ContentSink &sink);

private:
    bool open();
    bool failed(const std::string &name);

    std::vector<std::string> m_paths;
    Diagnostics &m_diagnostics;
    std::unique_ptr<archive, void (*)(archive *)> m_archive;
    bool m_opened = false;
    std::size_t m_next = 0; // index of the entry that next() will give
};

} // namespace archiver
