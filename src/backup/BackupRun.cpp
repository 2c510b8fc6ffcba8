#include "backup/BackupRun.h"

#include "backup/FolderBackup.h"
#include "files/Paths.h"
#include "files/Sizes.h"
#include "runs/Pauses.h"
#include "runs/Run.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(backup)
};

class BackupRun : public Run {
public:
    BackupRun(const BackupOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock);

protected:
    void work() override;
    [[nodiscard]] QString summary() const override;

private:
    void measure();
    [[nodiscard]] bool skip(qsizetype index);

    const BackupOrder &m_order;
    QStringList m_missing;
    QStringList m_unsuitable;
};

RunRecord recordOf(const BackupOrder &order)
{
    RunRecord record{.kind = u"backup"_s,
                     .profile = order.profile,
                     .folder = order.destination,
                     .began = QDateTime::currentDateTimeUtc()};
    for (const BackupItem &item : order.items)
        record.items.append({.path = item.source});
    return record;
}

BackupRun::BackupRun(const BackupOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock)
    : Run(state, monitor, recordOf(order), std::move(lock)), m_order(order)
{
}

void BackupRun::work()
{
    std::this_thread::sleep_for(pauses().beforeMeasuring);
    measure();
    for (qsizetype index = 0; index < m_order.items.size(); ++index) {
        if (skip(index)) continue;
        const QString source = m_order.items[index].source;
        // A folder that is listed twice has one archive: one after the other.
        const auto isFree = [this, source] { return !m_state.threadsRunning().contains(source); };
        const auto body = [this, index] { backUpItem(*this, m_order, index); };
        if (!launchWorker(u"backup"_s, source, body, isFree)) return;
    }
}

// What does not exist any more counts as well, with no bytes.
void BackupRun::measure()
{
    const auto goesOn = [this] { return !isCancelled(); };
    for (const BackupItem &item : m_order.items) {
        if (!goesOn()) break;
        const auto bytes =
            double(item.bytes ? *item.bytes : quillorentLibrary::calculateSize(item.source, goesOn));
        m_state.addToDo(bytes);
        m_state.planItem(item.source, bytes);
    }
    m_monitor.measured(m_state.sizeToDo());
}

bool BackupRun::skip(qsizetype index)
{
    const QString source = m_order.items[index].source;
    const auto there = entryAt(source);
    const bool isMissing = !QFileInfo::exists(quillorentLibrary::standardizePath(source));
    const bool isUnsuitable = there && there->kind == FileEntry::Kind::Other;
    if (!isMissing && !isUnsuitable) return false;
    (isMissing ? m_missing : m_unsuitable).append(source);
    m_state.endItem(source, RunItem::Phase::LeftOut);
    journal().changeItem(index, [&](ItemRecord &item) {
        item.outcome = Outcome::Skipped;
        item.reason =
            isMissing ? Words::tr("it is not there") : Words::tr("it is neither a file nor a folder");
    });
    return true;
}

QString BackupRun::summary() const
{
    const QLocale locale;
    const auto number = [&](double value) { return locale.toString(qint64(value)); };
    QStringList sentences;
    if (!m_state.failure().isEmpty())
        sentences.append(Words::tr("Failed: %1").arg(m_state.failure()));
    else if (m_state.isCancelledByUser())
        sentences.append(Words::tr("Cancelled."));
    else
        sentences.append(
            Words::tr("Backed up %1 of %2 (%3).")
                .arg(number(m_state.foldersDone()), number(m_state.foldersToDo()),
                     locale.formattedDataSize(qint64(m_state.sizeDone()), 1, QLocale::DataSizeSIFormat)));
    if (!m_missing.isEmpty()) sentences.append(Words::tr("Not found: %1.").arg(m_missing.join(u", "_s)));
    if (!m_unsuitable.isEmpty())
        sentences.append(Words::tr("Left out, as they are neither files nor folders: %1.")
                             .arg(m_unsuitable.join(u", "_s)));
    sentences += describeKept();
    return sentences.join(u' ');
}

} // namespace

void runBackup(const BackupOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock)
{
    BackupRun(order, state, monitor, std::move(lock)).execute();
}

void runBackupOfOne(const BackupOrder &order, RunState &state, RunMonitor &monitor)
{
    LoneRun run(state, monitor, recordOf(order));
    run.executeAlone([&] { backUpItem(run, order, 0); });
}
