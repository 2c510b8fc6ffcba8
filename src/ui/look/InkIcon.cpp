#include "ui/look/InkIcon.h"

#include <QApplication>
#include <QBuffer>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QByteArray ink = QByteArrayLiteral("currentColor");

QPixmap draw(QByteArray drawing, const QColor &color, const QSize &size)
{
    drawing.replace(ink, color.name().toLatin1());
    QBuffer buffer(&drawing);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(size);
    return QPixmap::fromImage(reader.read());
}

QPixmap grey(const QPixmap &pixmap)
{
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(QIcon::Disabled, pixmap, &option);
}

class InkEngine final : public QIconEngine {
public:
    InkEngine(const QString &name, const QByteArray &drawing) : m_name(name), m_drawing(drawing) {}

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(place, pixmap((QSizeF(place.size()) * ratio).toSize(), mode, state));
    }

    QSize actualSize(const QSize &place, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(place.width(), place.height());
        return {side, side};
    }

    QPixmap pixmap(const QSize &place, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize size = actualSize(place, mode, state);
        const QColor color = QGuiApplication::palette().color(
            QPalette::Active, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
        const bool isGrey = mode == QIcon::Disabled;
        const QString key =
            u"ink-%1-%2-%3-%4"_s.arg(m_name).arg(size.width()).arg(color.name()).arg(isGrey ? 1 : 0);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) return drawn;
        drawn = draw(m_drawing, color, size);
        if (isGrey) drawn = grey(drawn);
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    QIconEngine *clone() const override { return new InkEngine(*this); }
    QString iconName() override { return m_name; }

private:
    QString m_name;
    QByteArray m_drawing;
};

} // namespace

bool hasInk(const QByteArray &drawing) { return drawing.contains(ink); }

QIcon inkIcon(const QString &name, const QByteArray &drawing) { return QIcon(new InkEngine(name, drawing)); }

} // namespace ui
