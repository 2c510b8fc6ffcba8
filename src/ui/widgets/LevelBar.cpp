#include "ui/widgets/LevelBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace ui {
namespace {

// Between light and dark, so that each can be told apart from either background.
constexpr QColor goodColour(0x2e, 0xa0, 0x43);
constexpr QColor warningColour(0xd9, 0x8e, 0x04);
constexpr QColor criticalColour(0xd1, 0x34, 0x38);

QColor colourOf(const LevelBar::State &state)
{
    if (state.value <= state.critical) return criticalColour;
    if (state.value <= state.warning) return warningColour;
    return goodColour;
}

} // namespace

/// One segment for each step of the level.
class LevelBar::Bar : public QWidget {
public:
    using QWidget::QWidget;

    void setState(const State &state)
    {
        m_state = state;
        update();
    }

    [[nodiscard]] QSize sizeHint() const override { return {120, 14}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const int segments = std::max(int(m_state.maximum), 1);
        const double gap = 3;
        const double segmentWidth = (width() - gap * (segments - 1)) / segments;
        for (int segment = 0; segment < segments; ++segment) {
            const bool filled = segment < m_state.value;
            const QRectF place(segment * (segmentWidth + gap), 0, segmentWidth, height());
            painter.setPen(Qt::NoPen);
            painter.setBrush(filled || m_state.value == 0 ? emptyOr(filled) : palette().color(QPalette::Mid));
            painter.drawRoundedRect(place, 3, 3);
        }
    }

private:
    // With nothing in order there is no filled segment that could carry the colour, so the empty ones hint at
    // it.
    [[nodiscard]] QColor emptyOr(bool filled) const
    {
        if (m_state.maximum <= 0) return palette().color(QPalette::Mid);
        QColor colour = colourOf(m_state);
        if (!filled) colour.setAlphaF(0.35F);
        return colour;
    }

    State m_state;
};

LevelBar::LevelBar(QWidget *parent) : QWidget(parent), m_bar(new Bar(this)), m_text(new QLabel(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_bar);
    row->addWidget(m_text, 1);
    m_bar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setState({});
}

QString LevelBar::text() const { return m_text->text(); }

void LevelBar::setState(const State &state)
{
    m_bar->setState(state);
    m_text->setText(state.maximum > 0 ? tr("%1 of %2 tools are in order").arg(state.value).arg(state.maximum)
                                      : tr("No tools checked"));
    setAccessibleName(m_text->text());
}

} // namespace ui
