#pragma once

#include "Diagnostics.h"
#include "Headers.h"

#include <fcntl.h>
#include <map>

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

/// For utimensat() and futimens(): times that stay as they are where there is none.
[[nodiscard]] inline std::array<timespec, 2> fileTimes(const std::optional<Timestamp> &modified)
{
    timespec time{};
    time.tv_nsec = UTIME_OMIT;
    if (modified) {
        time.tv_sec = modified->seconds;
        time.tv_nsec = modified->nanoseconds;
    }
    return {time, time};
}

/// The modes and times that folders are to have when all is in them. The room and the time that this takes
/// grow with the lengths of the names, however deep the folders are: an archive may have a hundred thousand
/// in one name.
class FolderAttributes {
public:
    struct State {
        unsigned mode = 0;
        std::optional<Timestamp> modified;
    };

    /// For the folder with that path.
    void set(std::span<const std::string> path, const State &state)
    {
        std::size_t folder = 0;
        for (const std::string &name : path)
            folder = child(folder, name);
        m_folders[folder].state = state;
    }

    /// For the folders on that path behind the first `above`, where they have none yet.
    void setMissing(std::span<const std::string> path, std::size_t above, const State &state)
    {
        std::size_t folder = 0;
        for (std::size_t depth = 0; depth < path.size(); ++depth) {
            folder = child(folder, path[depth]);
            if (depth >= above && !m_folders[folder].state) m_folders[folder].state = state;
        }
    }

    /// Gives them to the folders below the open folder `root`, from the deepest up: one that its owner may
    /// not enter has to wait for what is in it. What fails is reported.
    void apply(int root, Diagnostics &diagnostics) const
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
            base::FileDescriptor opened(
                openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
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
            const bool isDone = open.openParent() &&
                                (!state || (futimens(open.last(), fileTimes(state->modified).data()) == 0 &&
                                            fchmod(open.last(), state->mode) == 0));
            const std::string name = level.name;
            way.pop_back();
            if (!isDone) complain(name);
            if (!open.shorten(way.size()) && !way.empty()) return complain(name);
        }
    }

private:
    struct Folder {
        std::map<std::string, std::size_t> children; // indices of m_folders
        std::optional<State> state;
    };
    /// A folder on apply()'s way down, and the child that comes next.
    struct Level {
        std::string name;
        const Folder *folder;
        std::map<std::string, std::size_t>::const_iterator next;
    };

    std::size_t child(std::size_t parent, const std::string &name)
    {
        const auto [place, isNew] = m_folders[parent].children.try_emplace(name, m_folders.size());
        const std::size_t index = place->second;
        if (isNew) m_folders.emplace_back();
        return index;
    }

    std::vector<Folder> m_folders{1}; // `root` is the first
};

} // namespace archiver
