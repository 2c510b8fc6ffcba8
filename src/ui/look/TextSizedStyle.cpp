#include "ui/look/TextSizedStyle.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace ui {

int TextSizedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        // A line is a little higher than its letters.
        return std::max(usual,
                        QFontMetrics(widget ? widget->font() : QApplication::font()).height() * 9 / 10);
    default:
        return usual;
    }
}

} // namespace ui
