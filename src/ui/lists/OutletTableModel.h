#pragma once

#include "outlets/TableView.h"
#include "ui/lists/SlowCells.h"

#include <QAbstractTableModel>
#include <QHash>

namespace ui {

/// The cells of a table's data source. Quick cells are read at once on reload; slow ones come from another
/// thread, and are invalid until they are there.
class OutletTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Column {
        QString identifier; ///< by which the data source knows it
        QString title;
    };

    /// `alsoFetched` are cells that have no column of their own but are fetched on the other thread too,
    /// through `fetch`.
    explicit OutletTableModel(QList<Column> columns, QObject *parent = nullptr,
                              SlowCells::Fetch fetch = fetchFromSource, QStringList alsoFetched = {});

    void setSource(outlets::TableDataSource *source); ///< none: no rows
    void reload();

    /// What is known of a cell; invalid while it is being fetched.
    [[nodiscard]] QVariant cell(int row, const QString &column) const
    {
        return m_rows.value(row).value(column);
    }
    [[nodiscard]] QString identifier(int column) const { return m_columns.value(column).identifier; }
    [[nodiscard]] int columnOf(const QString &identifier) const; ///< -1 where none has it

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    using Row = QHash<QString, QVariant>;

    static QVariant fetchFromSource(const outlets::TableDataSource &source, const QString &column, int row);
    [[nodiscard]] QList<Row> readQuickCells() const;
    void removeBehind(int rows);
    void append(const QList<Row> &rows);
    void setRow(int row, const Row &cells);
    void setFetched(const QString &column, int row, const QVariant &value);
    void fetchSlowCells();

    const QList<Column> m_columns;
    const QStringList m_alsoFetched;
    outlets::TableDataSource *m_source = nullptr;
    QList<Row> m_rows;
    SlowCells m_slowCells;
};

} // namespace ui
