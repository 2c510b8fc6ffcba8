#include "ui/lists/OutletTableView.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ui {

namespace {

/// Keeps paths readable in every language, and gives cells some room on their right, so that columns which
/// fit their contents do not touch.
class RoomyDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(16, 0);
    }

protected:
    // A path is read from left to right where all else is mirrored: the marks keep its slashes in their
    // places.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        constexpr QChar leftToRight(0x200E);
        if (option->text.startsWith(u'/')) option->text = leftToRight + option->text + leftToRight;
    }
};

} // namespace

OutletTableView::OutletTableView(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab leads on to the next control
    setCornerButtonEnabled(false);
    setTextElideMode(Qt::ElideMiddle);
    setItemDelegate(new RoomyDelegate(this));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QSize OutletTableView::sizeHint() const
{
    constexpr int rows = 4;
    const int header = horizontalHeader()->isVisibleTo(this) ? horizontalHeader()->sizeHint().height() : 0;
    const int height = header + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
    return {QTableView::sizeHint().width(), height};
}

void OutletTableView::setOutletModel(OutletTableModel *model)
{
    m_model = model;
    setModel(model);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { Q_EMIT selectedRowsChanged(selectedRows()); });
}

QList<int> OutletTableView::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void OutletTableView::selectRows(const QList<int> &rows)
{
    QItemSelection selection;
    for (const int row : rows)
        if (row < m_model->rowCount()) selection.select(m_model->index(row, 0), m_model->index(row, 0));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

} // namespace ui
