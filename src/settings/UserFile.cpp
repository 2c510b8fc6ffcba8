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

/// Gives the reason where it can't be made, else an empty text.
QString makeFolderFor(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    return makeFolder(folder) ? QString() : u"The folder can't be made: "_qs + folder;
}

void logReason(const QString &reason)
{
    if (!reason.isEmpty()) qCWarning(logSettings).noquote() << reason;
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
    const QString reason = makeFolderFor(path);
    logReason(reason.isEmpty() ? plist::replacePrivateFile(path, content) : reason);
}

plist::Dictionary UserFile::read()
{
    const std::lock_guard lock(m_mutex);
    return readLocked();
}

plist::Dictionary UserFile::readTemplate() const
{
    const plist::FileContent content = plist::readFile(m_templatePath());
    logReason(content.reason);
    return content.dictionary;
}

QString UserFile::save(const plist::Dictionary &dictionary)
{
    const std::lock_guard lock(m_mutex);
    return saveLocked(dictionary);
}

bool UserFile::holds(const plist::Dictionary &dictionary)
{
    const std::lock_guard lock(m_mutex);
    return m_content == dictionary;
}

void UserFile::change(const std::function<void(const plist::Dictionary &)> &work)
{
    const std::lock_guard lock(m_mutex);
    const plist::Dictionary dictionary = readLocked();
    if (!dictionary) return;
    work(dictionary);
    static_cast<void>(saveLocked(dictionary)); // logged; the next start tries again
}

plist::Dictionary UserFile::readLocked()
{
    const plist::FileContent content = plist::readFile(m_path());
    // A start reads each file several times; one message says it.
    if (!content.reason.isEmpty() && content.reason != m_reported)
        qCWarning(logSettings).noquote() << content.reason;
    m_reported = content.reason;
    m_content = content.dictionary.deepCopy();
    return content.dictionary;
}

QString UserFile::saveLocked(const plist::Dictionary &dictionary)
{
    if (!dictionary) return {};
    // A copy: the window may change the dictionary while it is written.
    const plist::Dictionary content = dictionary.deepCopy();
    const QString reason = write(content);
    logReason(reason);
    if (reason.isEmpty()) m_content = content;
    return reason;
}

QString UserFile::write(const plist::Dictionary &dictionary) const
{
    const QString path = m_path();
    const QString noFolder = makeFolderFor(path);
    if (!noFolder.isEmpty()) return noFolder;

    const bool isThere = QFileInfo::exists(path);
    if (isThere && !plist::readFile(path).dictionary && !keepCopy(path))
        return path + u" can't be read, nor kept beside a new one: it is not saved over"_qs;
    return plist::writeFile(path, dictionary);
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
