#pragma once

#include "FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>

namespace archiver {

/// A way down through folders, each of them opened in the one before. Only the last few stay open, however
/// deep it leads; any other is opened again from the one below it, and has to be the same that it was.
class FolderChain {
public:
    /// False with errno set.
    [[nodiscard]] bool push(base::FileDescriptor folder)
    {
        struct stat identity {};
        if (fstat(folder.get(), &identity) != 0) return false;
        m_folders.push_back({std::move(folder), identity});
        if (size() > mostOpen) m_folders[size() - 1 - mostOpen].descriptor.close();
        return true;
    }

    /// Makes sure that the folder before the last is open, as long as the last one may still be searched.
    /// False with errno set.
    [[nodiscard]] bool openParent() { return size() < 2 || reopen(size() - 1); }
    /// Goes back up to where it has `wanted` folders. False with errno set, and it has none then.
    [[nodiscard]] bool shorten(std::size_t wanted)
    {
        const bool isThere = wanted == 0 || reopen(wanted);
        const int reason = errno;
        m_folders.resize(isThere ? wanted : 0);
        errno = reason;
        return isThere;
    }

    [[nodiscard]] std::size_t size() const { return m_folders.size(); }
    /// The last folder; there has to be one.
    [[nodiscard]] int last() const { return m_folders.back().descriptor.get(); }

private:
    static constexpr std::size_t mostOpen = 8; // several threads have such a way each

    [[nodiscard]] bool reopen(std::size_t wanted)
    {
        std::size_t open = wanted;
        while (!m_folders[open - 1].descriptor)
            ++open;
        for (; open > wanted; --open) {
            base::FileDescriptor above(
                openat(m_folders[open - 1].descriptor.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            struct stat status {};
            if (!above || fstat(above.get(), &status) != 0) return false;
            if (!base::isSame(status, m_folders[open - 2].identity)) return errno = ESTALE, false;
            m_folders[open - 2].descriptor = std::move(above);
            if (open < size()) m_folders[open - 1].descriptor.close();
        }
        return true;
    }

    struct Folder {
        base::FileDescriptor descriptor;
        struct stat identity;
    };
    std::vector<Folder> m_folders;
};

} // namespace archiver
