#pragma once

#include <QTimer>
#include <functional>

class QuillorentAppDelegate;

namespace ui {

/// When to look at the disk again: a moment after a change, for several come together, and while a run is at
/// work not before it has ended.
class LookTimer {
public:
    LookTimer(const QuillorentAppDelegate &controller, std::function<void()> look);

    void lookSoon();

private:
    QTimer m_timer;
};

} // namespace ui
