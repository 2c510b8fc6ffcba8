#include "extract/ExtractRun.h"

#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "app/Workers.h"
#include "extract/ArchiveExtraction.h"
#include "extract/Candidates.h"
#include "extract/Explanation.h"
#include "files/Sizes.h"

#include <QLocale>
#include <memory>
#include <thread>

namespace {

/// One run, step by step, on its own thread.
class ExtractRun {
public:
    explicit ExtractRun(const QString &profile)
        : m_folder(m_delegate.listPlist().dictionary(profile).string(u"extractpath"_qs).value_or(QString()))
    {
    }
    void run();

private:
    void begin();
    [[nodiscard]] bool allAreWhole();
    [[nodiscard]] ToolResult test(const QString &archive) const;
    void reportDamage(const QString &archive, const ToolResult &result);
    void measure();
    void launchWorkers();
    void end();
    [[nodiscard]] bool succeeded() const;
    [[nodiscard]] QString summary() const;

    QuillorentAppDelegate &m_delegate = theDelegate();
    const QString m_folder;
    const QStringList m_archives = m_delegate.extractList.strings();
    const QStringList m_shown = m_delegate.extractFullList.strings();
};

void ExtractRun::run()
{
    begin();
    if (allAreWhole()) {
        measure();
        launchWorkers();
        waitForWorkers();
    }
    end();
}

void ExtractRun::begin()
{
    m_delegate.setCancelFlag(false);
    m_delegate.beginRun();
    m_delegate.consoleTextView01.setText({});
    m_delegate.extractedFolder.set({});
    m_delegate.outputText02.setText({});
    m_delegate.buttonCancel02.setTitle(u"Cancel"_qs);
    m_delegate.progressPanel02.beginSheet();

    m_delegate.setSizeToDo(0);
    m_delegate.setSizeDone(0);
    m_delegate.setFoldersToDo(0);
    m_delegate.setFoldersDone(0);
    m_delegate.setThreadsRunning({});
    m_delegate.progress02progressIndicator01.setValue(0);
    m_delegate.progress02progressIndicator01.setIndeterminate(true);
    m_delegate.progress02progressIndicator01.startAnimation();
    m_delegate.progress02progressLabel01.setHidden(false);
    m_delegate.progress02progressLabel02.setHidden(true);
    std::this_thread::sleep_for(pauses().beforeMeasuring);
}

// One damaged archive, and nothing is extracted at all.
bool ExtractRun::allAreWhole()
{
    for (const QString &archive : m_archives) {
        if (m_delegate.cancelFlag()) return false;
        const ToolResult result = test(archive);
        if (m_delegate.cancelFlag()) return false;
        if (result.isSilent()) continue;
        reportDamage(archive, result);
        return false;
    }
    return true;
}

/// On a thread of its own: testing a large archive takes long, and can be cancelled like any stage.
ToolResult ExtractRun::test(const QString &archive) const
{
    const auto result = std::make_shared<ToolResult>();
    const bool isLaunched = launchWorker(u"extract-test"_qs, archive, [archive, result] {
        theDelegate().setStage(archive, u"testing"_qs);
        *result = testArchive(archive);
        theDelegate().endItem(archive);
    });
    if (!isLaunched) return {};
    waitForWorkers();
    endWorkers();
    return *result;
}

void ExtractRun::reportDamage(const QString &archive, const ToolResult &result)
{
    const QString reason = explain({.kind = FailedStage::Kind::Test, .tool = result, .archive = archive});
    m_delegate.setFailure(archive, reason);
    m_delegate.extractPanelText01.setText(archive);
    m_delegate.extractReasonText01.setText(reason);
    m_delegate.extractPanel01.runModal();
}

void ExtractRun::measure()
{
    // Later volumes count as well, though only the first is counted when its set is done.
    for (const QString &archive : m_shown)
        m_delegate.addToDo(double(quillorentLibrary::calculateSize(archive)));

    m_delegate.progress02progressIndicator01.setIndeterminate(false);
    m_delegate.progress02progressIndicator01.setMaximum(m_delegate.sizeToDo());
    m_delegate.progress02progressLabel01.setHidden(true);
    m_delegate.progress02progressLabel02.setHidden(false);
    m_delegate.setThreadsRunning({});
}

void ExtractRun::launchWorkers()
{
    for (const QString &archive : m_archives) {
        const ExtractJob job{.archive = archive, .folder = m_folder};
        if (launchWorker(u"extract"_qs, archive, [job] { quillorentLibrary::runProcess2(job); })) continue;
        quillorentLibrary::stopProcess02();
        return;
    }
}

void ExtractRun::end()
{
    if (succeeded()) m_delegate.extractedFolder.set(m_folder);
    m_delegate.progress02progressIndicator01.stopAnimation();
    m_delegate.outputText02.setText(summary());
    m_delegate.progressPanel02.close();
    if (!m_delegate.consoleTextView01.text().isEmpty()) m_delegate.consolePanel01.orderFront();
    endWorkers();
    m_delegate.endRun();
}

bool ExtractRun::succeeded() const
{
    return !m_delegate.isCancelledByUser() && m_delegate.failure().isEmpty() &&
           m_delegate.foldersDone() == double(m_archives.size());
}

QString ExtractRun::summary() const
{
    const QLocale locale;
    if (m_delegate.isCancelledByUser())
        return u"Cancelled. Files left in the extraction folder may be incomplete."_qs;
    if (!m_delegate.failure().isEmpty()) return u"Failed: "_qs + m_delegate.failure();
    return u"Extracted %1 of %2 into \"%3\"."_qs.arg(locale.toString(qint64(m_delegate.foldersDone())),
                                                     locale.toString(m_archives.size()), m_folder);
}

} // namespace

void quillorentLibrary::launchExtract(const QString &profile) { ExtractRun(profile).run(); }
