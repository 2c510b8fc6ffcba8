#pragma once

#include "Diagnostics.h"
#include "File.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace archiver {

/// A folder below which entries are made, whatever their names say: every component is opened from the folder
/// before it, and a symbolic link is never followed. Failures are left in errno.
class Destination {
public:
    /// Opens `path`, made with all folders above it where it is missing.
    [[nodiscard]] bool open(const std::string &path);

    /// The parts of an entry's name without empty ones and "."; none where it has "..", a zero byte, or no
    /// part at all.
    [[nodiscard]] static std::optional<std::vector<std::string>> components(const std::string &name);

    /// The parts with a '/' between them.
    [[nodiscard]] static std::string join(const std::vector<std::string> &components);

    /// The folder that holds the last of `components`, made where it is missing; valid until the next call.
    /// -1 where that fails. Folders made here can be used by their owner only, until their entry comes.
    [[nodiscard]] int parentOf(const std::vector<std::string> &components);

    /// The paths of folders made since the last call.
    [[nodiscard]] std::vector<std::string> takeMadeFolders();

private:
    bool descend(int from, const std::string &name);

    FileDescriptor m_root;
    std::vector<std::pair<std::string, FileDescriptor>> m_chain; // open folders, each in the one before
    std::vector<std::string> m_made;
};

} // namespace archiver
