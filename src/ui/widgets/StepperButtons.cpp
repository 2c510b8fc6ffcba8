#include "ui/widgets/StepperButtons.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace ui {

StepperButtons::StepperButtons(QWidget *parent) : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    addArrow(Qt::UpArrow, tr("Larger"), 1);
    addArrow(Qt::DownArrow, tr("Smaller"), -1);
}

void StepperButtons::addArrow(Qt::ArrowType arrow, const QString &name, int direction)
{
    auto *button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRepeat(true);
    button->setFixedSize(20, 13);
    button->setFocusPolicy(Qt::NoFocus); // the field's up and down keys do the same
    connect(button, &QToolButton::clicked, this, [this, direction] { step(direction); });
    layout()->addWidget(button);
}

void StepperButtons::setRange(int lowest, int highest, int step)
{
    m_lowest = lowest;
    m_highest = highest;
    m_step = step;
}

void StepperButtons::listenTo(QLineEdit &field) { field.installEventFilter(this); }

bool StepperButtons::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return QWidget::eventFilter(watched, event);
    step(key == Qt::Key_Up ? 1 : -1);
    return true;
}

void StepperButtons::step(int direction)
{
    const qint64 wanted = qint64{m_value} + qint64{direction} * m_step;
    const int next = int(std::clamp<qint64>(wanted, m_lowest, m_highest));
    if (next == m_value) return;
    m_value = next;
    Q_EMIT stepped(next);
}

} // namespace ui
