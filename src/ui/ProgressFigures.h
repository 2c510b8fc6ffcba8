#pragma once

#include <QObject>
#include <QTimer>

class RunState;

namespace Ui {
class ProgressPanel01;
} // namespace Ui

namespace ui {

/// What the progress sheet tells beyond its bar: counts, bytes, the items that are worked on, the time. Looks
/// at the run five times a second while the sheet is shown, and not otherwise.
class ProgressFigures : public QObject {
    Q_OBJECT

public:
    ProgressFigures(const RunState &run, Ui::ProgressPanel01 &form);

    void setRunning(bool running);

private:
    void update();
    void updateItems();

    const RunState &m_run;
    Ui::ProgressPanel01 &m_form;
    QTimer m_timer;
};

} // namespace ui
