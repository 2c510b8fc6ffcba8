#include "files/Sizes.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

/// Takes the descriptor, whatever comes of it.
Folder openFolder(int descriptor)
{
    DIR *folder = fdopendir(descriptor);
    if (!folder) close(descriptor);
    return Folder(folder);
}

/// None where it is no folder any more, or can't be opened.
Folder openBelow(const Folder &parent, const char *name)
{
    const int descriptor = openat(dirfd(parent.get()), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    return descriptor < 0 ? Folder() : openFolder(descriptor);
}

bool isSelfOrParent(const char *name) { return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0; }

// Names stay bytes from entry to entry: one that is not UTF-8 would be lost in a QString. Walking by open
// folders instead of paths also spares the kernel the look-up of every parent, and has no limit on a path's
// length.
quint64 sizeBelow(Folder top, const std::function<bool()> &goesOn)
{
    constexpr quint64 entriesBetweenLooks = 256;
    quint64 bytes = 0;
    quint64 entries = 0;
    std::vector<Folder> open;
    open.push_back(std::move(top));
    while (!open.empty()) {
        const dirent *entry = readdir(open.back().get());
        if (!entry) {
            open.pop_back();
            continue;
        }
        if (isSelfOrParent(entry->d_name)) continue;
        if (++entries % entriesBetweenLooks == 0 && !goesOn()) break;
        struct stat attributes {};
        if (fstatat(dirfd(open.back().get()), entry->d_name, &attributes, AT_SYMLINK_NOFOLLOW) != 0) continue;
        bytes += static_cast<quint64>(attributes.st_size);
        if (!S_ISDIR(attributes.st_mode)) continue;
        if (Folder folder = openBelow(open.back(), entry->d_name)) open.push_back(std::move(folder));
    }
    return bytes;
}

} // namespace

quint64 quillorentLibrary::calculateSize(const QString &path)
{
    return calculateSize(path, [] { return true; });
}

quint64 quillorentLibrary::calculateSize(const QString &path, const std::function<bool()> &goesOn)
{
    const QByteArray name = path.toUtf8();
    const int descriptor = open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        Folder folder = openFolder(descriptor);
        return folder ? sizeBelow(std::move(folder), goesOn) : 0;
    }
    struct stat attributes {};
    return lstat(name.constData(), &attributes) == 0 ? static_cast<quint64>(attributes.st_size) : 0;
}
