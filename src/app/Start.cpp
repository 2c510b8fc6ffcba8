#include "app/Start.h"
#include "app/QuillorentAppDelegate.h"
#include "app/SheetMonitor.h"
#include "app/StayAwake.h"
#include "runs/Aftermath.h"
#include "runs/Pauses.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <QTimer>
#include <thread>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(app)
};

QString sentences(const QStringList &list)
{
    constexpr qsizetype most = 12; // as many as a person reads
    if (list.size() <= most) return list.join(u"\n\n"_s);
    return list.first(most).join(u"\n\n"_s) + u"\n\n"_s + Words::tr("… and %1 more.").arg(list.size() - most);
}

/// Shows the sheet while it lives, to somebody who has waited for a moment: most looks take no time, and a
/// sheet that flashes up says nothing. The look itself may hang at a disk that does not answer.
class SheetAfterAMoment {
public:
    SheetAfterAMoment(SheetMonitor &monitor, outlets::Panel &sheet)
        : m_sheet(sheet), m_waiting([this, &monitor] { wait(monitor); })
    {
    }
    ~SheetAfterAMoment()
    {
        m_isOver = true;
        m_waiting.join();
        if (m_isShown) m_sheet.close();
    }
    SheetAfterAMoment(const SheetAfterAMoment &) = delete;
    SheetAfterAMoment &operator=(const SheetAfterAMoment &) = delete;

private:
    void wait(SheetMonitor &monitor)
    {
        const auto shownAt = std::chrono::steady_clock::now() + 300ms;
        while (!m_isOver && std::chrono::steady_clock::now() < shownAt)
            std::this_thread::sleep_for(10ms);
        if (m_isOver) return;
        monitor.showSheet();
        m_isShown = true;
    }

    outlets::Panel &m_sheet;
    std::atomic<bool> m_isOver = false;
    bool m_isShown = false;
    std::thread m_waiting; // last: it uses the others
};

/// What somebody is told who wants to shut the machine down meanwhile.
QString whyAwake(const RunStart &start, bool onlyLooks)
{
    const QString &sheet = start.sheet.sheet.name();
    if (sheet == u"progressPanel02" && onlyLooks) return Words::tr("An archive is being looked into.");
    if (sheet == u"progressPanel02") return Words::tr("Files are being restored, and would not be complete.");
    if (sheet == u"progressPanel03")
        return Words::tr("Folders are being synchronised, and would not be in step.");
    return Words::tr("A backup is running, and would not be complete.");
}

} // namespace

/// Looks, asks and works; the body of the run's own thread.
void QuillorentAppDelegate::carryOut(const RunStart &start)
{
    SheetMonitor monitor(*this, start.sheet);
    const Findings findings = [&] {
        const SheetAfterAMoment patience(monitor, start.sheet.sheet);
        return start.look([this] { return !cancelFlag(); });
    }();
    showLeftInClear(); // of a run, too, whose tools have only just ended
    if (cancelFlag()) {
        const QString summary = Words::tr("Cancelled before anything was done.");
        start.sheet.result.setText(summary);
        lastRecord.set({.outcome = Outcome::Cancelled, .summary = summary});
        endRun();
        return;
    }
    if (!findings.obstacles.isEmpty()) {
        warn(sentences(findings.obstacles + findings.concerns));
        endRun();
        return;
    }
    if (isWanted(start, findings)) {
        const StayAwake awake(whyAwake(start, !lookedInto().isEmpty()));
        start.work(monitor);
    } else {
        endRun();
    }
}

bool QuillorentAppDelegate::isWanted(const RunStart &start, const Findings &findings)
{
    const bool mayOverwrite = start.mayOverwrite || findings.overwrites.isEmpty();
    if (findings.concerns.isEmpty() && mayOverwrite) return true;
    if (findings.concerns.isEmpty() && start.overwriteQuestion) {
        start.showOverwrites(findings.overwrites);
        return askToGoOn(*start.overwriteQuestion);
    }
    QStringList all = findings.concerns;
    if (!mayOverwrite) all.append(findings.overwrites);
    concernsText01.setText(sentences(all));
    return askToGoOn(concernsPanel01);
}

bool QuillorentAppDelegate::askToGoOn(outlets::Panel &panel)
{
    m_goesOn = false;
    panel.runModal();
    window.orderFront();
    return m_goesOn;
}

void QuillorentAppDelegate::answer(outlets::Panel &panel, bool goesOn)
{
    m_goesOn = goesOn;
    closeSheet(panel);
}

void QuillorentAppDelegate::startRun(const QString &threadName, const std::function<RunStart()> &prepare)
{
    if (!tryBeginRun()) {
        warn(Words::tr("Something is running already, or about to end. Try again when it has ended."));
        return;
    }
    const auto go = [this, threadName, prepare] {
        detachThread(threadName, [this, start = prepare()] { carryOut(start); });
    };
    if (!keychainIndicator01.isAnimating()) {
        go();
        return;
    }
    // What the keychain says may be the secret that is needed; and it may take its time.
    auto *wait = new QTimer(QCoreApplication::instance());
    QObject::connect(wait, &QTimer::timeout, wait, [this, wait, go, profile = currentProfile()] {
        if (keychainIndicator01.isAnimating() && !cancelFlag()) return;
        wait->deleteLater();
        wait->stop();
        if (!cancelFlag() && profile == currentProfile()) {
            go();
            return;
        }
        endRun();
        if (profile != currentProfile())
            warn(Words::tr("Another profile was opened while the keychain was asked. Start again."));
    });
    wait->start(pauses().poll);
}

void QuillorentAppDelegate::concernsPanel01GoOn() { answer(concernsPanel01, true); }

void QuillorentAppDelegate::concernsPanel01Stop() { answer(concernsPanel01, false); }

void QuillorentAppDelegate::toolsCancel01Action()
{
    cancelByUser();
    toolsText01.setText(QString::fromUtf8(QT_TRANSLATE_NOOP("outlets", "Wait...")));
}

void QuillorentAppDelegate::showLeftInClear()
{
    const QStringList left = aftermath::leftInClear();
    clearText01.setText(
        left.isEmpty() ? QString()
                       : Words::tr("A run that was broken off has left this, and it is not encrypted:\n%1")
                             .arg(left.join(u'\n')));
    clearText01.setHidden(left.isEmpty());
    clearRemove01.setHidden(left.isEmpty());
}

void QuillorentAppDelegate::clearRemove01Action()
{
    // A run may be making just these at the moment.
    if (isRunActive()) {
        warn(Words::tr("Something is running just now. Remove these files when it has ended."));
        return;
    }
    detachThread(u"remove-clear"_s, [this] {
        aftermath::removeLeftInClear();
        showLeftInClear();
    });
}
