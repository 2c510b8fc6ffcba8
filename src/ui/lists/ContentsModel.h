#pragma once

#include "extract/ArchiveListing.h"

#include <QAbstractItemModel>
#include <memory>

namespace ui {

/// What an archive holds, as a tree with a box each. What is below a folder is put in order when first looked
/// at: there may be a million names.
class ContentsModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { Name, Size, Changed };

    explicit ContentsModel(QObject *parent = nullptr);

    void setListing(std::shared_ptr<const ArchiveListing> listing); ///< nothing is chosen in it

    /// The paths of what is chosen, folders for all that is in them.
    [[nodiscard]] std::vector<std::string> chosen() const;
    [[nodiscard]] qint64 filesChosen() const;
    [[nodiscard]] qint64 bytesChosen() const;

    /// The next after `from`, going round, whose name holds the text, whatever its case; none where there is
    /// none.
    [[nodiscard]] QModelIndex find(const QString &text, const QModelIndex &from);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void choiceChanged();

private:
    struct Node {
        std::vector<int> below; ///< indexes of what is right in it
        bool isSorted = false;
        Qt::CheckState box = Qt::Unchecked;
        int end = 0; ///< the index behind all that is below it
    };

    [[nodiscard]] const ArchiveListing::Entry &entryOf(int index) const
    {
        return m_listing->entries[std::size_t(index)];
    }
    [[nodiscard]] QString nameOf(int index) const;
    [[nodiscard]] QVariant textOf(int index, int column) const;
    [[nodiscard]] const std::vector<int> &below(int index) const;
    [[nodiscard]] QModelIndex indexOf(int index) const;
    [[nodiscard]] std::vector<int> tops() const; ///< of what is chosen
    void tellBelow(const QModelIndex &folder);

    std::shared_ptr<const ArchiveListing> m_listing;
    mutable std::vector<Node> m_nodes; ///< one more than entries: the last is what everything is in
};

} // namespace ui
