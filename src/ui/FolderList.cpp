#include "ui/FolderList.h"

#include "ui/Appearance.h"

#include <QFileInfo>
#include <QGuiApplication>

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

FolderListView::FolderListView(QWidget *parent) : PathListView(tr("Drop folders here, or press Add"), parent)
{
    setOutletModel(new FolderListModel(this));
}

} // namespace ui
