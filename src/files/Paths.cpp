#include "files/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>

QString quillorentLibrary::standardizePath(const QString &path)
{
    const bool inHome = path == u"~" || path.startsWith(u"~/");
    return path.isEmpty() ? path : QDir::cleanPath(inHome ? QDir::homePath() + path.mid(1) : path);
}

bool quillorentLibrary::isInside(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

bool quillorentLibrary::folderExists(const QString &path) { return QFileInfo(path).isDir(); }

bool quillorentLibrary::holdsNothing(const QString &folder)
{
    return QDir(folder).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

QStringList quillorentLibrary::translatePath(const QStringList &paths)
{
    QStringList existing;
    for (const QString &path : paths) {
        const QString standardized = standardizePath(path);
        if (QFileInfo::exists(standardized)) existing.append(standardized);
    }
    return existing;
}

std::optional<QString> quillorentLibrary::stringByConditionallyResolvingSymlink(const QString &path)
{
    std::error_code notALink;
    const std::filesystem::path target = std::filesystem::read_symlink(path.toStdU16String(), notALink);
    if (notALink) return path;
    return target.is_absolute() ? std::optional(QString::fromStdU16String(target.u16string())) : std::nullopt;
}

std::optional<QString> quillorentLibrary::stringByConditionallyResolvingAlias(const QString &)
{
    // Alias files belong to one platform's file manager; nothing on this one makes or reads them.
    return std::nullopt;
}
