#pragma once

#include "ui/PathList.h"

namespace ui {

/// The folder list: each path with the icon of what lies there; what is not there any more is greyed.
class FolderListModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit FolderListModel(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
};

/// Shows the folder list.
class FolderListView : public PathListView {
    Q_OBJECT

public:
    explicit FolderListView(QWidget *parent = nullptr);
};

} // namespace ui
