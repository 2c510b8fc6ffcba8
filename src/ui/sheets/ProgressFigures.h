#pragma once

#include "runs/RunProgress.h"

#include <QObject>
#include <QTimer>

class QLabel;
class QTreeWidget;

namespace ui {

class RunBar;

/// What the progress sheet tells beyond its outlets: bytes, pace, the time it still takes, a row for each
/// item, and a bar that moves as long as anything does. Looks at the run five times a second while the sheet
/// is shown, and not otherwise.
class ProgressFigures : public QObject {
    Q_OBJECT

public:
    /// The widgets of one sheet that it fills.
    struct Widgets {
        RunBar &bar;
        QLabel &bytesDone;
        QLabel &pace;
        QLabel &timeLeft;
        QLabel &elapsed;
        QTreeWidget &items;
    };

    ProgressFigures(const RunState &run, const Widgets &widgets);

    void setRunning(bool running);

private:
    void update();
    void updateItems(const std::vector<RunFigures::Item> &items);

    const RunState &m_run;
    RunProgress m_progress;
    const Widgets m_widgets;
    QTimer m_timer;
    int m_firstRunning = -1; ///< its row was brought into view
};

} // namespace ui
