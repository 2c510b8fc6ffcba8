#include "ui/lists/ArchiveList.h"

#include "app/extraction/ExtractTable.h"
#include "extract/ArchiveName.h"
#include "ui/look/Appearance.h"

#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString pathColumn = u"c10"_s;
const QString stateCell = u"state"_s;

enum State { Missing, LaterVolume, LeftOut, Extracted };

// On another thread, because a network folder that does not answer is asked too.
QVariant stateOfArchive(const outlets::TableDataSource &source, const QString &, int row)
{
    const QString path = source.objectValue(pathColumn, row).toString();
    if (static_cast<const extractTable &>(source).isExtracted(row))
        return int(QFileInfo::exists(path) ? Extracted : Missing);
    const std::optional<VolumeName> volume = volumeName(path);
    return int(volume && volume->isLater() ? LaterVolume : LeftOut);
}

QString describe(State state)
{
    switch (state) {
    case Missing:
        return ArchiveListModel::tr("not found");
    case LaterVolume:
        return ArchiveListModel::tr("comes with the first volume of its set");
    case LeftOut:
        return ArchiveListModel::tr(
            "not extracted: its path has \"part\" and a number, as later volumes have it");
    case Extracted:
        break;
    }
    return {};
}

} // namespace

ArchiveListModel::ArchiveListModel(QObject *parent)
    : OutletTableModel({{pathColumn, tr("Archive")}}, parent, stateOfArchive, {stateCell})
{
}

QVariant ArchiveListModel::data(const QModelIndex &index, int role) const
{
    const QVariant known = cell(index.row(), stateCell);
    const State state = known.isValid() ? State(known.toInt()) : Extracted;
    switch (role) {
    case Qt::DecorationRole:
        return themeIcon(u"package-x-generic"_s);
    case Qt::ForegroundRole:
        return state == Extracted ? QVariant()
                                  : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case Qt::ToolTipRole: {
        const QString path = cell(index.row(), pathColumn).toString();
        return plainToolTip(state == Extracted ? path : path + u'\n' + describe(state));
    }
    case Qt::AccessibleDescriptionRole:
        return state == Extracted ? QVariant() : describe(state);
    default:
        return OutletTableModel::data(index, role);
    }
}

ArchiveListView::ArchiveListView(QWidget *parent)
    : PathListView(tr("Drop archives, or a folder of them, here, or press Add"), parent)
{
    setOutletModel(new ArchiveListModel(this));
}

} // namespace ui
