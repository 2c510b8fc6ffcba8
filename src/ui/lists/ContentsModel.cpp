#include "ui/lists/ContentsModel.h"

#include "files/Printable.h"
#include "ui/look/Appearance.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

ContentsModel::ContentsModel(QObject *parent)
    : QAbstractItemModel(parent), m_listing(std::make_shared<const ArchiveListing>()), m_nodes(1)
{
}

void ContentsModel::setListing(std::shared_ptr<const ArchiveListing> listing)
{
    beginResetModel();
    m_listing = std::move(listing);
    const std::size_t count = m_listing->entries.size();
    m_nodes.assign(count + 1, {});
    for (std::size_t index = count; index-- > 0;) {
        Node &node = m_nodes[index];
        node.end = std::max(node.end, int(index) + 1);
        const int above = entryOf(int(index)).parent;
        Node &parent = m_nodes[above == ArchiveListing::top ? count : std::size_t(above)];
        parent.end = std::max(parent.end, node.end);
        parent.below.push_back(int(index));
    }
    endResetModel();
    Q_EMIT choiceChanged();
}

QString ContentsModel::nameOf(int index) const
{
    return QFile::decodeName(QByteArray::fromStdString(entryOf(index).name));
}

const std::vector<int> &ContentsModel::below(int index) const
{
    Node &node = m_nodes[index == ArchiveListing::top ? m_nodes.size() - 1 : std::size_t(index)];
    if (node.isSorted) return node.below;
    const std::vector<int> &places = m_listing->places;
    std::sort(node.below.begin(), node.below.end(),
              [&](int left, int right) { return places[std::size_t(left)] < places[std::size_t(right)]; });
    node.isSorted = true;
    return node.below;
}

QModelIndex ContentsModel::indexOf(int index) const
{
    if (index == ArchiveListing::top) return {};
    const std::vector<int> &siblings = below(entryOf(index).parent);
    const auto at = std::find(siblings.begin(), siblings.end(), index);
    return createIndex(int(at - siblings.begin()), Name, quintptr(index));
}

QModelIndex ContentsModel::index(int row, int column, const QModelIndex &parent) const
{
    const std::vector<int> &rows = below(parent.isValid() ? int(parent.internalId()) : ArchiveListing::top);
    if (row < 0 || std::size_t(row) >= rows.size() || column < 0 || column > Changed) return {};
    return createIndex(row, column, quintptr(rows[std::size_t(row)]));
}

QModelIndex ContentsModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(entryOf(int(index.internalId())).parent) : QModelIndex();
}

int ContentsModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > Name) return 0;
    const std::size_t node = parent.isValid() ? std::size_t(parent.internalId()) : m_nodes.size() - 1;
    return int(m_nodes[node].below.size());
}

int ContentsModel::columnCount(const QModelIndex &) const { return Changed + 1; }

QVariant ContentsModel::textOf(int index, int column) const
{
    const ArchiveListing::Entry &entry = entryOf(index);
    const QLocale locale;
    if (column == Name) return printableName(nameOf(index));
    if (column == Size) return locale.formattedDataSize(entry.bytes, 1, QLocale::DataSizeSIFormat);
    if (entry.modified == 0) return {};
    return locale.toString(QDateTime::fromSecsSinceEpoch(entry.modified), QLocale::ShortFormat);
}

QVariant ContentsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) return {};
    const int entry = int(index.internalId());
    switch (role) {
    case Qt::DisplayRole:
        return textOf(entry, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(u'/' + QFile::decodeName(QByteArray::fromStdString(m_listing->pathOf(entry))));
    case Qt::DecorationRole: {
        const bool isFolder = entryOf(entry).kind == FileEntry::Kind::Folder;
        if (index.column() != Name) return {};
        return themeIcon(isFolder ? u"folder"_s : u"text-x-generic"_s);
    }
    case Qt::CheckStateRole:
        return index.column() == Name ? QVariant(m_nodes[std::size_t(entry)].box) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Size ? QVariant(int(Qt::AlignRight) | int(Qt::AlignVCenter)) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags ContentsModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.column() == Name ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant ContentsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == Name ? tr("Name") : section == Size ? tr("Size") : tr("Changed");
}

bool ContentsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || index.column() != Name) return false;
    const auto box = Qt::CheckState(value.toInt());
    const auto entry = std::size_t(index.internalId());
    for (std::size_t each = entry; each < std::size_t(m_nodes[entry].end); ++each)
        m_nodes[each].box = box; // what is below stands right behind
    for (int above = entryOf(int(entry)).parent; above != ArchiveListing::top;
         above = entryOf(above).parent) {
        Node &folder = m_nodes[std::size_t(above)];
        const auto isLike = [this](Qt::CheckState state) {
            return [this, state](int each) { return m_nodes[std::size_t(each)].box == state; };
        };
        const auto all = [&](Qt::CheckState state) {
            return std::all_of(folder.below.begin(), folder.below.end(), isLike(state));
        };
        folder.box = all(Qt::Checked)     ? Qt::Checked
                     : all(Qt::Unchecked) ? Qt::Unchecked
                                          : Qt::PartiallyChecked;
    }
    for (QModelIndex each = index; each.isValid(); each = each.parent())
        Q_EMIT dataChanged(each, each, {Qt::CheckStateRole});
    tellBelow(index);
    Q_EMIT choiceChanged();
    return true;
}

/// Of what nobody has looked at yet nobody has to be told.
void ContentsModel::tellBelow(const QModelIndex &folder)
{
    const Node &node = m_nodes[std::size_t(folder.internalId())];
    if (!node.isSorted || node.below.empty()) return;
    const int rows = int(node.below.size());
    Q_EMIT dataChanged(index(0, Name, folder), index(rows - 1, Name, folder), {Qt::CheckStateRole});
    for (int row = 0; row < rows; ++row)
        tellBelow(index(row, Name, folder));
}

std::vector<int> ContentsModel::tops() const
{
    std::vector<int> found;
    for (int index = 0; index < int(m_listing->entries.size());) {
        const Node &node = m_nodes[std::size_t(index)];
        if (node.box == Qt::Checked) found.push_back(index);
        index = node.box == Qt::PartiallyChecked ? index + 1 : node.end;
    }
    return found;
}

std::vector<std::string> ContentsModel::chosen() const
{
    std::vector<std::string> paths;
    for (const int index : tops())
        paths.push_back(m_listing->pathOf(index));
    return paths;
}

qint64 ContentsModel::filesChosen() const
{
    qint64 files = 0;
    for (const int index : tops())
        files += entryOf(index).files;
    return files;
}

qint64 ContentsModel::bytesChosen() const
{
    qint64 bytes = 0;
    for (const int index : tops())
        bytes += entryOf(index).bytes;
    return bytes;
}

QModelIndex ContentsModel::find(const QString &text, const QModelIndex &from)
{
    const int count = int(m_listing->entries.size());
    const int start = from.isValid() ? int(from.internalId()) : -1;
    for (int step = 1; step <= count && !text.isEmpty(); ++step) {
        const int index = (start + step) % count;
        if (nameOf(index).contains(text, Qt::CaseInsensitive)) return indexOf(index);
    }
    return {};
}

} // namespace ui
