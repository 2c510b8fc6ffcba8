#include "files/FolderWalk.h"

#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

bool isSelfOrParent(const char *name) { return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0; }

} // namespace

// Walking by open folders instead of paths spares the kernel the look-up of every parent, and has no limit on
// a path's length.
FolderWalk::FolderWalk(std::string path) : m_folder(std::move(path))
{
    const int descriptor = open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
        enter(descriptor);
    else
        m_isFile = lstat(m_folder.c_str(), &m_attributes) == 0;
}

/// Takes the descriptor, whatever comes of it.
void FolderWalk::enter(int descriptor)
{
    DIR *folder = fdopendir(descriptor);
    if (folder)
        m_open.push_back({std::unique_ptr<DIR, CloseFolder>(folder), m_folder.size()});
    else
        close(descriptor);
}

void FolderWalk::leave()
{
    m_open.pop_back();
    if (!m_open.empty()) m_folder.resize(m_open.back().pathLength);
}

bool FolderWalk::next()
{
    if (m_open.empty()) return std::exchange(m_isFile, false);
    if (!m_name.empty() && S_ISDIR(m_attributes.st_mode)) {
        const int parent = dirfd(m_open.back().folder.get());
        const int descriptor =
            openat(parent, m_name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (descriptor >= 0) {
            m_folder += '/' + m_name;
            enter(descriptor);
            m_folder.resize(m_open.back().pathLength); // as before, where it could not be opened
        }
    }
    while (!m_open.empty()) {
        const dirent *entry = readdir(m_open.back().folder.get());
        if (!entry) {
            leave();
            continue;
        }
        if (isSelfOrParent(entry->d_name)) continue;
        const int parent = dirfd(m_open.back().folder.get());
        if (fstatat(parent, entry->d_name, &m_attributes, AT_SYMLINK_NOFOLLOW) != 0) continue;
        m_name = entry->d_name;
        return true;
    }
    return false;
}

std::string FolderWalk::path() const { return m_open.empty() ? m_folder : m_folder + '/' + m_name; }
