#pragma once

#include "ContentSink.h"
#include "Destination.h"

#include <mutex>

namespace archiver {

/// Makes an archive's entries below a folder, over what is there already, nothing of which is ever opened. A
/// file appears under its name only when it is complete. Times and modes of folders are set at the end, by
/// finish().
class Extractor {
public:
    enum class Paths { Keep, Drop };
    /// `Paths::Drop` puts all files straight into the folder, and makes no folders.
    Extractor(const Destination &destination, Paths paths);

    /// They work side by side.
    [[nodiscard]] EntryReceivers receivers();
    /// After the last entry.
    void finish(Diagnostics &diagnostics);

private:
    class Thread;

    const Destination &m_destination;
    Paths m_paths;
    unsigned m_umask;
    std::mutex m_mutex;
    FolderAttributes m_folders;
};

} // namespace archiver
