#include "files/Paths.h"

#include "app/QuillorentAppDelegate.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <filesystem>

namespace {

/// The folder that the text names when it is read as a URL (RFC 3986); none where it is not one.
std::optional<QString> pathOfUrl(const QString &text)
{
    static const QRegularExpression url(u"^(?:[A-Za-z0-9._~:/?#\\[\\]@!$&'()*+,;=-]|%[0-9A-Fa-f]{2})+$"_qs);
    if (!url.match(text).hasMatch()) return std::nullopt;
    return QUrl(text, QUrl::StrictMode).path(QUrl::FullyDecoded);
}

} // namespace

QString quillorentLibrary::standardizePath(const QString &path)
{
    const bool inHome = path == u"~" || path.startsWith(u"~/");
    return path.isEmpty() ? path : QDir::cleanPath(inHome ? QDir::homePath() + path.mid(1) : path);
}

bool quillorentLibrary::folderExists(const QString &path) { return QFileInfo(path).isDir(); }

bool quillorentLibrary::folderIsEmpty(const QString &path)
{
    if (theDelegate().prefCheck02.isOn()) return true;
    const std::optional<QString> folder = pathOfUrl(path);
    return !folder || QDir(*folder).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
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
