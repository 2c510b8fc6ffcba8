#include "backup/BackupRun.h"

#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "app/Workers.h"
#include "backup/FolderBackup.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Sizes.h"

#include <QFileInfo>
#include <QLocale>
#include <thread>

namespace {

/// One run, step by step, on its own thread.
class BackupRun {
public:
    explicit BackupRun(const QString &profile) : m_record(m_delegate.listPlist().dictionary(profile)) {}
    void run();

private:
    void begin();
    void measure();
    void launchWorkers();
    [[nodiscard]] bool launchWorkerFor(const QString &folder) const;
    void end();
    [[nodiscard]] QString summary() const;

    QuillorentAppDelegate &m_delegate = theDelegate();
    const plist::Dictionary m_record;
    const QStringList m_folders = m_record.array(u"folders"_qs).strings();
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
        if (!launchWorkerFor(folder)) return;
    }
}

bool BackupRun::launchWorkerFor(const QString &folder) const
{
    const BackupJob job{.source = folder,
                        .destination = m_record.string(u"path"_qs).value_or(QString()),
                        .baseName = quillorentLibrary::nameRepeated(folder, m_folders)};
    return launchWorker(u"backup"_qs, folder, [job] { quillorentLibrary::runProcess1(job); });
}

void BackupRun::end()
{
    m_delegate.view01progressIndicator01.stopAnimation();
    m_delegate.outputText01.setText(summary());
    m_delegate.progressPanel01.close();
    if (!m_delegate.consoleTextView01.text().isEmpty()) m_delegate.consolePanel01.orderFront();
    endWorkers();
    m_delegate.endRun();
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
