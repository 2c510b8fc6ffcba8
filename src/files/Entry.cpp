#include "files/Entry.h"

#include <QCoreApplication>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(files)
};

FileEntry::Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode)) return FileEntry::Kind::File;
    if (S_ISDIR(mode)) return FileEntry::Kind::Folder;
    return S_ISLNK(mode) ? FileEntry::Kind::Link : FileEntry::Kind::Other;
}

} // namespace

std::optional<FileEntry> entryAt(const QString &path)
{
    struct stat status {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
    constexpr qint64 nanoseconds = 1'000'000'000;
    return FileEntry{.kind = kindOf(status.st_mode),
                     .identity = {.device = status.st_dev,
                                  .inode = status.st_ino,
                                  .bytes = status.st_size,
                                  .modified = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec},
                     .changed = status.st_ctim.tv_sec};
}

QString describeKind(FileEntry::Kind kind)
{
    switch (kind) {
    case FileEntry::Kind::File:
        return Words::tr("a file");
    case FileEntry::Kind::Folder:
        return Words::tr("a folder");
    case FileEntry::Kind::Link:
        return Words::tr("a link");
    case FileEntry::Kind::Other:
        break;
    }
    return Words::tr("a pipe, a socket or a device");
}

void tryToSetRights(int folder, const std::string &name, mode_t rights)
{
    [[maybe_unused]] const int result = fchmodat(folder, name.c_str(), rights, 0);
}

QString syncToDisk(const QString &path)
{
    // Not blocking: a pipe may have come into the file's place.
    const int file =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return qt_error_string(errno);
    const bool isSynced = fsync(file) == 0 || errno == EINVAL; // EINVAL: it knows no such thing
    const QString reason = isSynced ? QString() : qt_error_string(errno);
    close(file);
    return reason;
}
