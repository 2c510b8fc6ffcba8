#pragma once

#include "ArchiveWriter.h"

namespace archiver {

struct TreeOptions {
    bool keepLinks = false; ///< or else the files that links lead to are added
    bool bareNames = false; ///< without their paths
};

/// Adds a file, a link or a folder with all below it to an archive, a folder after its contents, and without
/// the archive itself. Pipes, sockets and
/// devices in a folder are passed over in silence: they have no content, and a home folder always has some.
/// What can't be read is reported, and the walk goes on behind it. Folders may be inside each other as deep
/// as the system lets them be: only names grow with it.
///
/// `output` is where the writer puts it. False where the archive can't go on.
[[nodiscard]] bool addTree(const std::string &source, const TreeOptions &options, ArchiveWriter &writer,
                           const OutputVolumes &output, Diagnostics &diagnostics);

} // namespace archiver
