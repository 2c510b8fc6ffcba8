#include "ui/widgets/Spinner.h"

#include "ui/widgets/Motion.h"

#include <QPainter>
#include <QTimerEvent>

namespace ui {
namespace {

constexpr int steps = 12; // of one turn
constexpr int millisecondsPerStep = 80;

} // namespace

Spinner::Spinner(QWidget *parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

void Spinner::setTurning(bool turning)
{
    m_turning = turning;
    updateTimer();
    update();
}

void Spinner::updateTimer()
{
    if (!m_turning || !isVisible() || !isMotionWanted())
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start(millisecondsPerStep, this);
}

void Spinner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) return;
    m_step = (m_step + 1) % steps;
    update();
}

void Spinner::showEvent(QShowEvent *) { updateTimer(); }

void Spinner::hideEvent(QHideEvent *) { updateTimer(); }

void Spinner::paintEvent(QPaintEvent *)
{
    if (!m_turning) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.rotate(m_step * 360.0 / steps);

    // A ring of spokes that fade out behind the first one.
    const double outer = std::min(width(), height()) / 2.0 - 1;
    for (int spoke = 0; spoke < steps; ++spoke) {
        QColor colour = palette().color(QPalette::WindowText);
        colour.setAlphaF(float(spoke + 1) / steps);
        painter.setPen(QPen(colour, outer / 4, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -outer / 2), QPointF(0, -outer + outer / 8));
        painter.rotate(360.0 / steps);
    }
}

} // namespace ui
