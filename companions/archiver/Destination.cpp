#include "Destination.h"

#include "EntryName.h"

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
    std::vector<std::string> parts = componentsOf(name);
    const bool isUsable =
        !parts.empty() && name.find('\0') == std::string::npos && std::ranges::count(parts, "..") == 0;
    return isUsable ? std::optional(std::move(parts)) : std::nullopt;
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

/// A folder on apply()'s way down, and the child that comes next.
struct FolderAttributes::Level {
    std::string name;
    const Folder *folder;
    std::map<std::string, std::size_t>::const_iterator next;
};

std::size_t FolderAttributes::child(std::size_t parent, const std::string &name)
{
    const auto [place, isNew] = m_folders[parent].children.try_emplace(name, m_folders.size());
    const std::size_t index = place->second;
    if (isNew) m_folders.emplace_back();
    return index;
}

void FolderAttributes::set(std::span<const std::string> path, const State &state)
{
    std::size_t folder = 0;
    for (const std::string &name : path)
        folder = child(folder, name);
    m_folders[folder].state = state;
}

void FolderAttributes::setMissing(std::span<const std::string> path, std::size_t above, const State &state)
{
    std::size_t folder = 0;
    for (std::size_t depth = 0; depth < path.size(); ++depth) {
        folder = child(folder, path[depth]);
        if (depth >= above && !m_folders[folder].state) m_folders[folder].state = state;
    }
}

void FolderAttributes::apply(int root, Diagnostics &diagnostics) const
{
    std::vector<Level> way;
    FolderChain open;
    const auto complain = [&](const std::string &name) {
        std::string path;
        for (std::size_t depth = 1; depth < way.size(); ++depth)
            path += way[depth].name + '/';
        diagnostics.reportSystem("Cannot set the attributes of folder " + printable(path + name));
    };
    const auto enter = [&](int parent, const std::string &name, const Folder &folder) {
        base::FileDescriptor opened(openat(parent, name.c_str(), folderFlags | O_NOFOLLOW));
        if (!opened || !open.push(std::move(opened))) return complain(name);
        way.push_back({name, &folder, folder.children.begin()});
    };
    enter(root, ".", m_folders.front());
    while (!way.empty()) {
        Level &level = way.back();
        if (level.next != level.folder->children.end()) {
            const auto &[name, index] = *level.next++;
            enter(open.last(), name, m_folders[index]);
            continue;
        }
        // The one above comes first: there may be no way back once this one has its mode.
        const std::optional<State> &state = level.folder->state;
        const bool isDone =
            open.openParent() && (!state || (futimens(open.last(), fileTimes(state->modified).data()) == 0 &&
                                             fchmod(open.last(), state->mode) == 0));
        const std::string name = level.name;
        way.pop_back();
        if (!isDone) complain(name);
        if (!open.shorten(way.size()) && !way.empty()) return complain(name);
    }
}

} // namespace archiver
