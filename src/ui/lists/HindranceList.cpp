#include "ui/lists/HindranceList.h"

#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

using Place = Hindrance::Place;

QString wayTo(Place place)
{
    switch (place) {
    case Place::Sources:
        return HindranceList::tr("Go to the list");
    case Place::Destination:
        return HindranceList::tr("Choose the place");
    case Place::Password:
        return HindranceList::tr("Go to the password");
    case Place::Certificate:
        return HindranceList::tr("Go to the certificate");
    case Place::VolumeSize:
        return HindranceList::tr("Go to the size");
    case Place::Settings:
        break;
    }
    return HindranceList::tr("Go to the tools");
}

} // namespace

HindranceList::HindranceList(QWidget *parent) : QFrame(parent), m_lines(new QVBoxLayout(this))
{
    setFrameShape(StyledPanel);
    m_lines->setContentsMargins(8, 4, 8, 4);
    m_lines->setSpacing(2);
    auto *title = new QLabel(tr("Still missing for a backup:"), this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_lines->addWidget(title);
    hide();
}

void HindranceList::setHindrances(const Hindrances &hindrances)
{
    if (m_shown == hindrances) return; // its buttons may have the focus
    m_shown = hindrances;
    while (m_lines->count() > 1) {
        const std::unique_ptr<QLayoutItem> line(m_lines->takeAt(1));
        line->widget()->hide();
        line->widget()->deleteLater();
    }
    QWidget *before = m_predecessor;
    for (const Hindrance &hindrance : hindrances) {
        QToolButton *way = addLine(hindrance);
        if (before) setTabOrder(before, way);
        before = way;
    }
    setHidden(hindrances.empty());
}

QToolButton *HindranceList::addLine(const Hindrance &hindrance)
{
    auto *line = new QWidget(this);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    auto *sign = new QLabel(line);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    sign->setPixmap(themeIcon(u"dialog-warning"_s).pixmap(size));
    row->addWidget(sign, 0, Qt::AlignTop);
    auto *text = new QLabel(breakable(hindrance.text), line);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    row->addWidget(text, 1);
    auto *way = new QToolButton(line);
    way->setText(wayTo(hindrance.place));
    way->setAccessibleDescription(hindrance.text);
    way->setFocusPolicy(Qt::StrongFocus);
    connect(way, &QToolButton::clicked, this, [this, place = hindrance.place] { Q_EMIT placeWanted(place); });
    row->addWidget(way, 0, Qt::AlignTop);
    m_lines->addWidget(line);
    return way;
}

} // namespace ui
