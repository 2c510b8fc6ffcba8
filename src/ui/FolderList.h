#pragma once

#include "ui/PathList.h"

namespace ui {

class SourceFacts;

/// The folder list: of each entry its name, its place, and what is known of it. What would keep it from being
/// backed up stands in the place of its size.
class FolderListModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit FolderListModel(QObject *parent = nullptr);

    void setFacts(const SourceFacts &facts); ///< must live as long

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    [[nodiscard]] QString text(const QString &path, int column) const;
    [[nodiscard]] QString explanation(const QString &path) const;

    const SourceFacts *m_facts = nullptr;
};

/// Shows the folder list.
class FolderListView : public PathListView {
    Q_OBJECT

public:
    explicit FolderListView(QWidget *parent = nullptr);

    void setFacts(const SourceFacts &facts) { m_list->setFacts(facts); }

private:
    FolderListModel *m_list;
};

} // namespace ui
