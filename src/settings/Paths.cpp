#include "settings/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quillorentLibrary {

namespace {

QString &resourceFolderOverride()
{
    static QString folder;
    return folder;
}

} // namespace

QString preferencesFolder()
{
#ifdef Q_OS_MACOS
    return QDir::cleanPath(QDir::home().filePath(u"Library/Preferences"_s));
#else
    const QString configured = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    return QDir::cleanPath(QDir::isAbsolutePath(configured) ? configured
                                                            : QDir::home().filePath(u".config"_s));
#endif
}

QString settingsPath()
{
    return QDir(preferencesFolder()).filePath(u"com.brolvanek.Quillorent.config.plist"_s);
}

QString profilesPath()
{
    return QDir(preferencesFolder()).filePath(u"com.brolvanek.Quillorent.profiles.plist"_s);
}

QString resourceFolder()
{
    if (!resourceFolderOverride().isEmpty()) return resourceFolderOverride();
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/quillorent"_s);
}

QString settingsTemplatePath() { return QDir(resourceFolder()).filePath(u"config.plist"_s); }

QString profilesTemplatePath() { return QDir(resourceFolder()).filePath(u"profiles.plist"_s); }

QString companionFolder() { return QDir::cleanPath(resourceFolder() + u"/../../libexec/quillorent"_s); }

bool makePrivateFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir()) return true;
    const QString parent = QFileInfo(folder).path();
    return parent != folder && makePrivateFolder(parent) &&
           QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void setResourceFolder(const QString &folder) { resourceFolderOverride() = folder; }

} // namespace quillorentLibrary
