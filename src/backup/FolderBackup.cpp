#include "backup/FolderBackup.h"

#include "app/ItemPipeline.h"
#include "app/QuillorentAppDelegate.h"
#include "backup/BackupArguments.h"
#include "backup/Decisions.h"
#include "files/Names.h"
#include "tools/RegisteredTool.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// One folder on its way to an archive.
class FolderBackup : private ItemPipeline {
public:
    explicit FolderBackup(const BackupJob &job);
    void run();

private:
    void storeFolder();
    void encrypt();
    void dateEncryptedFile();
    void pack();

    [[nodiscard]] QString whatIsLeftInClear() const;
    enum class LogOutput { No, Yes };
    void judgeStage(const QString &stage, const ToolResult &result, LogOutput logOutput = LogOutput::No);

    QString m_storedArchive;
    QString m_encryptedFile;
    QString m_finalArchive;
    QString m_reason; ///< of the failure, for people
};

FolderBackup::FolderBackup(const BackupJob &job) : ItemPipeline(job.source)
{
    const QString archiveExtension = m_delegate.setting(u"extensions"_qs, u"RAR"_qs).value_or(QString());
    m_storedArchive = quillorentLibrary::joined(job.destination, job.baseName) + archiveExtension;
    m_encryptedFile = m_storedArchive + quillorentLibrary::decideExtension().value_or(QString());
    m_finalArchive = m_encryptedFile + archiveExtension;
    m_log = u"\nSTART processing file"_qs + m_item;
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

    if (m_succeeded)
        succeed(m_delegate.view01progressIndicator01);
    else
        fail({}, m_reason + whatIsLeftInClear());
    end();
}

void FolderBackup::judgeStage(const QString &stage, const ToolResult &result, LogOutput logOutput)
{
    judge(u"\n   "_qs + stage, result);
    if (logOutput == LogOutput::Yes || !result.wasStarted) m_log += u'\n' + result.text();
    if (!m_succeeded) m_reason = stage + u": "_qs + result.firstLine();
}

void FolderBackup::storeFolder()
{
    if (isCancelled()) return;
    m_delegate.setStage(m_item, u"storing"_qs);
    const QString keepDate = quillorentLibrary::decideKeepDate();
    judgeStage(u"RAR 1st"_qs,
               runRegisteredTool(u"RAR"_qs, backupArguments::firstPass(keepDate, m_storedArchive, m_item)),
               LogOutput::Yes);
}

void FolderBackup::encrypt()
{
    if (!goesOn()) return;
    m_delegate.setStage(m_item, u"encrypting"_qs);
    const bool byCertificate = m_delegate.passCombo01.selectedIndex() == PasswordTab::Certificate;
    const QStringList arguments =
        byCertificate
            ? backupArguments::encryptByCertificate(m_storedArchive, m_encryptedFile,
                                                    m_delegate.certFile01.text())
            : backupArguments::encryptByPassword(quillorentLibrary::decideEncryption().value_or(QString()),
                                                 m_storedArchive, m_encryptedFile,
                                                 m_delegate.passwordSelector());
    judgeStage(u"Encoder"_qs, runRegisteredTool(u"OpenSSL"_qs, arguments));
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
    m_delegate.setStage(m_item, u"packing"_qs);
    judgeStage(u"RAR 2nd"_qs,
               runRegisteredTool(u"RAR"_qs, backupArguments::secondPass(quillorentLibrary::decideKeepDate(),
                                                                        quillorentLibrary::decideSplit(),
                                                                        m_finalArchive, m_encryptedFile)));
}

// What a failed stage leaves stays, so that nothing is lost; but who wanted it encrypted must know.
QString FolderBackup::whatIsLeftInClear() const
{
    if (!QFile::exists(m_storedArchive)) return {};
    return u"\n\"%1\" is left and is not encrypted: run the backup again, or remove it."_qs.arg(
        m_storedArchive);
}

} // namespace

void quillorentLibrary::runProcess1(const BackupJob &job)
{
    FolderBackup backup(job);
    backup.run();
}
