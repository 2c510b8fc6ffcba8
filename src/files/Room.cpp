#include "files/Room.h"

#include "files/Entry.h"
#include "files/Names.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(files)
};

} // namespace

std::optional<qint64> roomFree(const QString &folder)
{
    const QStorageInfo disk(folder);
    return disk.isValid() && disk.isReady() ? std::optional(disk.bytesAvailable()) : std::nullopt;
}

QString whyTooLittleRoom(const QString &folder, qint64 bytesNeeded)
{
    const std::optional<qint64> free = roomFree(folder);
    if (!free || *free >= bytesNeeded) return {};
    const auto size = [](qint64 bytes) {
        return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
    };
    return Words::tr("There may not be enough room: about %1 are needed, and %2 are free in \"%3\".")
        .arg(size(bytesNeeded), size(*free), folder);
}

QString whyNotWritable(const QString &folder)
{
    if (access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0) return {};
    return Words::tr(
               "Nothing may be written into \"%1\": %2. Choose another folder, or change its permissions.")
        .arg(folder, qt_error_string(errno));
}

bool isOfOtherSystems(const QString &path)
{
    // statfs(2): FAT, exFAT, the two drivers of NTFS, the two of SMB, and FUSE, which has drivers of all of
    // them.
    constexpr std::array systems{0x4d44L,     0x2011bab0L, 0x5346544eL, 0x7366746eL,
                                 0xff534d42L, 0xfe534d42L, 0x65735546L};
    struct statfs status {};
    if (statfs(QFile::encodeName(path).constData(), &status) != 0) return false;
    return std::find(systems.begin(), systems.end(), long(status.f_type)) != systems.end();
}

bool mayIgnoreCase(const QString &folder)
{
    if (!isOfOtherSystems(folder)) return false;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const auto entry = entryAt(entries.next());
        const QString name = entries.fileName();
        const QString other = name == name.toUpper() ? name.toLower() : name.toUpper();
        if (!entry || other == name) continue;
        const auto found = entryAt(quillorentLibrary::joined(folder, other));
        return found && found->identity.isSameFile(entry->identity);
    }
    return true;
}
