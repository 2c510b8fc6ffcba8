#pragma once

#include "ui/lists/PathList.h"

namespace ui {

/// The list of archives: those that are not extracted by themselves are greyed, with the reason beside them.
class ArchiveListModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit ArchiveListModel(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
};

/// Shows the list of archives.
class ArchiveListView : public PathListView {
    Q_OBJECT

public:
    explicit ArchiveListView(QWidget *parent = nullptr);
};

} // namespace ui
