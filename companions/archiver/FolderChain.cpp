#include "FolderChain.h"

#include <cerrno>
#include <fcntl.h>
#include <utility>

namespace archiver {

namespace {

constexpr std::size_t mostOpen = 8; // several threads have such a way each

} // namespace

bool FolderChain::push(base::FileDescriptor folder)
{
    struct stat identity {};
    if (fstat(folder.get(), &identity) != 0) return false;
    m_folders.push_back({std::move(folder), identity});
    if (size() > mostOpen) m_folders[size() - 1 - mostOpen].descriptor.close();
    return true;
}

bool FolderChain::reopen(std::size_t wanted)
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

bool FolderChain::shorten(std::size_t wanted)
{
    const bool isThere = wanted == 0 || reopen(wanted);
    const int reason = errno;
    m_folders.resize(isThere ? wanted : 0);
    errno = reason;
    return isThere;
}

} // namespace archiver
