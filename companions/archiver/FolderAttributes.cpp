#include "FolderAttributes.h"

#include "File.h"
#include "FileTimes.h"

#include <fcntl.h>

namespace archiver {

/// A folder on apply()'s way down, open, and the child that comes next.
struct FolderAttributes::Level {
    std::string name;
    const Folder *folder;
    FileDescriptor descriptor;
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
    const auto enter = [&](int parent, const std::string &name, const Folder &folder) {
        constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
        way.push_back(
            {name, &folder, FileDescriptor(openat(parent, name.c_str(), flags)), folder.children.begin()});
        return static_cast<bool>(way.back().descriptor);
    };
    const auto leave = [&](bool done) {
        std::string path;
        for (std::size_t depth = 1; !done && depth < way.size(); ++depth)
            path += (depth > 1 ? "/" : "") + way[depth].name;
        if (!done) diagnostics.reportSystem("Cannot set the attributes of folder " + printable(path));
        way.pop_back();
    };
    if (!enter(root, ".", m_folders.front())) leave(false);
    while (!way.empty()) {
        Level &level = way.back();
        const int descriptor = level.descriptor.get();
        if (level.next != level.folder->children.end()) {
            const auto &[name, index] = *level.next++;
            if (!enter(descriptor, name, m_folders[index])) leave(false);
        } else {
            const std::optional<State> &state = level.folder->state;
            leave(!state || (futimens(descriptor, fileTimes(state->modified).data()) == 0 &&
                             fchmod(descriptor, state->mode) == 0));
        }
    }
}

} // namespace archiver
