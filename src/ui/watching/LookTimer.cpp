#include "ui/watching/LookTimer.h"

#include "app/QuillorentAppDelegate.h"

using namespace std::chrono_literals;

namespace ui {
namespace {

constexpr auto soon = 50ms;
constexpr auto afterRun = 500ms;

} // namespace

LookTimer::LookTimer(const QuillorentAppDelegate &controller, std::function<void()> look)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, &controller, look = std::move(look)] {
        if (controller.isRunActive())
            m_timer.start(afterRun);
        else
            look();
    });
}

void LookTimer::lookSoon()
{
    if (!m_timer.isActive()) m_timer.start(soon);
}

} // namespace ui
