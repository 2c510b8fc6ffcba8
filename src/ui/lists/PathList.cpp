#include "ui/lists/PathList.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace ui {

QStringList PathListView::localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    return paths;
}

bool PathListView::acceptPaths(QDropEvent &event)
{
    if (localPaths(*event.mimeData()).isEmpty()) {
        event.ignore();
        return false;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

PathListView::PathListView(const QString &advice, QWidget *parent) : OutletTableView(parent), m_advice(advice)
{
    setSelectionMode(ExtendedSelection);
    setAcceptDrops(true);
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
}

void PathListView::dragEnterEvent(QDragEnterEvent *event)
{
    acceptPaths(*event);
    setHeldOver(event->isAccepted());
}

void PathListView::dragMoveEvent(QDragMoveEvent *event) { acceptPaths(*event); }

void PathListView::dragLeaveEvent(QDragLeaveEvent *) { setHeldOver(false); }

void PathListView::dropEvent(QDropEvent *event)
{
    setHeldOver(false);
    acceptPaths(*event);
    if (event->isAccepted()) Q_EMIT pathsDropped(localPaths(*event->mimeData()));
}

void PathListView::setHeldOver(bool isHeldOver)
{
    m_isHeldOver = isHeldOver;
    viewport()->update();
}

void PathListView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete))
        Q_EMIT deletePressed();
    else
        OutletTableView::keyPressEvent(event);
}

void PathListView::paintEvent(QPaintEvent *event)
{
    OutletTableView::paintEvent(event);
    QPainter painter(viewport());
    if (m_isHeldOver)
        paintWelcome(painter);
    else if (outletModel().rowCount() == 0)
        paintAdvice(painter);
}

void PathListView::paintAdvice(QPainter &painter) const
{
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_advice);
}

// Over the rows, which shine through: they stay where they are.
void PathListView::paintWelcome(QPainter &painter) const
{
    const QRect all = viewport()->rect();
    QColor veil = palette().color(QPalette::Base);
    veil.setAlphaF(0.85F);
    painter.fillRect(all, veil);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    painter.drawRect(all.adjusted(1, 1, -2, -2));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(all.adjusted(12, 12, -12, -12), int(Qt::AlignCenter) | int(Qt::TextWordWrap),
                     tr("Let go to add to the list"));
}

} // namespace ui
