#pragma once

#include "FileDescriptor.h"

#include <vector>

namespace archiver {

/// A way down through folders, each of them opened in the one before. Only the last few stay open, however
/// deep it leads; any other is opened again from the one below it, and has to be the same that it was.
class FolderChain {
public:
    /// False with errno set.
    [[nodiscard]] bool push(base::FileDescriptor folder);
    /// Makes sure that the folder before the last is open, as long as the last one may still be searched.
    /// False with errno set.
    [[nodiscard]] bool openParent() { return size() < 2 || reopen(size() - 1); }
    /// Goes back up to where it has `size` folders. False with errno set, and it has none then.
    [[nodiscard]] bool shorten(std::size_t size);

    [[nodiscard]] std::size_t size() const { return m_folders.size(); }
    /// The last folder; there has to be one.
    [[nodiscard]] int last() const { return m_folders.back().descriptor.get(); }

private:
    [[nodiscard]] bool reopen(std::size_t size);

    struct Folder {
        base::FileDescriptor descriptor;
        struct stat identity;
    };
    std::vector<Folder> m_folders;
};

} // namespace archiver
