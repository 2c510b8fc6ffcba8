#include "settings/UserFile.h"

#include "plist/File.h"
#include "plist/PrivateFile.h"
#include "settings/KeptCopy.h"
#include "settings/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillorentLibrary {

Q_LOGGING_CATEGORY(logSettings, "quillorent.settings")

namespace {

// Folders that are missing are made for the user alone.
bool makeFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir()) return true;
    const QString parent = QFileInfo(folder).path();
    return parent != folder && makeFolder(parent) &&
           QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool makeFolderFor(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (makeFolder(folder)) return true;
    qCWarning(logSettings).noquote() << "The folder can't be made:" << folder;
    return false;
}

} // namespace

void UserFile::makeUsable()
{
    const std::lock_guard lock(m_mutex);
    const QString path = m_path();
    const QFileInfo file(path);
    if (file.exists() && file.isWritable()) return;

    // Read first: without a template, a file that can only be read is better than none.
    QFile source(m_templatePath());
    if (!source.open(QIODevice::ReadOnly)) {
        qCWarning(logSettings).noquote()
            << source.fileName() + QLatin1String(": the template can't be read:") << source.errorString();
        return;
    }
    const QByteArray content = source.readAll();

    if (file.exists() && !moveAside(path)) {
        qCWarning(logSettings).noquote() << path << "may not be written, nor moved out of the way";
        return;
    }
    if (!makeFolderFor(path)) return;
    const QString reason = plist::replacePrivateFile(path, content);
    if (!reason.isEmpty()) qCWarning(logSettings).noquote() << reason;
}

plist::Dictionary UserFile::read()
{
    const std::lock_guard lock(m_mutex);
    return readLocked();
}

plist::Dictionary UserFile::readTemplate() const
{
    const plist::FileContent content = plist::readFile(m_templatePath());
    if (!content.reason.isEmpty()) qCWarning(logSettings).noquote() << content.reason;
    return content.dictionary;
}

void UserFile::save(const plist::Dictionary &dictionary)
{
    const std::lock_guard lock(m_mutex);
    saveLocked(dictionary);
}

void UserFile::change(const std::function<void(const plist::Dictionary &)> &work)
{
    const std::lock_guard lock(m_mutex);
    const plist::Dictionary dictionary = readLocked();
    if (!dictionary) return;
    work(dictionary);
    saveLocked(dictionary);
}

plist::Dictionary UserFile::readLocked()
{
    const plist::FileContent content = plist::readFile(m_path());
    // A start reads each file several times; one message says it.
    if (!content.reason.isEmpty() && content.reason != m_reported)
        qCWarning(logSettings).noquote() << content.reason;
    m_reported = content.reason;
    return content.dictionary;
}

void UserFile::saveLocked(const plist::Dictionary &dictionary) const
{
    if (!dictionary) return;
    const QString path = m_path();
    if (!makeFolderFor(path)) return;

    const bool isThere = QFileInfo::exists(path);
    if (isThere && !plist::readFile(path).dictionary && !keepCopy(path)) {
        qCWarning(logSettings).noquote()
            << path << "can't be read, nor kept beside a new one: it is not saved over";
        return;
    }
    const QString reason = plist::writeFile(path, dictionary);
    if (!reason.isEmpty()) qCWarning(logSettings).noquote() << reason;
}

UserFile &settingsFile()
{
    static UserFile file(settingsPath, settingsTemplatePath);
    return file;
}

UserFile &profilesFile()
{
    static UserFile file(profilesPath, profilesTemplatePath);
    return file;
}

} // namespace quillorentLibrary
