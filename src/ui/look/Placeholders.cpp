#include "ui/look/Placeholders.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <cmath>

namespace ui {
namespace {

constexpr double leastContrast = 4.5; // of the guidelines for accessible text

double luminance(const QColor &color)
{
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// `part` of the upper color over the lower one.
QColor mix(const QColor &upper, const QColor &lower, float part)
{
    const auto channel = [part](float above, float below) { return above * part + below * (1 - part); };
    return QColor::fromRgbF(channel(upper.redF(), lower.redF()), channel(upper.greenF(), lower.greenF()),
                            channel(upper.blueF(), lower.blueF()));
}

void makeReadable()
{
    QPalette palette = QGuiApplication::palette();
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor now = palette.color(QPalette::Active, QPalette::PlaceholderText);
    if (contrast(mix(now, base, now.alphaF()), base) >= leastContrast) return;
    QColor better = text;
    for (float part = 0.6F; part < 1 && better == text; part += 0.1F)
        if (contrast(mix(text, base, part), base) >= leastContrast) better = mix(text, base, part);
    if (better == now) return; // there is no better one, and setting it would come back here
    palette.setColor(QPalette::PlaceholderText, better);
    QApplication::setPalette(palette);
}

class PaletteWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) makeReadable();
        return false;
    }
};

} // namespace

void keepPlaceholdersReadable()
{
    qApp->installEventFilter(new PaletteWatch(qApp));
    makeReadable();
}

} // namespace ui
