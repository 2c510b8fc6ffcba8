#pragma once

#include "app/DesktopNotices.h"
#include "runs/RunProgress.h"
#include "runs/RunRecord.h"

#include <QTimer>
#include <atomic>

class QuillorentAppDelegate;

namespace ui {

class Announcer;
class PanelDialog;

/// Tells how a run goes to whoever doesn't look at the window: on the program's sign in the desktop's bar
/// while it works, by a notice at its end, and to those who hear what is on the screen.
class RunNotices : public QObject {
    Q_OBJECT

public:
    /// Begins when one of the sheets shows; lives as long as the announcer.
    RunNotices(QuillorentAppDelegate &controller, Announcer &announcer, const QList<PanelDialog *> &sheets);

Q_SIGNALS:
    void showRequested(); ///< the notice was pressed

protected:
    void customEvent(QEvent *) override; ///< the notice was answered

private:
    void begin();
    void look();
    void tellDamage();
    void tellEnd(const RunRecord &record);
    [[nodiscard]] QString folderToOpen(const RunRecord &record) const;

    QuillorentAppDelegate &m_controller;
    Announcer &m_announcer;
    RunProgress m_progress;
    std::optional<int> m_shownHundredth;
    bool m_isDamageShown = false;
    QDateTime m_toldOf; ///< when the run began whose end was told last
    QString m_folder;   ///< of the last notice
    QTimer m_timer;
    std::atomic<DesktopNotices::Answer> m_given{DesktopNotices::Answer::Show}; ///< on the bus's thread
    std::optional<DesktopNotices> m_notices;                                   ///< from the first run on
};

} // namespace ui
