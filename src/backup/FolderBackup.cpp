#include "backup/FolderBackup.h"

#include "app/QuillorentAppDelegate.h"
#include "backup/BackupArguments.h"
#include "backup/Decisions.h"
#include "files/Sizes.h"
#include "tools/RegisteredTool.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// One folder on its way. Steps are skipped once the run is cancelled or a stage has failed.
class FolderBackup {
public:
    explicit FolderBackup(const BackupJob &job);
    void run();

private:
    void storeFolder();
    void encrypt();
    void dateEncryptedFile();
    void pack();
    void succeed();
    void fail();

    [[nodiscard]] QString whatIsLeftInClear() const;

    [[nodiscard]] bool isCancelled() const { return m_delegate.cancelFlag(); }
    [[nodiscard]] bool goesOn() const { return !isCancelled() && m_succeeded; }
    void removeIfGoingOn(const QString &path) const;
    enum class LogOutput { No, Yes };
    void judge(const QString &stage, const ToolResult &result, LogOutput logOutput = LogOutput::No);

    QuillorentAppDelegate &m_delegate = theDelegate();
    const QString m_source;
    QString m_storedArchive;
    QString m_encryptedFile;
    QString m_finalArchive;
    QString m_log;
    QString m_reason; ///< of the failure, for people
    bool m_succeeded = true;
};

/// One line of what the tool said.
QString describeFailure(const ToolResult &result)
{
    if (!result.output) return u"the tool's message is not readable text"_qs;
    return result.text().trimmed().section(u'\n', 0, 0);
}

QString joined(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

FolderBackup::FolderBackup(const BackupJob &job) : m_source(job.source)
{
    const QString archiveExtension = m_delegate.setting(u"extensions"_qs, u"RAR"_qs).value_or(QString());
    m_storedArchive = joined(job.destination, job.baseName) + archiveExtension;
    m_encryptedFile = m_storedArchive + quillorentLibrary::decideExtension().value_or(QString());
    m_finalArchive = m_encryptedFile + archiveExtension;
    m_log = u"\nSTART processing file"_qs + m_source;
}

void FolderBackup::run()
{
    removeIfGoingOn(m_storedArchive); // the archiver would update a stale one
    storeFolder();
    removeIfGoingOn(m_encryptedFile);
    encrypt();
    dateEncryptedFile();
    removeIfGoingOn(m_storedArchive);
    removeIfGoingOn(m_finalArchive);
    pack();
    removeIfGoingOn(m_encryptedFile);

    // A folder whose later stages a cancel skipped counts as done all the same.
    if (m_succeeded)
        succeed();
    else
        fail();

    // The last folder ends the run. Told before the worker counts as gone: a new run may begin right after
    // that.
    const bool isLast = m_delegate.foldersDone() == m_delegate.foldersToDo();
    if (isLast || !m_succeeded) m_delegate.setCancelFlag(true);
    m_delegate.endItem(m_source);
}

void FolderBackup::removeIfGoingOn(const QString &path) const
{
    if (goesOn()) QFile::remove(path);
}

void FolderBackup::judge(const QString &stage, const ToolResult &result, LogOutput logOutput)
{
    m_succeeded = result.isSilent();
    m_log += u"\n   %1 %2 - "_qs.arg(stage, m_succeeded ? u"OK"_qs : u"ERROR"_qs) + m_source;
    if (logOutput == LogOutput::Yes || !result.wasStarted) m_log += u'\n' + result.text();
    if (!m_succeeded) m_reason = stage + u": "_qs + describeFailure(result);
}

void FolderBackup::storeFolder()
{
    if (isCancelled()) return;
    m_delegate.setStage(m_source, u"storing"_qs);
    const QString keepDate = quillorentLibrary::decideKeepDate();
    judge(u"RAR 1st"_qs,
          runRegisteredTool(u"RAR"_qs, backupArguments::firstPass(keepDate, m_storedArchive, m_source)),
          LogOutput::Yes);
}

void FolderBackup::encrypt()
{
    if (!goesOn()) return;
    m_delegate.setStage(m_source, u"encrypting"_qs);
    const bool byCertificate = m_delegate.passCombo01.selectedIndex() == PasswordTab::Certificate;
    const QStringList arguments =
        byCertificate
            ? backupArguments::encryptByCertificate(m_storedArchive, m_encryptedFile,
                                                    m_delegate.certFile01.text())
            : backupArguments::encryptByPassword(quillorentLibrary::decideEncryption().value_or(QString()),
                                                 m_storedArchive, m_encryptedFile,
                                                 m_delegate.passwordSelector());
    judge(u"Encoder"_qs, runRegisteredTool(u"OpenSSL"_qs, arguments));
}

// Without regard to whether the stages before it succeeded.
void FolderBackup::dateEncryptedFile()
{
    if (isCancelled() || !m_delegate.checkBox03.isOn() || quillorentLibrary::decideKeepDate().isEmpty())
        return;
    const QDateTime date = QFileInfo(m_storedArchive).lastModified();
    QFile encrypted(m_encryptedFile);
    if (date.isValid() && encrypted.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        encrypted.setFileTime(date, QFileDevice::FileModificationTime);
}

void FolderBackup::pack()
{
    if (!goesOn()) return;
    m_delegate.setStage(m_source, u"packing"_qs);
    judge(u"RAR 2nd"_qs,
          runRegisteredTool(u"RAR"_qs, backupArguments::secondPass(quillorentLibrary::decideKeepDate(),
                                                                   quillorentLibrary::decideSplit(),
                                                                   m_finalArchive, m_encryptedFile)));
}

void FolderBackup::succeed()
{
    const double bytes = m_delegate.addDone(double(quillorentLibrary::calculateSize(m_source)));
    m_delegate.view01progressIndicator01.setValue(bytes);
    // The log of a success is not shown: the console is for failures.
}

// What a failed stage leaves stays, so that nothing is lost; but who wanted it encrypted must know.
QString FolderBackup::whatIsLeftInClear() const
{
    if (!QFile::exists(m_storedArchive)) return {};
    return u"\n\"%1\" is left and is not encrypted: run the backup again, or remove it."_qs.arg(
        m_storedArchive);
}

void FolderBackup::fail()
{
    m_log += u"\n *** ERROR! *** "_qs + m_source;
    m_delegate.consoleTextView01.append(m_log);
    m_delegate.setFailure(m_source, m_reason + whatIsLeftInClear());
    m_delegate.setCancelFlag(true);
}

} // namespace

void quillorentLibrary::runProcess1(const BackupJob &job)
{
    FolderBackup backup(job);
    backup.run();
}
