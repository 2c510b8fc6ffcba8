#include "settings/UserFile.h"

#include "plist/File.h"
#include "plist/PrivateFile.h"
#include "settings/KeptCopy.h"
#include "settings/Paths.h"
#include "settings/Reconcile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <utility>

using namespace Qt::StringLiterals;

namespace quillorentLibrary {

Q_LOGGING_CATEGORY(logSettings, "quillorent.settings")

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(settings)
};

/// Gives the reason where it can't be made, else an empty text.
QString makeFolderFor(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    return makePrivateFolder(folder) ? QString() : Words::tr("The folder \"%1\" can't be made").arg(folder);
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

    if (file.exists()) {
        const KeptCopy kept = moveAside(path);
        if (!kept.isSafe)
            return notice(
                Words::tr(
                    "“%1” may not be written, nor moved out of the way: what is changed can't be saved.")
                    .arg(path));
        if (!kept.path.isEmpty())
            notice(Words::tr("“%1” may not be written by this user. It is kept as “%2”, and a new one with "
                             "the program's own settings has taken its place.")
                       .arg(path, kept.path));
    }
    const QString noFolder = makeFolderFor(path);
    const QString reason = noFolder.isEmpty() ? plist::replacePrivateFile(path, content) : noFolder;
    if (!reason.isEmpty()) notice(reason);
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

Saved UserFile::save(const plist::Dictionary &dictionary, InConflict inConflict)
{
    const std::lock_guard lock(m_mutex);
    if (!dictionary) return {};
    const QString path = m_path();
    // A copy: the window may change the dictionary while it is written.
    const plist::Dictionary mine = dictionary.deepCopy();
    const bool isThere = QFileInfo::exists(path);
    const plist::Dictionary there = isThere ? plist::readFile(path).dictionary : plist::Dictionary();
    const plist::Dictionary base = content();
    const Reconciled all = reconcile(base, mine, there ? there : base, m_depth,
                                     inConflict == InConflict::TakeTheirs ? Prefer::Theirs : Prefer::Mine);

    Saved saved{.reason = {}, .conflicts = all.conflicts, .takenOver = all.takenOver};
    if (inConflict == InConflict::Ask && !all.conflicts.isEmpty()) return saved;
    saved.reason = makeFolderFor(path);
    if (saved.isDone() && isThere && !there) saved.reason = keepUnreadable(path);
    if (saved.isDone() && !all.conflicts.isEmpty()) saved.reason = keepLoser(path, mine, inConflict);
    if (saved.isDone()) saved.reason = plist::writeFile(path, all.content);
    logReason(saved.reason);
    if (!saved.isDone()) return saved;
    setContent(all.content);
    takeOver(dictionary, mine, all.content, m_depth);
    return saved;
}

QString UserFile::keepUnreadable(const QString &path)
{
    const KeptCopy kept = keepCopy(path, KeptAs::Damaged);
    if (!kept.isSafe)
        return Words::tr("“%1” can't be read, and no copy of it can be kept: so it is not saved over")
            .arg(path);
    if (!kept.path.isEmpty())
        notice(Words::tr("“%1” could not be read when it was saved over. What it held is kept as “%2”.")
                   .arg(path, kept.path));
    return {};
}

QString UserFile::keepLoser(const QString &path, const plist::Dictionary &mine, InConflict inConflict)
{
    const KeptCopy kept = inConflict == InConflict::KeepMine
                              ? keepCopy(path, KeptAs::Former)
                              : keepContent(path, plist::toDocument(mine).bytes);
    if (!kept.isSafe) return Words::tr("Of “%1” no copy can be kept: so it is not saved over").arg(path);
    notice((inConflict == InConflict::KeepMine ? Words::tr("What others had changed in “%1” is kept as “%2”.")
                                               : Words::tr("What you had changed in “%1” is kept as “%2”."))
               .arg(path, kept.path));
    return {};
}

bool UserFile::holds(const plist::Dictionary &dictionary) const { return content() == dictionary; }

QString UserFile::whyUnread() const
{
    const std::lock_guard lock(m_stateMutex);
    return m_reason;
}

QStringList UserFile::takeNotices()
{
    const std::lock_guard lock(m_stateMutex);
    return std::exchange(m_notices, {});
}

void UserFile::notice(const QString &text)
{
    logReason(text);
    const std::lock_guard lock(m_stateMutex);
    if (!m_notices.contains(text)) m_notices.append(text);
}

plist::Dictionary UserFile::content() const
{
    const std::lock_guard lock(m_stateMutex);
    return m_contentPath == m_path() ? m_content : plist::Dictionary();
}

void UserFile::setContent(const plist::Dictionary &content)
{
    const std::lock_guard lock(m_stateMutex);
    m_content = content;
    m_contentPath = m_path();
}

bool UserFile::change(const std::function<void(const plist::Dictionary &)> &work,
                      const std::function<bool()> &atLast)
{
    const std::lock_guard lock(m_mutex);
    const plist::Dictionary dictionary = readLocked();
    if (!dictionary) return false;
    work(dictionary);
    if (holds(dictionary)) return atLast();

    const plist::Document document = plist::toDocument(dictionary);
    if (!document.reason.isEmpty()) {
        logReason(m_path() + u": "_s + document.reason);
        return false;
    }
    plist::PendingFile pending(m_path(), document.bytes);
    const QString reason = pending.reason().isEmpty() && atLast() ? pending.commit() : pending.reason();
    logReason(reason);
    if (pending.isCommitted()) setContent(dictionary.deepCopy());
    return pending.isCommitted();
}

plist::Dictionary UserFile::readLocked()
{
    const plist::FileContent read = plist::readFile(m_path());
    // A start reads each file several times; one message says it.
    if (!read.reason.isEmpty() && read.reason != whyUnread()) logReason(read.reason);
    setContent(read.dictionary.deepCopy());
    const std::lock_guard lock(m_stateMutex);
    m_reason = read.reason;
    return read.dictionary;
}

UserFile &settingsFile()
{
    constexpr int entriesOfTables = 2;
    static UserFile file(settingsPath, settingsTemplatePath, entriesOfTables);
    return file;
}

UserFile &profilesFile()
{
    constexpr int wholeProfiles = 1;
    static UserFile file(profilesPath, profilesTemplatePath, wholeProfiles);
    return file;
}

} // namespace quillorentLibrary
