#include "files/PrivateFolder.h"

#include "files/Entry.h"
#include "files/Names.h"
#include "files/Room.h"

#include <QFile>
#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString prefix = u".quillorent-"_s;

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

OpenFolder openFolderIn(int parent, const char *name)
{
    const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) return {};
    OpenFolder folder(fdopendir(descriptor));
    if (!folder) close(descriptor);
    return folder;
}

/// Removes what is no folder; gives the names of those that are.
std::vector<std::string> removeFiles(DIR *folder)
{
    std::vector<std::string> folders;
    std::vector<std::string> files;
    while (const dirent *entry = readdir(folder)) {
        const char *name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
        struct stat attributes {};
        if (fstatat(dirfd(folder), name, &attributes, AT_SYMLINK_NOFOLLOW) != 0) continue;
        (S_ISDIR(attributes.st_mode) ? folders : files).emplace_back(name);
    }
    for (const std::string &name : files)
        unlinkat(dirfd(folder), name.c_str(), 0);
    return folders;
}

/// Gives it a name in the folder above that nothing there has.
bool bringUp(int folder, const std::string &name, int top, unsigned &number)
{
    tryToSetRights(folder, name, 0700); // its own "..", too, is written to
    for (;;) {
        const std::string to = std::string("~").append(std::to_string(++number));
        if (faccessat(top, to.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) continue;
        return renameat(folder, name.c_str(), top, to.c_str()) == 0;
    }
}

/// Empties it one level after another, what is below coming up: neither a path's length nor the number of
/// open folders sets a limit to how deep it may be. False where something stays.
bool emptyFolder(DIR *top)
{
    unsigned number = 0;
    for (;;) {
        rewinddir(top);
        const std::vector<std::string> folders = removeFiles(top);
        if (folders.empty()) return true;
        bool isAnyGone = false;
        for (const std::string &name : folders) {
            tryToSetRights(dirfd(top), name, 0700);
            if (const OpenFolder folder = openFolderIn(dirfd(top), name.c_str()))
                for (const std::string &below : removeFiles(folder.get()))
                    isAnyGone = bringUp(dirfd(folder.get()), below, dirfd(top), number) || isAnyGone;
            isAnyGone = unlinkat(dirfd(top), name.c_str(), AT_REMOVEDIR) == 0 || isAnyGone;
        }
        if (!isAnyGone) return false;
    }
}

} // namespace

QString planPrivateFolder(const QString &folder)
{
    const quint64 number = QRandomGenerator::system()->generate64();
    return quillorentLibrary::joined(folder, prefix + QString::number(number, 16).rightJustified(16, u'0'));
}

int makePrivateFolder(const QString &path)
{
    return mkdir(QFile::encodeName(path).constData(), 0700) == 0 ? 0 : errno;
}

bool isPrivateFolder(const QString &path)
{
    const QString name = quillorentLibrary::lastPathComponent(path);
    if (!name.startsWith(prefix) || name.size() != prefix.size() + 16) return false;
    struct stat attributes {};
    if (lstat(QFile::encodeName(path).constData(), &attributes) != 0 || !S_ISDIR(attributes.st_mode))
        return false;
    const bool isOwn = attributes.st_uid == geteuid() && (attributes.st_mode & 0777) == 0700;
    return isOwn || isOfOtherSystems(path);
}

bool removePrivateFolder(const QString &path, const std::optional<FileIdentity> &identity)
{
    const QByteArray encoded = QFile::encodeName(path);
    const auto there = entryAt(path);
    if (!there) return true;
    if (!isPrivateFolder(path)) return false;
    // Where numbers change, its own name, which is of chance, has to do.
    if (identity && identity->inode != there->identity.inode && !isOfOtherSystems(path)) return false;
    if (identity)
        if (const OpenFolder folder = openFolderIn(AT_FDCWD, encoded.constData())) emptyFolder(folder.get());
    return rmdir(encoded.constData()) == 0;
}
