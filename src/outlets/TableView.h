#pragma once

#include "outlets/Outlet.h"

#include <QList>
#include <QVariant>

namespace outlets {

/// Where a table's cells come from; read-only and at hand unless it says otherwise. Any thread may ask.
class TableDataSource {
public:
    TableDataSource() = default;
    virtual ~TableDataSource() = default;
    TableDataSource(const TableDataSource &) = delete;
    TableDataSource &operator=(const TableDataSource &) = delete;

    [[nodiscard]] virtual int numberOfRows() const = 0;

    /// A text or a truth value; the empty string for a column that the table does not know.
    [[nodiscard]] virtual QVariant objectValue(const QString &column, int row) const = 0;

    /// What was typed into a cell. A source that can't be edited ignores it.
    virtual void setObjectValue([[maybe_unused]] const QVariant &value,
                                [[maybe_unused]] const QString &column, [[maybe_unused]] int row)
    {
    }

    [[nodiscard]] virtual bool isEditable([[maybe_unused]] const QString &column) const { return false; }

    /// Whether a cell of the column takes so long (a tool is run) that no window may wait for it.
    [[nodiscard]] virtual bool isSlow([[maybe_unused]] const QString &column) const { return false; }
};

class TableView : public Outlet {
public:
    using Outlet::Outlet;

    /// None until one is set. The source must live as long as the outlet.
    [[nodiscard]] TableDataSource *dataSource() const { return read(m_source); }
    void setDataSource(TableDataSource *source) { write(m_source, source); }

    /// Rows that the user selected, ascending.
    [[nodiscard]] QList<int> selectedRows() const { return read(m_selected); }
    void setSelectedRows(const QList<int> &rows) { write(m_selected, rows); }
    [[nodiscard]] int selectedRow() const
    {
        return selectedRows().value(0, -1);
    } ///< the first; -1 where none is

    /// Asks whoever shows the table to fetch all cells again.
    void reloadData()
    {
        update([this] {
            ++m_reloads;
            return true;
        });
    }
    /// How often it was reloaded: tells a reload from another change.
    [[nodiscard]] int reloads() const { return read(m_reloads); }

private:
    TableDataSource *m_source = nullptr;
    QList<int> m_selected;
    int m_reloads = 0;
};

} // namespace outlets
