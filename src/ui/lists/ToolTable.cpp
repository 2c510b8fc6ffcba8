#include "ui/lists/ToolTable.h"

#include "ui/look/Appearance.h"

#include <QHeaderView>
#include <QPushButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString nameColumn = u"c10"_s;
const QString pathColumn = u"c20"_s;
const QString stateColumn = u"c30"_s;
const QString buttonColumn = u"c40"_s;

} // namespace

ToolTableModel::ToolTableModel(QObject *parent)
    : OutletTableModel({{nameColumn, tr("Program")},
                        {pathColumn, tr("Path")},
                        {stateColumn, tr("Status")},
                        {buttonColumn, QString()}},
                       parent)
{
}

QString ToolTableModel::purpose(const QString &tool)
{
    if (tool == u"RAR") return tr("makes and opens archives");
    if (tool == u"OpenSSL") return tr("encrypts and decrypts");
    if (tool == u"RSync") return tr("copies what has changed");
    return {};
}

QVariant ToolTableModel::data(const QModelIndex &index, int role) const
{
    const QVariant value = cell(index.row(), identifier(index.column()));
    if (role == Qt::DisplayRole && identifier(index.column()) == nameColumn) {
        const QString what = purpose(value.toString());
        return what.isEmpty() ? value.toString() : tr("%1: %2").arg(value.toString(), what);
    }
    if (role == Qt::ToolTipRole && identifier(index.column()) == pathColumn)
        return plainToolTip(value.toString());
    if (identifier(index.column()) != stateColumn) return OutletTableModel::data(index, role);

    const bool known = value.isValid();
    if (role == Qt::DisplayRole)
        return !known ? tr("checking…") : value.toBool() ? tr("right tool") : tr("not usable");
    if (role == Qt::DecorationRole)
        return stateSign(!known ? Sign::Pending : value.toBool() ? Sign::Good : Sign::Bad);
    if (role == Qt::ToolTipRole && known && !value.toBool())
        return tr("The file is missing, can't be run, or is another program.");
    return {};
}

ToolTableView::ToolTableView(QWidget *parent) : OutletTableView(parent)
{
    setOutletModel(new ToolTableModel(this));
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);

    QHeaderView &header = *horizontalHeader();
    header.setSectionsClickable(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(outletModel().columnOf(pathColumn), QHeaderView::Stretch);

    connect(&outletModel(), &QAbstractItemModel::rowsInserted, this, &ToolTableView::updateButtons);
    connect(&outletModel(), &QAbstractItemModel::dataChanged, this, &ToolTableView::updateButtons);
}

void ToolTableView::updateButtons()
{
    QWidget *before = this;
    for (int row = 0; row < outletModel().rowCount(); ++row) {
        const QModelIndex place = outletModel().index(row, outletModel().columnOf(buttonColumn));
        auto *button = qobject_cast<QPushButton *>(indexWidget(place));
        if (!button) {
            button = new QPushButton(tr("Choose…"));
            connect(button, &QPushButton::clicked, this, [this, row] {
                selectRows({row});
                Q_EMIT chooseRequested();
            });
            // Letters of another font may make it taller than the table's own do a row.
            const int height = std::max(verticalHeader()->defaultSectionSize(), button->sizeHint().height());
            verticalHeader()->setDefaultSectionSize(height);
            setIndexWidget(place, button);
            setTabOrder(before, button);
        }
        before = button;
        button->setAccessibleName(
            tr("Choose the file of %1").arg(outletModel().cell(row, nameColumn).toString()));
    }
}

} // namespace ui
