#pragma once

#include "ui/lists/OutletTableView.h"

namespace ui {

/// The registered tools; their state in words beside a coloured sign.
class ToolTableModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit ToolTableModel(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    /// In words what a registered tool is there for; empty for one that is not the program's own.
    static QString purpose(const QString &tool);
};

/// Shows the tools, with a button in each row that asks for another file.
class ToolTableView : public OutletTableView {
    Q_OBJECT

public:
    explicit ToolTableView(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The row is selected already.
    void chooseRequested();

private:
    void updateButtons();
};

} // namespace ui
