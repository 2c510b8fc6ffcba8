#pragma once

#include "ui/facts/SourceFacts.h"
#include "ui/lists/PathList.h"

namespace ui {

/// What is done with the entries of a list.
enum class ListPurpose { Backup, Synchronisation };

/// A folder list: of each entry its name, its place, and what is known of it. What would keep it from being
/// backed up, or synchronised, stands in the place of its size.
class FolderListModel : public OutletTableModel {
    Q_OBJECT

public:
    explicit FolderListModel(QObject *parent = nullptr);

    void setFacts(const SourceFacts &facts, ListPurpose purpose); ///< they must live as long

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    [[nodiscard]] QString text(const QString &path, int column) const;
    [[nodiscard]] SourceFacts::Fact fact(const QString &path) const;

    const SourceFacts *m_facts = nullptr;
    ListPurpose m_purpose = ListPurpose::Backup;
};

/// Shows the folder list.
class FolderListView : public PathListView {
    Q_OBJECT

public:
    explicit FolderListView(QWidget *parent = nullptr);

    void setFacts(const SourceFacts &facts, ListPurpose purpose);

    [[nodiscard]] QSize sizeHint() const override; ///< a few rows; more where there is room

private:
    FolderListModel *m_list;
};

} // namespace ui
