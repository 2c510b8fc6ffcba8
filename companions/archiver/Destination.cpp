#include "Destination.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace archiver {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

bool makeFolders(const std::string &path)
{
    for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string part = path.substr(0, slash);
        if (mkdir(part.c_str(), 0777) != 0 && errno != EEXIST) {
            struct stat status {};
            if (stat(part.c_str(), &status) != 0)
                return false; // a folder that is there may be on a read-only system
        }
        if (slash == std::string::npos) return true;
    }
}

} // namespace

Destination::Destination(const Destination &other) : m_root(fcntl(other.m_root.get(), F_DUPFD_CLOEXEC, 0)) {}

bool Destination::open(const std::string &path)
{
    m_root = base::FileDescriptor(::open(path.c_str(), folderFlags));
    if (m_root || errno != ENOENT) return static_cast<bool>(m_root);
    if (!makeFolders(path)) return false;
    m_root = base::FileDescriptor(::open(path.c_str(), folderFlags));
    return static_cast<bool>(m_root);
}

std::optional<std::vector<std::string>> Destination::components(const std::string &name)
{
    if (name.find('\0') != std::string::npos) return std::nullopt;
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find('/', start), name.size());
        std::string part = name.substr(start, end - start);
        if (part == "..") return std::nullopt;
        if (!part.empty() && part != ".") parts.push_back(std::move(part));
        start = end + 1;
    }
    if (parts.empty()) return std::nullopt;
    return parts;
}

int Destination::parentOf(const std::vector<std::string> &components)
{
    const std::size_t depth = components.size() - 1;
    std::size_t common = 0;
    while (common < std::min(depth, m_names.size()) && m_names[common] == components[common])
        ++common;
    // Where a folder was moved away meanwhile, the way begins at the root again.
    if (!m_chain.shorten(common)) common = 0;
    m_names.resize(common);
    m_made = 0;
    while (m_names.size() < depth)
        if (!descend(components[m_names.size()])) return -1;
    return last();
}

bool Destination::descend(const std::string &name)
{
    const int from = last();
    base::FileDescriptor folder(openat(from, name.c_str(), folderFlags | O_NOFOLLOW));
    if (!folder && errno == ENOENT) {
        // Another archive that is extracted here at the same time may have the same folder.
        const bool isMade = mkdirat(from, name.c_str(), 0700) == 0;
        if (!isMade && errno != EEXIST) return false;
        folder = base::FileDescriptor(openat(from, name.c_str(), folderFlags | O_NOFOLLOW));
        if (!folder) return false;
        if (isMade) ++m_made;
    }
    if (!folder || !m_chain.push(std::move(folder))) return false;
    m_names.push_back(name);
    return true;
}

} // namespace archiver
