#include "backup/FolderBackup.h"

#include "backup/BackupArguments.h"
#include "backup/BackupStages.h"
#include "files/ArchiveFiles.h"
#include "files/Sizes.h"
#include "runs/ItemPipeline.h"
#include "runs/Looks.h"
#include "runs/Run.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <future>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(backup)
};

/// One item on its way to an archive.
class FolderBackup : private ItemPipeline {
public:
    FolderBackup(Run &run, const BackupOrder &order, qsizetype index);
    void run();

private:
    void storeFolder();
    void encrypt();
    void dateEncryptedFile();
    void removeStored();
    void pack();
    [[nodiscard]] QString setFormerAside();
    void settleFormer();

    [[nodiscard]] QStringList newFiles() const;
    [[nodiscard]] QString whatIsLeftInClear() const;
    enum class LogOutput { No, Yes };
    bool judgeStage(const QString &stage, const ToolResult &result, const QString &product,
                    LogOutput logOutput = LogOutput::No);

    const BackupOrder &m_order;
    const BackupItem m_paths;
    QList<Aside> m_former; ///< of an earlier run, under other names for the time being
    bool m_isEncrypted = false;
    bool m_isPacked = false;
    QString m_reason; ///< of the failure, for people
};

FolderBackup::FolderBackup(Run &run, const BackupOrder &order, qsizetype index)
    : ItemPipeline(run, index, order.items[index].source, order.known)
    , m_order(order)
    , m_paths(order.items[index])
{
    m_log = u"\nSTART processing file"_s + m_item;
    expect({m_paths.stored, m_paths.encrypted}, m_paths.stored, m_paths.final);
}

void FolderBackup::run()
{
    storeFolder();
    encrypt();
    dateEncryptedFile();
    removeStored();
    // Measured while the archiver packs: of many files that takes a while.
    std::future<quint64> bytes = std::async([this] {
        return quillorentLibrary::calculateSize(m_item,
                                                [this] { return !m_run.state().isCancelledByUser(); });
    });
    pack();
    settleFormer();
    if (goesOn() && m_isPacked && m_distrust.isEmpty()) removeOwn(m_paths.encrypted);

    if (m_succeeded)
        succeed(bytes.get());
    else
        fail({}, m_reason + whatIsLeftInClear());
    end(m_isPacked, m_isPacked ? newFiles() : QStringList());
}

bool FolderBackup::judgeStage(const QString &stage, const ToolResult &result, const QString &product,
                              LogOutput logOutput)
{
    const bool isMade = entryAt(product).has_value();
    const bool isDone = judge(u"\n   "_s + stage, result, isMade, product);
    if (logOutput == LogOutput::Yes || !result.wasStarted) m_log += u'\n' + result.text();
    if (!m_succeeded) m_reason = stage + u": "_s + result.firstLine();
    if (!m_succeeded && result.text().contains(u"deprecated key derivation")) m_reason = whyOtherOpenSsl();
    noteBetween(product);
    return isDone;
}

void FolderBackup::storeFolder()
{
    if (isCancelled()) return;
    setStage(u"storing"_s, backupStages::storing(m_order, bytesToDo()));
    ToolResult result = makeWay(m_paths.stored); // the archiver would update what is there
    if (result.isSilent()) {
        using enum backupArguments::FirstPass;
        result =
            runStage(m_order.archiver, backupArguments::firstPass(m_order.compresses ? Compresses : Stores,
                                                                  m_order.keepDate, m_paths.stored, m_item));
    }
    judgeStage(u"RAR 1st"_s, result, m_paths.stored, LogOutput::Yes);
}

void FolderBackup::encrypt()
{
    if (!goesOn()) return;
    setStage(u"encrypting"_s, backupStages::encrypting(m_order, bytesAt(m_paths.stored)));
    ToolResult result = makeWay(m_paths.encrypted);
    if (result.isSilent()) result = checkInput(m_paths.stored);
    if (result.isSilent()) {
        QString password = m_order.password.text();
        QStringList arguments = m_order.byCertificate
                                    ? backupArguments::encryptByCertificate(m_paths.stored, m_paths.encrypted,
                                                                            m_order.certificate)
                                    : backupArguments::encryptByPassword(m_order.cipher, m_paths.stored,
                                                                         m_paths.encrypted, password);
        result = runStage(m_order.encoder, arguments);
        wipe(arguments);
        wipe(password);
    }
    m_isEncrypted = judgeStage(u"Encoder"_s, result, m_paths.encrypted);
}

// Without regard to whether the stages before it succeeded.
void FolderBackup::dateEncryptedFile()
{
    if (isCancelled() || !m_order.datesEncrypted || m_order.keepDate.isEmpty()) return;
    if (!entryAt(m_paths.stored) || !entryAt(m_paths.encrypted)) return;
    if (!checkInput(m_paths.stored).isSilent() || !checkInput(m_paths.encrypted).isSilent()) return;
    const QDateTime date = QFileInfo(m_paths.stored).lastModified();
    QFile encrypted(m_paths.encrypted);
    if (date.isValid() && encrypted.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        encrypted.setFileTime(date, QFileDevice::FileModificationTime);
    encrypted.close();
    noteBetween(m_paths.encrypted);
}

void FolderBackup::removeStored()
{
    if (goesOn() && m_isEncrypted) removeOwn(m_paths.stored);
}

void FolderBackup::pack()
{
    if (!goesOn()) return;
    setStage(u"packing"_s, backupStages::packing(m_order, bytesAt(m_paths.encrypted)));
    const QString problem = setFormerAside();
    ToolResult result{.output = problem, .wasStarted = problem.isEmpty()};
    if (result.isSilent()) result = checkInput(m_paths.encrypted);
    if (result.isSilent())
        result = runStage(m_order.archiver, backupArguments::secondPass(m_order.keepDate, m_order.split,
                                                                        m_paths.final, m_paths.encrypted));
    const QStringList made = newFiles();
    m_isPacked = judgeStage(u"RAR 2nd"_s, result, made.value(0, m_paths.final));
}

/// The archive of an earlier run, whole or in volumes, gets other names: what can still be opened stays until
/// something better is there. Why that failed, else empty.
QString FolderBackup::setFormerAside()
{
    const QStringList files = filesOfArchive(m_paths.final);
    const auto plan = planAside(files, u"former"_s);
    if (!plan)
        return Words::tr("\"%1\" can't be given another name while the new archive is made.")
            .arg(files.value(0));
    // Where the names are written down first, a run that is killed now is repaired by the next.
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        item.former = *plan;
        item.packingSince = QDateTime::currentDateTimeUtc();
    });
    if (plan->isEmpty()) return {};
    m_run.journal().sync();
    const QString reason = setAside(*plan);
    if (!reason.isEmpty())
        return Words::tr("\"%1\" can't be given another name while the new archive is made: %2.")
            .arg(files.value(0), reason);
    m_former = *plan;
    return {};
}

/// Drops the former archive where the new one is whole and on the disk; otherwise it gets its names back, and
/// pieces of a new one go.
void FolderBackup::settleFormer()
{
    if (m_former.isEmpty()) return;
    setStage(u"finishing"_s, backupStages::finishing());
    const QStringList made = newFiles();
    bool isSafe = m_isPacked && m_distrust.isEmpty() && !made.isEmpty();
    for (const QString &path : made)
        isSafe = isSafe && syncToDisk(path).isEmpty();
    isSafe = isSafe && syncToDisk(m_order.destination).isEmpty();
    if (isSafe) {
        dropAside(m_former);
    } else {
        for (const QString &path : made)
            if (const auto there = entryAt(path); there && there->isFile()) QFile::remove(path);
        const QString reason = putBack(m_former);
        m_isPacked = false;
        if (!reason.isEmpty()) {
            m_reason +=
                u'\n' +
                Words::tr("The former archive is called \"%1\" now: %2.").arg(m_former.first().to, reason);
            return; // the record still knows, so the next run tries again
        }
    }
    m_run.journal().changeItem(m_index, [](ItemRecord &item) { item.former.clear(); });
}

QStringList FolderBackup::newFiles() const { return filesOfArchive(m_paths.final); }

// What a failed stage leaves stays, so that nothing is lost; but who wanted it encrypted must know.
QString FolderBackup::whatIsLeftInClear() const
{
    if (!entryAt(m_paths.stored)) return {};
    return u'\n' + Words::tr("\"%1\" is left and is not encrypted: run the backup again, or remove it.")
                       .arg(m_paths.stored);
}

} // namespace

void backUpItem(Run &run, const BackupOrder &order, qsizetype index)
{
    FolderBackup backup(run, order, index);
    backup.run();
}
