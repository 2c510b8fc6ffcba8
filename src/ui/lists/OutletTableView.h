#pragma once

#include "ui/lists/OutletTableModel.h"

#include <QTableView>

namespace ui {

/// A table of whole rows that shows a `TableView` outlet.
class OutletTableView : public QTableView {
    Q_OBJECT

public:
    explicit OutletTableView(QWidget *parent = nullptr);

    [[nodiscard]] OutletTableModel &outletModel() const { return *m_model; }

    [[nodiscard]] QList<int> selectedRows() const; ///< ascending
    void selectRows(const QList<int> &rows); ///< these and no others; rows that it does not have are left out

    /// Of a few rows: what is laid out around it comes first, and it takes the room that is left.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void selectedRowsChanged(const QList<int> &rows);

protected:
    /// Called once, by the class that knows the columns.
    void setOutletModel(OutletTableModel *model);

private:
    OutletTableModel *m_model = nullptr;
};

} // namespace ui
