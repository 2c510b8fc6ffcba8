#include "ui/lists/OutletTableModel.h"

#include "files/Printable.h"
namespace ui {

OutletTableModel::OutletTableModel(QList<Column> columns, QObject *parent, SlowCells::Fetch fetch,
                                   QStringList alsoFetched)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
    , m_alsoFetched(std::move(alsoFetched))
    , m_slowCells(fetch)
{
    connect(&m_slowCells, &SlowCells::fetched, this, &OutletTableModel::setFetched);
}

QVariant OutletTableModel::fetchFromSource(const outlets::TableDataSource &source, const QString &column,
                                           int row)
{
    return source.objectValue(column, row);
}

int OutletTableModel::columnOf(const QString &identifier) const
{
    for (int column = 0; column < m_columns.size(); ++column)
        if (m_columns[column].identifier == identifier) return column;
    return -1;
}

void OutletTableModel::setSource(outlets::TableDataSource *source)
{
    if (m_source == source) return;
    m_source = source;
    reload();
}

// Rows come and go at the end and only cells that differ are announced, so that a reload neither loses the
// selection nor disturbs a cell that is being edited.
void OutletTableModel::reload()
{
    const QList<Row> rows = readQuickCells();
    removeBehind(int(rows.size()));
    const int kept = int(m_rows.size());
    for (int row = 0; row < kept; ++row)
        setRow(row, rows[row]);
    append(rows.mid(kept));
    fetchSlowCells();
}

QList<OutletTableModel::Row> OutletTableModel::readQuickCells() const
{
    QList<Row> rows;
    const int count = m_source ? m_source->numberOfRows() : 0;
    for (int row = 0; row < count; ++row) {
        Row cells;
        for (const Column &column : m_columns)
            if (!m_source->isSlow(column.identifier))
                cells.insert(column.identifier, m_source->objectValue(column.identifier, row));
        rows.append(cells);
    }
    return rows;
}

void OutletTableModel::removeBehind(int rows)
{
    const int before = int(m_rows.size());
    if (before <= rows) return;
    beginRemoveRows({}, rows, before - 1);
    m_rows.resize(rows);
    endRemoveRows();
}

// New rows come with their cells: a hundred thousand of them would take long to announce one by one.
void OutletTableModel::append(const QList<Row> &rows)
{
    if (rows.isEmpty()) return;
    const int before = int(m_rows.size());
    beginInsertRows({}, before, before + int(rows.size()) - 1);
    m_rows.append(rows);
    endInsertRows();
}

void OutletTableModel::setRow(int row, const Row &cells)
{
    const Row before = std::exchange(m_rows[row], cells);
    for (int column = 0; column < m_columns.size(); ++column)
        if (before.value(identifier(column)) != cells.value(identifier(column)))
            Q_EMIT dataChanged(index(row, column), index(row, column));
}

void OutletTableModel::fetchSlowCells()
{
    if (!m_source) return;
    QList<SlowCells::Cell> cells;
    for (int row = 0; row < m_rows.size(); ++row) {
        for (const Column &column : m_columns)
            if (m_source->isSlow(column.identifier)) cells.append({column.identifier, row});
        for (const QString &name : m_alsoFetched)
            cells.append({name, row});
    }
    m_slowCells.fetch(*m_source, cells);
}

void OutletTableModel::setFetched(const QString &column, int row, const QVariant &value)
{
    if (row >= m_rows.size()) return;
    m_rows[row].insert(column, value);
    const int shownIn = columnOf(column);
    if (shownIn >= 0)
        Q_EMIT dataChanged(index(row, shownIn), index(row, shownIn));
    else
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int OutletTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int OutletTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant OutletTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return m_columns.value(section).title;
}

QVariant OutletTableModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    const QVariant value = cell(index.row(), identifier(index.column()));
    const bool isText = value.userType() == QMetaType::QString;
    return role == Qt::DisplayRole && isText ? printableName(value.toString()) : value;
}

bool OutletTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !m_source) return false;
    m_source->setObjectValue(value, identifier(index.column()), index.row());
    return true;
}

Qt::ItemFlags OutletTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags basic = QAbstractTableModel::flags(index);
    const bool editable = m_source && m_source->isEditable(identifier(index.column()));
    return editable ? basic | Qt::ItemIsEditable : basic;
}

} // namespace ui
