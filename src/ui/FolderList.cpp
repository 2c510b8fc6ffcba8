#include "ui/FolderList.h"

#include "ui/Appearance.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace ui {
namespace {

const QString pathColumn = u"c10"_qs;
const QString kindCell = u"kind"_qs;

enum Kind { Missing, File, Folder };

// Asking the file system may take long (a network folder that does not answer), so it happens where slow
// cells do.
QVariant kindOfEntry(const outlets::TableDataSource &source, const QString &, int row)
{
    const QFileInfo entry(source.objectValue(pathColumn, row).toString());
    if (entry.isSymLink() && !entry.exists()) return int(File);
    if (!entry.exists()) return int(Missing);
    return int(entry.isDir() ? Folder : File);
}

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

FolderListModel::FolderListModel(QObject *parent)
    : OutletTableModel({{pathColumn, tr("Folder or file")}}, parent, kindOfEntry, {kindCell})
{
}

QVariant FolderListModel::data(const QModelIndex &index, int role) const
{
    const int kind =
        cell(index.row(), kindCell).isValid() ? cell(index.row(), kindCell).toInt() : int(Folder);
    switch (role) {
    case Qt::DecorationRole:
        return kind == File ? themeIcon(u"text-x-generic"_qs) : themeIcon(u"folder"_qs);
    case Qt::ForegroundRole:
        return kind == Missing ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                               : QVariant();
    case Qt::ToolTipRole: {
        const QString path = cell(index.row(), pathColumn).toString();
        return plainToolTip(kind == Missing ? tr("%1\nnot found: will be skipped").arg(path) : path);
    }
    case Qt::AccessibleDescriptionRole:
        return kind == Missing ? tr("not found: will be skipped") : QVariant();
    default:
        return OutletTableModel::data(index, role);
    }
}

FolderListView::FolderListView(QWidget *parent) : OutletTableView(parent)
{
    setOutletModel(new FolderListModel(this));
    setSelectionMode(ExtendedSelection);
    setAcceptDrops(true);
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
}

void FolderListView::dragEnterEvent(QDragEnterEvent *event) { acceptPaths(*event); }

void FolderListView::dragMoveEvent(QDragMoveEvent *event) { acceptPaths(*event); }

void FolderListView::dropEvent(QDropEvent *event)
{
    acceptPaths(*event);
    if (event->isAccepted()) Q_EMIT pathsDropped(localPaths(*event->mimeData()));
}

void FolderListView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete))
        Q_EMIT deletePressed();
    else
        OutletTableView::keyPressEvent(event);
}

void FolderListView::paintEvent(QPaintEvent *event)
{
    OutletTableView::paintEvent(event);
    if (outletModel().rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     int(Qt::AlignCenter) | int(Qt::TextWordWrap), tr("Drop folders here, or press Add"));
}

} // namespace ui
