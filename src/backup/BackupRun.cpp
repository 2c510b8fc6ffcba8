#include "backup/BackupRun.h"

#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "backup/FolderBackup.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Sizes.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <thread>
#include <unistd.h>

namespace {

void poll() { std::this_thread::sleep_for(pauses().poll); }

/// One run, step by step, on its own thread.
class BackupRun {
public:
    explicit BackupRun(const QString &profile) : m_record(m_delegate.listPlist().dictionary(profile)) {}
    void run();

private:
    void begin();
    void measure();
    void launchWorkers();
    void launchWorker(const QString &folder);
    void waitForWorkers();
    void end();
    void endCancelledTools();
    [[nodiscard]] QString summary() const;

    QuillorentAppDelegate &m_delegate = theDelegate();
    const plist::Dictionary m_record;
    const QStringList m_folders = m_record.array(u"folders"_qs).strings();
    // Of all processors of the machine, whether they are busy or not.
    const qsizetype m_workerLimit = std::max(1L, sysconf(_SC_NPROCESSORS_CONF));
    QStringList m_missing;
};

void BackupRun::run()
{
    begin();
    measure();
    launchWorkers();
    waitForWorkers();
    end();
}

void BackupRun::begin()
{
    m_delegate.setCancelFlag(false);
    m_delegate.beginRun();
    m_delegate.consoleTextView01.setText({});
    m_delegate.outputText01.setText({});
    m_delegate.buttonCancel01.setTitle(u"Cancel"_qs);
    m_delegate.progressPanel01.beginSheet();
    m_delegate.view01progressIndicator01.setIndeterminate(true);
    m_delegate.view01progressIndicator01.startAnimation();
    m_delegate.view01progressLabel01.setHidden(true);
    m_delegate.view01progressLabel02.setHidden(false);
}

void BackupRun::measure()
{
    m_delegate.setSizeToDo(0);
    m_delegate.setSizeDone(0);
    m_delegate.setFoldersToDo(0);
    m_delegate.setFoldersDone(0);
    m_delegate.view01progressIndicator01.setValue(0);
    std::this_thread::sleep_for(pauses().beforeMeasuring);

    // What does not exist any more counts as well, with no bytes.
    for (const QString &folder : m_folders)
        if (!m_delegate.cancelFlag()) m_delegate.addToDo(double(quillorentLibrary::calculateSize(folder)));

    m_delegate.view01progressIndicator01.setMaximum(m_delegate.sizeToDo());
    m_delegate.view01progressIndicator01.setIndeterminate(false);
    m_delegate.view01progressLabel01.setHidden(false);
    m_delegate.view01progressLabel02.setHidden(true);
}

void BackupRun::launchWorkers()
{
    m_delegate.setThreadsRunning({});
    for (const QString &folder : m_folders) {
        if (!QFileInfo::exists(quillorentLibrary::standardizePath(folder))) {
            m_missing.append(folder);
            continue;
        }
        while (m_delegate.threadsRunning().size() >= m_workerLimit && !m_delegate.cancelFlag())
            poll();
        if (m_delegate.cancelFlag()) return;
        launchWorker(folder);
    }
}

void BackupRun::launchWorker(const QString &folder)
{
    const BackupJob job{.source = folder,
                        .destination = m_record.string(u"path"_qs).value_or(QString()),
                        .baseName = quillorentLibrary::nameRepeated(folder, m_folders)};
    m_delegate.beginItem(folder);
    detachThread(u"backup"_qs, [job] { quillorentLibrary::runProcess1(job); });
}

void BackupRun::waitForWorkers()
{
    // A raised flag ends the waiting at once, even while tools still run: nobody who cancels wants to wait
    // for them.
    while (!m_delegate.threadsRunning().isEmpty() && !m_delegate.cancelFlag())
        poll();
}

void BackupRun::end()
{
    m_delegate.view01progressIndicator01.stopAnimation();
    m_delegate.outputText01.setText(summary());
    m_delegate.progressPanel01.close();
    if (!m_delegate.consoleTextView01.text().isEmpty()) m_delegate.consolePanel01.orderFront();
    endCancelledTools();
    m_delegate.endRun();
}

/// The run is over only when its workers are: a next one would write the same files. A worker between two
/// looks at the flag may start one more tool, hence the loop.
void BackupRun::endCancelledTools()
{
    while (!m_delegate.threadsRunning().isEmpty()) {
        if (m_delegate.isCancelledByUser()) endTools();
        poll();
    }
}

QString BackupRun::summary() const
{
    const QLocale locale;
    const auto number = [&](double value) { return locale.toString(qint64(value)); };
    const QString count =
        u"%1 of %2"_qs.arg(number(m_delegate.foldersDone()), number(m_delegate.foldersToDo()));
    const QString size =
        locale.formattedDataSize(qint64(m_delegate.sizeDone()), 1, QLocale::DataSizeSIFormat);

    if (m_delegate.isCancelledByUser())
        return u"Cancelled. Files left in the destination may not be encrypted: back up again, or remove them."_qs;
    if (!m_delegate.failure().isEmpty()) return u"Failed: "_qs + m_delegate.failure();
    if (!m_missing.isEmpty())
        return u"Backed up %1 (%2). Not found: %3"_qs.arg(count, size, m_missing.join(u", "_qs));
    return u"Backed up %1 (%2)."_qs.arg(count, size);
}

} // namespace

void quillorentLibrary::launchBackup(const QString &profile) { BackupRun(profile).run(); }

void quillorentLibrary::stopProcess01() {}
void quillorentLibrary::stopProcess02() {}
void quillorentLibrary::stopProcess03() {}
