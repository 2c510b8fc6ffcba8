#include "TreeWalker.h"

#include "Interrupt.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <unistd.h>
#include <vector>

namespace archiver {

namespace {

/// `path` as it is stored: without "/" at its start and end, and without "." and "..".
std::string storedPath(const std::string &path)
{
    std::string stored;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string part = path.substr(start, end - start);
        if (!part.empty() && part != "." && part != "..") stored += (stored.empty() ? "" : "/") + part;
        start = end + 1;
    }
    return stored;
}

std::string lastComponent(const std::string &path) { return path.substr(path.rfind('/') + 1); }

unsigned char listingType(mode_t mode) { return static_cast<unsigned char>(IFTODT(mode)); }

struct Listed {
    std::string name;
    unsigned char type;
};

/// A folder's entries, some at a time: a folder may have millions.
class Listing {
public:
    explicit Listing(DIR *entries) : m_entries(entries, closedir) {}

    /// The next ones in the order of their names; none at the end, or with errno set.
    std::vector<Listed> next()
    {
        constexpr std::size_t most = 50'000;
        std::vector<Listed> listed;
        errno = 0;
        while (listed.size() < most) {
            const dirent *entry = readdir(m_entries.get());
            if (!entry) break;
            const std::string_view name = entry->d_name;
            if (name != "." && name != "..") listed.push_back({std::string(name), entry->d_type});
        }
        std::ranges::sort(listed, {}, &Listed::name);
        return listed;
    }
    [[nodiscard]] int folder() const { return dirfd(m_entries.get()); }

private:
    std::unique_ptr<DIR, int (*)(DIR *)> m_entries;
};

std::optional<std::string> readTarget(int folder, const std::string &entry)
{
    std::string target(4096, '\0');
    for (;;) {
        const ssize_t length = readlinkat(folder, entry.c_str(), target.data(), target.size());
        if (length < 0) return std::nullopt;
        if (static_cast<std::size_t>(length) < target.size()) {
            target.resize(static_cast<std::size_t>(length));
            return target;
        }
        target.resize(target.size() * 2);
    }
}

} // namespace

void TreeWalker::cannotOpen(const std::string &path)
{
    m_diagnostics.reportSystem("Cannot open " + printable(path));
}

std::string TreeWalker::entryName(const std::string &parent, const std::string &entry) const
{
    return m_names == Names::Bare || parent.empty() ? entry : parent + '/' + entry;
}

bool TreeWalker::walk(const std::string &source)
{
    std::string path = source;
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    const std::string stored = storedPath(path);
    const std::string name = m_names == Names::Bare ? lastComponent(stored) : stored;
    return visit({AT_FDCWD, path, DT_UNKNOWN}, path, name);
}

bool TreeWalker::visit(const Place &place, const std::string &path, const std::string &name)
{
    if (interrupted()) return false;
    Place known = place;
    if (place.type == DT_UNKNOWN) {
        struct stat status {};
        if (fstatat(place.folder, place.entry.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return cannotOpen(path), true;
        known.type = listingType(status.st_mode);
    }
    switch (known.type) {
    case DT_REG:
        return visitFile(known, path, name);
    case DT_DIR:
        return visitFolder(known, path, name);
    case DT_LNK:
        return visitLink(known, path, name);
    default:
        return true;
    }
}

bool TreeWalker::visitFile(const Place &place, const std::string &path, const std::string &name)
{
    const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | (place.followed ? 0 : O_NOFOLLOW);
    const FileDescriptor file(openat(place.folder, place.entry.c_str(), flags));
    struct stat status {};
    if (!file || fstat(file.get(), &status) != 0) return cannotOpen(path), true;
    if (!S_ISREG(status.st_mode)) {
        m_diagnostics.report("Cannot open " + printable(path) + ": it was replaced meanwhile");
        return true;
    }
    return m_visitor.file(file.get(), status, name, path);
}

bool TreeWalker::visitFolder(const Place &place, const std::string &path, const std::string &name)
{
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (place.followed ? 0 : O_NOFOLLOW);
    FileDescriptor folder(openat(place.folder, place.entry.c_str(), flags));
    struct stat status {};
    if (!folder || fstat(folder.get(), &status) != 0) return cannotOpen(path), true;
    if (!visitContents(std::move(folder), status, path, name)) return false;
    return name.empty() || m_visitor.folder(status, name); // "/" itself has no name
}

bool TreeWalker::visitContents(FileDescriptor folder, const struct stat &status, const std::string &path,
                               const std::string &name)
{
    DIR *const entries = fdopendir(folder.get());
    if (!entries) return cannotOpen(path), true;
    folder.release(); // closed with the listing
    Listing listing(entries);
    const std::string prefix = path == "/" ? path : path + '/';
    for (;;) {
        const std::vector<Listed> batch = listing.next();
        if (batch.empty() && errno != 0) m_diagnostics.reportSystem("Cannot read " + printable(path));
        if (batch.empty()) return true;
        for (const auto &[entry, type] : batch) {
            if (m_visitor.excluded(status, entry)) continue;
            if (!visit({listing.folder(), entry, type}, prefix + entry, entryName(name, entry))) return false;
        }
    }
}

bool TreeWalker::visitLink(const Place &place, const std::string &path, const std::string &name)
{
    struct stat status {};
    if (m_links == Links::Follow) {
        if (fstatat(place.folder, place.entry.c_str(), &status, 0) != 0) return cannotOpen(path), true;
        // Below the source a link to a folder stays a link: following it might never end.
        const bool follow = !S_ISDIR(status.st_mode) || place.folder == AT_FDCWD;
        if (follow) return visit({place.folder, place.entry, listingType(status.st_mode), true}, path, name);
    }
    const std::optional<std::string> target = readTarget(place.folder, place.entry);
    if (!target || fstatat(place.folder, place.entry.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return cannotOpen(path), true;
    return m_visitor.link(status, name, *target);
}

} // namespace archiver
