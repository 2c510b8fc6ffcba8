#include "ui/RunNotices.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/PanelDialog.h"

#include <QCoreApplication>
#include <QEvent>
#include <QUrl>

using namespace std::chrono_literals;

namespace ui {
namespace {

struct KindOfRun {
    QString finished; ///< titles of notices
    QString failed;
};

KindOfRun kindOf(const RunRecord &record)
{
    if (record.kind == u"extract")
        return {RunNotices::tr("Files restored"), RunNotices::tr("Restoring failed")};
    if (record.kind == u"look")
        return {RunNotices::tr("Archive looked into"), RunNotices::tr("The archive can't be looked into")};
    if (record.kind == u"sync")
        return {RunNotices::tr("Folders synchronised"), RunNotices::tr("The synchronisation failed")};
    return {RunNotices::tr("Backup finished"), RunNotices::tr("The backup failed")};
}

} // namespace

RunNotices::RunNotices(QuillorentAppDelegate &controller, Announcer &announcer,
                       const QList<PanelDialog *> &sheets)
    : QObject(&announcer), m_controller(controller), m_announcer(announcer), m_progress(controller)
{
    for (const PanelDialog *sheet : sheets)
        connect(sheet, &PanelDialog::visibilityChanged, this, [this](bool isVisible) {
            if (isVisible) begin();
        });
    m_timer.setInterval(250ms);
    connect(&m_timer, &QTimer::timeout, this, &RunNotices::look);
}

void RunNotices::begin()
{
    if (!m_notices)
        m_notices.emplace([this](DesktopNotices::Answer given) {
            m_given = given;
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        });
    m_progress = RunProgress(m_controller);
    m_timer.start();
}

void RunNotices::look()
{
    if (m_controller.isRunActive()) {
        const RunFigures figures = m_progress.look();
        const int hundredth = int(figures.done() * 100);
        if (figures.bytesToDo > 0 && std::exchange(m_shownHundredth, hundredth) != hundredth)
            m_notices->showProgress(figures.done());
        tellDamage();
        return;
    }
    m_timer.stop();
    if (std::exchange(m_shownHundredth, std::nullopt)) m_notices->showProgress(std::nullopt);
    const RunRecord record = m_controller.lastRecord();
    if (!record.kind.isEmpty() && std::exchange(m_toldOf, record.began) != record.began) tellEnd(record);
}

// The run waits there until somebody has seen it.
void RunNotices::tellDamage()
{
    const bool isShown = m_controller.extractPanel01.place() != outlets::Panel::Place::Hidden;
    if (std::exchange(m_isDamageShown, isShown) == isShown || !isShown || isProgramInFront()) return;
    m_folder.clear();
    m_notices->show({.title = tr("Restoring failed"),
                     .text = m_controller.extractReasonText01.text(),
                     .isFailure = true,
                     .opensFolder = false});
}

void RunNotices::tellEnd(const RunRecord &record)
{
    const KindOfRun kind = kindOf(record);
    m_announcer.say(record.summary);
    // Who is here has seen it, and who has cancelled knows.
    if (record.outcome == Outcome::Cancelled || isProgramInFront()) return;
    const bool isFailure = record.outcome != Outcome::Succeeded;
    m_folder = isFailure || record.kind == u"look" ? QString() : folderToOpen(record);
    m_notices->show({.title = isFailure ? kind.failed : kind.finished,
                     .text = record.summary,
                     .isFailure = isFailure,
                     .opensFolder = !m_folder.isEmpty()});
}

// Of a synchronisation it may be on a server.
QString RunNotices::folderToOpen(const RunRecord &record) const
{
    const QString extracted = record.kind == u"extract" ? m_controller.extractedFolder() : QString();
    const QString folder = extracted.isEmpty() ? record.folder : extracted;
    const bool mayBeRemote = record.kind == u"sync" && !folder.startsWith(u'/');
    return mayBeRemote ? QString() : folder;
}

void RunNotices::customEvent(QEvent *)
{
    if (m_given == DesktopNotices::Answer::Show)
        Q_EMIT showRequested();
    else if (!m_folder.isEmpty())
        m_controller.openAddress(QUrl::fromLocalFile(m_folder).toString(QUrl::FullyEncoded));
}

} // namespace ui
