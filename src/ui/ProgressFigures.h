#pragma once

#include <QObject>
#include <QTimer>

class QLabel;
class QTreeWidget;
class RunState;

namespace ui {

/// What the progress sheet tells beyond its bar: counts, bytes, the items that are worked on, the time. Looks
/// at the run five times a second while the sheet is shown, and not otherwise.
class ProgressFigures : public QObject {
    Q_OBJECT

public:
    /// The widgets of one sheet that it fills.
    struct Widgets {
        QLabel &itemsDone;
        QLabel &bytesDone;
        QLabel &elapsed;
        QTreeWidget &itemsRunning;
    };

    ProgressFigures(const RunState &run, const Widgets &widgets);

    void setRunning(bool running);

private:
    void update();
    void updateItems();

    const RunState &m_run;
    const Widgets m_widgets;
    QTimer m_timer;
};

} // namespace ui
