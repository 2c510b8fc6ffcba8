#include "TreeWalker.h"

#include "EntryName.h"
#include "Folders.h"

#include <algorithm>
#include <dirent.h>

namespace archiver {

namespace {

/// `path` as it is stored: without "/" at its start and end, and without "." and "..".
std::string storedPath(const std::string &path)
{
    std::string stored;
    for (const std::string &part : componentsOf(path))
        if (part != "..") stored += (stored.empty() ? "" : "/") + part;
    return stored;
}

unsigned char listingType(mode_t mode) { return static_cast<unsigned char>(IFTODT(mode)); }

struct Listed {
    std::string name;
    unsigned char type;
};

/// A folder's entries, some at a time: a folder may have millions.
class Listing {
public:
    /// False with errno set.
    [[nodiscard]] bool open(int folder)
    {
        base::FileDescriptor own(fcntl(folder, F_DUPFD_CLOEXEC, 0));
        m_entries.reset(own ? fdopendir(own.get()) : nullptr);
        if (m_entries) own.release(); // closed with the listing
        return m_entries != nullptr;
    }

    /// The next ones in the order of their names; none at the end, or with errno set.
    std::vector<Listed> next()
    {
        constexpr std::size_t most = 50'000;
        std::vector<Listed> listed;
        errno = m_error;
        while (m_entries && listed.size() < most) {
            errno = 0;
            const dirent *entry = readdir(m_entries.get());
            m_error = errno;
            if (!entry) m_entries.reset(); // few folders need to be open twice while what is in them is read
            if (!entry) break;
            const std::string_view name = entry->d_name;
            if (name != "." && name != "..") listed.push_back({std::string(name), entry->d_type});
        }
        std::ranges::sort(listed, {}, &Listed::name);
        errno = m_error;
        return listed;
    }

private:
    std::unique_ptr<DIR, int (*)(DIR *)> m_entries{nullptr, closedir};
    int m_error = 0;
};

std::optional<std::string> readTarget(int folder, const std::string &entry)
{
    std::array<char, 65536> target; // what the largest page holds, which no link fills
    const ssize_t length = readlinkat(folder, entry.c_str(), target.data(), target.size());
    return length < 0
               ? std::nullopt
               : std::optional<std::string>(std::in_place, target.data(), static_cast<std::size_t>(length));
}

class TreeWalker {
public:
    TreeWalker(ArchiveWriter &writer, const OutputVolumes &output, const TreeOptions &options,
               Diagnostics &diagnostics)
        : m_writer(writer), m_output(output), m_options(options), m_diagnostics(diagnostics)
    {
    }

    bool walk(const std::string &source)
    {
        m_path = source;
        while (m_path.size() > 1 && m_path.back() == '/')
            m_path.pop_back();
        m_name = storedPath(m_path);
        // A slash behind a link leads through it, as everywhere.
        struct stat status {};
        const bool leadsThrough =
            m_path.size() < source.size() && lstat(m_path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
        bool goesOn =
            leadsThrough ? visit({AT_FDCWD, m_path + '/', DT_DIR}) : visit({AT_FDCWD, m_path, DT_UNKNOWN});
        while (goesOn && !m_levels.empty())
            goesOn = goOn();
        return goesOn;
    }

private:
    struct Place {
        int folder;            ///< open
        std::string entry;     ///< in that folder
        unsigned char type;    ///< as in a folder's listing; DT_UNKNOWN where it isn't known
        bool followed = false; ///< the target of a link
    };
    /// A folder on the way, and what is left to visit in it.
    struct Level {
        struct stat status;
        std::size_t pathLength;
        std::size_t nameLength;
        Listing listing{};
        std::vector<Listed> batch{};
        std::size_t next = 0;
    };

    bool goOn()
    {
        Level &level = m_levels.back();
        m_path.resize(level.pathLength);
        m_name.resize(level.nameLength);
        if (level.next == level.batch.size()) {
            level.batch = level.listing.next();
            level.next = 0;
            if (level.batch.empty() && errno != 0)
                m_diagnostics.reportSystem("Cannot read " + printable(m_path));
            if (level.batch.empty()) return leaveFolder();
        }
        const auto &[entry, type] = level.batch[level.next++];
        if (m_output.owns(level.status, entry)) return true;
        if (m_path != "/") m_path += '/';
        m_path += entry;
        if (!m_name.empty()) m_name += '/';
        m_name += entry;
        return visit({m_folders.last(), entry, type});
    }

    bool leaveFolder()
    {
        const struct stat status = m_levels.back().status;
        m_levels.pop_back();
        if (!m_folders.shorten(m_levels.size())) return cannotOpen(), false;
        const std::string name = storedName();
        return name.empty() || m_writer.addFolder(status, name); // "/" itself has no name
    }

    bool visit(const Place &place)
    {
        if (interrupted()) return false;
        Place known = place;
        if (place.type == DT_UNKNOWN) {
            struct stat status {};
            if (fstatat(place.folder, place.entry.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
                return cannotOpen(), true;
            known.type = listingType(status.st_mode);
        }
        if (known.type == DT_REG) return visitFile(known);
        if (known.type == DT_LNK) return visitLink(known);
        if (known.type == DT_DIR)
            enterFolder(known);
        else if (place.folder == AT_FDCWD) // whoever names it wants it
            m_diagnostics.report("Cannot add " + printable(m_path) + ": it is " +
                                 base::kindOf(static_cast<mode_t>(DTTOIF(known.type))) +
                                 ", and archives hold files, folders and links only");
        return true;
    }

    bool visitFile(const Place &place)
    {
        const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | (place.followed ? 0 : O_NOFOLLOW);
        const base::FileDescriptor file(openat(place.folder, place.entry.c_str(), flags));
        struct stat status {};
        if (!file || fstat(file.get(), &status) != 0) return cannotOpen(), true;
        if (!S_ISREG(status.st_mode)) {
            m_diagnostics.report("Cannot open " + printable(m_path) + ": it was replaced meanwhile");
            return true;
        }
        return m_writer.addFile(file.get(), status, storedName(), m_path);
    }

    void enterFolder(const Place &place)
    {
        const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (place.followed ? 0 : O_NOFOLLOW);
        base::FileDescriptor folder(openat(place.folder, place.entry.c_str(), flags));
        Level level{{}, m_path.size(), m_name.size()};
        const bool isOpen =
            folder && fstat(folder.get(), &level.status) == 0 && level.listing.open(folder.get());
        if (!isOpen || !m_folders.push(std::move(folder))) return cannotOpen();
        m_levels.push_back(std::move(level));
    }

    bool visitLink(const Place &place)
    {
        struct stat status {};
        if (!m_options.keepLinks) {
            if (fstatat(place.folder, place.entry.c_str(), &status, 0) != 0) return cannotOpen(), true;
            // Below the source a link to a folder stays a link: following it might never end.
            const bool follow = !S_ISDIR(status.st_mode) || place.folder == AT_FDCWD;
            if (follow) return visit({place.folder, place.entry, listingType(status.st_mode), true});
        }
        const std::optional<std::string> target = readTarget(place.folder, place.entry);
        if (!target || fstatat(place.folder, place.entry.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return cannotOpen(), true;
        return m_writer.addLink(status, storedName(), *target);
    }

    void cannotOpen() { m_diagnostics.reportSystem("Cannot open " + printable(m_path)); }

    [[nodiscard]] std::string storedName() const
    {
        return m_options.bareNames ? base::nameIn(m_name) : m_name;
    }

    ArchiveWriter &m_writer;
    const OutputVolumes &m_output;
    const TreeOptions &m_options;
    Diagnostics &m_diagnostics;
    std::string m_path; ///< of the present entry, as it is found
    std::string m_name; ///< as it is stored, with its path
    FolderChain m_folders;
    std::vector<Level> m_levels; ///< what is left to do in those folders
};

} // namespace

bool addTree(const std::string &source, const TreeOptions &options, ArchiveWriter &writer,
             const OutputVolumes &output, Diagnostics &diagnostics)
{
    return TreeWalker(writer, output, options, diagnostics).walk(source);
}

} // namespace archiver
