#pragma once

#include "ui/OutletTableView.h"

namespace ui {

/// The folder list: each path with the icon of what lies there; what is not there any more is greyed.
class FolderListModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit FolderListModel(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
};

/// Shows the folder list, takes files and folders that are dropped onto it, and says what to do while it is
/// empty.
class FolderListView : public OutletTableView {
    Q_OBJECT

public:
    explicit FolderListView(QWidget *parent = nullptr);

Q_SIGNALS:
    void pathsDropped(const QStringList &paths);
    void deletePressed();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace ui
