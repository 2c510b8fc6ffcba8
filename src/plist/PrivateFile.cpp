#include "plist/PrivateFile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <optional>

namespace plist {

namespace {

// As many as the Linux kernel follows before it calls them a loop.
constexpr int maximumLinks = 40;

// The end of a chain of links need not exist: a link into a folder of kept settings may come before its file.
std::optional<QString> targetOf(const QString &path)
{
    QFileInfo file(path);
    for (int links = 0; links < maximumLinks && file.isSymLink(); ++links)
        file.setFile(file.symLinkTarget());
    if (file.isSymLink()) return std::nullopt;
    return file.filePath();
}

} // namespace

QString replacePrivateFile(const QString &path, const QByteArray &content)
{
    const auto target = targetOf(path);
    if (!target) return u"%1: it can't be written: its links lead in a circle"_qs.arg(path);
    QSaveFile file(*target);
    const auto failure = [&] { return u"%1: it can't be written: %2"_qs.arg(path, file.errorString()); };

    if (!file.open(QIODevice::WriteOnly)) return failure();
    // Before anything is in it: a new file would have the process's mode, a replaced one that of the old.
    if (!file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) return failure();
    // Flushed here: commit() overlooks what fails on the way out of the buffer, and would put half a file in
    // place.
    if (file.write(content) != content.size() || !file.flush()) return failure();
    return file.commit() ? QString{} : failure();
}

} // namespace plist
