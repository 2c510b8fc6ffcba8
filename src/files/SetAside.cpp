#include "files/SetAside.h"

#include "files/Entry.h"
#include "files/Names.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(files)
};

QByteArray encoded(const QString &path) { return QFile::encodeName(path); }

bool isTaken(const QString &path) { return entryAt(path).has_value(); }

QString folderOf(const QString &path) { return QFileInfo(path).path(); }

Aside planOne(const QString &path, const QString &prefix)
{
    const QString name = quillorentLibrary::lastPathComponent(path);
    return {path, quillorentLibrary::joined(folderOf(path), prefix + name)};
}

bool isTooLong(const Aside &aside)
{
    return encoded(quillorentLibrary::lastPathComponent(aside.to)).size() > NAME_MAX;
}

int linkTo(const Aside &aside)
{
    const int result =
        linkat(AT_FDCWD, encoded(aside.from).constData(), AT_FDCWD, encoded(aside.to).constData(), 0);
    return result == 0 ? 0 : errno;
}

bool isSameFile(const QString &path, const QString &other)
{
    const auto one = entryAt(path);
    const auto two = entryAt(other);
    return one && two && one->identity.isSameFile(two->identity);
}

/// Second names for all, then the first ones go. False where the file system has no second names, or one of
/// them failed; then there are none.
bool setAsideByLinks(const QList<Aside> &files)
{
    for (qsizetype index = 0; index < files.size(); ++index) {
        if (linkTo(files[index]) == 0) continue;
        for (const Aside &linked : files.first(index))
            unlink(encoded(linked.to).constData());
        return false;
    }
    static_cast<void>(syncToDisk(folderOf(files.first().to)));
    for (const Aside &aside : files)
        unlink(encoded(aside.from).constData());
    return true;
}

} // namespace

int renameToFree(const QString &from, const QString &to)
{
    const QByteArray source = encoded(from);
    const QByteArray target = encoded(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // A file system that can't do both in one step.
    if (isTaken(to)) return EEXIST;
    return rename(source.constData(), target.constData()) == 0 ? 0 : errno;
}

std::optional<QList<Aside>> planAside(const QStringList &paths, const QString &word)
{
    // Letters, not digits: a digit in front could make a first volume look like a later one.
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const QString prefix = letter == 'a' ? word + u'-' : word + u'-' + QLatin1Char(letter) + u'-';
        QList<Aside> files;
        for (const QString &path : paths)
            files.append(planOne(path, prefix));
        if (std::any_of(files.begin(), files.end(), isTooLong)) return std::nullopt;
        const bool areFree =
            std::none_of(files.begin(), files.end(), [](const Aside &aside) { return isTaken(aside.to); });
        if (areFree) return files;
    }
    return std::nullopt;
}

QString setAside(const QList<Aside> &files)
{
    if (files.isEmpty() || setAsideByLinks(files)) return {};
    for (qsizetype index = 0; index < files.size(); ++index) {
        const int error = renameToFree(files[index].from, files[index].to);
        if (error == 0) continue;
        static_cast<void>(putBack(files.first(index)));
        return qt_error_string(error);
    }
    return {};
}

QString putBack(const QList<Aside> &files)
{
    // All or none: half a set opens as little as none does, and has two names to look for.
    for (const Aside &aside : files)
        if (const auto there = entryAt(aside.from); there && there->kind == FileEntry::Kind::Folder)
            return Words::tr("\"%1\" is a folder").arg(aside.from);
    QList<Aside> back;
    for (const Aside &aside : files) {
        if (!isTaken(aside.to)) continue;
        // Two names of one file: rename() would leave both.
        if (isSameFile(aside.from, aside.to)) {
            unlink(encoded(aside.to).constData());
            continue;
        }
        if (rename(encoded(aside.to).constData(), encoded(aside.from).constData()) != 0) {
            const QString reason = qt_error_string(errno);
            for (const Aside &done : back)
                rename(encoded(done.from).constData(), encoded(done.to).constData());
            return reason;
        }
        back.append(aside);
    }
    return {};
}

void dropAside(const QList<Aside> &files)
{
    for (const Aside &aside : files)
        unlink(encoded(aside.to).constData());
}
