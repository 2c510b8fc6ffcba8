#include "files/MoveTree.h"

#include "files/Entry.h"
#include "files/FileCopy.h"

#include <QCoreApplication>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(files)
};

QString shown(const std::string &path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

QString failure(const std::string &path, int error)
{
    return u"\"%1\": %2"_s.arg(shown(path), qt_error_string(error));
}

std::optional<struct stat> statusOf(int folder, const std::string &name)
{
    struct stat status {};
    if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
    return status;
}

bool isFolder(const std::optional<struct stat> &status) { return status && S_ISDIR(status->st_mode); }

std::vector<std::string> namesIn(int folder)
{
    std::vector<std::string> names;
    const int again = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *entries = again < 0 ? nullptr : fdopendir(again);
    if (!entries) return names;
    while (const dirent *entry = readdir(entries))
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.emplace_back(entry->d_name);
    closedir(entries);
    return names;
}

/// Renames, but never over something that is there. 0, or the error.
int renameToFreeIn(int from, const std::string &name, int to, const std::string &newName)
{
    if (renameat2(from, name.c_str(), to, newName.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // A file system that can't do both in one step.
    if (statusOf(to, newName)) return EEXIST;
    return renameat(from, name.c_str(), to, newName.c_str()) == 0 ? 0 : errno;
}

void giveAttributes(int folder, const struct stat &like)
{
    const timespec times[]{like.st_atim, like.st_mtim};
    fchmod(folder, like.st_mode & 0777);
    futimens(folder, times);
}

} // namespace

/// An open folder, with its path for messages.
class MoveTree::Folder {
public:
    explicit Folder(const std::string &path)
        : m_path(path), m_descriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
    }
    /// One in another; a link to one is none.
    Folder(const Folder &parent, const std::string &name)
        : m_path(parent.m_path + '/' + name)
        , m_descriptor(
              openat(parent.m_descriptor, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
    {
    }
    ~Folder()
    {
        if (m_descriptor >= 0) close(m_descriptor);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] std::string pathOf(const std::string &name) const { return m_path + '/' + name; }

private:
    const std::string m_path;
    const int m_descriptor;
};

/// The folder where something is, and the one where it is to be.
struct MoveTree::Pair {
    const Folder &from;
    const Folder &to;
};

MoveTree::MoveTree(std::string from, std::string to, Events events)
    : m_from(std::move(from)), m_to(std::move(to)), m_events(std::move(events))
{
}

bool MoveTree::has(const std::string &path) const
{
    auto folder = std::make_unique<Folder>(m_from);
    std::size_t begin = 0;
    for (std::size_t end; (end = path.find('/', begin)) != std::string::npos; begin = end + 1)
        folder = std::make_unique<Folder>(*folder, path.substr(begin, end - begin));
    return folder->isOpen() && statusOf(folder->descriptor(), path.substr(begin));
}

QString MoveTree::move(const std::string &path)
{
    const Folder from(m_from);
    const Folder to(m_to);
    if (!to.isOpen()) return failure(m_to, errno);
    return moveBelow({from, to}, path, 0);
}

QString MoveTree::moveBelow(const Pair &parents, const std::string &path, std::size_t from)
{
    const std::size_t end = path.find('/', from);
    const std::string name = path.substr(from, end - from);
    if (end == std::string::npos) return place(parents, name);

    const auto like = statusOf(parents.from.descriptor(), name);
    const Folder source(parents.from, name);
    if (!like || !source.isOpen()) return failure(parents.from.pathOf(name), errno);
    const bool isMade = mkdirat(parents.to.descriptor(), name.c_str(), 0700) == 0;
    const int error = isMade ? 0 : errno;
    const Folder target(parents.to, name);
    if (!target.isOpen() && (error == EEXIST || error == 0))
        return Words::tr("\"%1\" is a link or a file in the destination, where a folder is needed")
            .arg(shown(parents.to.pathOf(name)));
    if (!target.isOpen()) return failure(parents.to.pathOf(name), error);
    QString reason = moveBelow({source, target}, path, end + 1);
    if (isMade) giveAttributes(target.descriptor(), *like);
    return reason;
}

QString MoveTree::place(const Pair &in, const std::string &name)
{
    if (!m_events.goesOn()) return Words::tr("cancelled");
    const auto source = statusOf(in.from.descriptor(), name);
    const auto there = statusOf(in.to.descriptor(), name);
    if (!source) return failure(in.from.pathOf(name), errno);
    if (!there) return rename(in, name);
    if (isFolder(source) && isFolder(there)) return merge(in, name);
    if (haveSameContent(in.from.descriptor(), in.to.descriptor(), name)) return {};
    if (QString reason = keep(in, name); !reason.isEmpty()) return reason;
    return rename(in, name);
}

QString MoveTree::merge(const Pair &in, const std::string &name)
{
    // What comes out of it is renamed: for the owner, whatever the archive says.
    tryToSetRights(in.from.descriptor(), name, 0700);
    const Folder source(in.from, name);
    const Folder target(in.to, name);
    if (!source.isOpen()) return failure(in.from.pathOf(name), errno);
    if (!target.isOpen()) return failure(in.to.pathOf(name), errno);
    for (const std::string &below : namesIn(source.descriptor()))
        if (QString reason = place({source, target}, below); !reason.isEmpty()) return reason;
    return {};
}

QString MoveTree::rename(const Pair &in, const std::string &name)
{
    const auto source = statusOf(in.from.descriptor(), name);
    const bool needsRight = isFolder(source) && (source->st_mode & S_IWUSR) == 0;
    // A folder that changes its place is written to: the way up from it is another one.
    if (needsRight) tryToSetRights(in.from.descriptor(), name, source->st_mode | S_IWUSR);
    const int error = renameToFreeIn(in.from.descriptor(), name, in.to.descriptor(), name);
    const Folder &where = error == 0 ? in.to : in.from;
    if (needsRight) tryToSetRights(where.descriptor(), name, source->st_mode & 0777);
    if (error == EXDEV) return copy(in, name);
    return error == 0 ? QString() : failure(in.to.pathOf(name), error);
}

/// To another disk that lies below the place.
QString MoveTree::copy(const Pair &in, const std::string &name)
{
    const auto source = statusOf(in.from.descriptor(), name);
    if (!isFolder(source)) {
        const int error = copyToFree(in.from.descriptor(), in.to.descriptor(), name);
        return error == 0 ? QString() : failure(in.to.pathOf(name), error);
    }
    if (mkdirat(in.to.descriptor(), name.c_str(), 0700) != 0) return failure(in.to.pathOf(name), errno);
    QString reason = merge(in, name);
    if (const Folder made(in.to, name); made.isOpen()) giveAttributes(made.descriptor(), *source);
    return reason;
}

QString MoveTree::keep(const Pair &in, const std::string &name)
{
    int error = EEXIST;
    for (char letter = 'a'; error == EEXIST && letter <= 'z'; ++letter) {
        const std::string other = letter == 'a' ? "kept-" + name : std::string("kept-") + letter + '-' + name;
        if (statusOf(in.to.descriptor(), other)) continue;
        m_events.keep({shown(in.to.pathOf(name)), shown(in.to.pathOf(other))});
        error = renameToFreeIn(in.to.descriptor(), name, in.to.descriptor(), other);
        if (error != 0) m_events.keptAsItWas();
    }
    return error == 0 ? QString() : failure(in.to.pathOf(name), error);
}
