#include "ui/widgets/ElidedLabel.h"

#include "ui/look/Appearance.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace ui {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

bool ElidedLabel::isElided() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

// A label asks for no more room than its text has, and reckons with mnemonics and margins that this has not.
QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int least = fontMetrics().averageCharWidth() * 6;
    return {std::min(least, sizeHint().width()), sizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isElided()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    const auto side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    style()->drawItemText(&painter, place, int(side), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace ui
