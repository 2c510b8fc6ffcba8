#include "ui/PathList.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace ui {
namespace {

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    return paths;
}

void acceptPaths(QDropEvent &event)
{
    if (localPaths(*event.mimeData()).isEmpty()) {
        event.ignore();
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

PathListView::PathListView(const QString &advice, QWidget *parent) : OutletTableView(parent), m_advice(advice)
{
    setSelectionMode(ExtendedSelection);
    setAcceptDrops(true);
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
}

void PathListView::dragEnterEvent(QDragEnterEvent *event) { acceptPaths(*event); }

void PathListView::dragMoveEvent(QDragMoveEvent *event) { acceptPaths(*event); }

void PathListView::dropEvent(QDropEvent *event)
{
    acceptPaths(*event);
    if (event->isAccepted()) Q_EMIT pathsDropped(localPaths(*event->mimeData()));
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
    if (outletModel().rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_advice);
}

} // namespace ui
