#include "ui/lists/FolderList.h"

#include "files/Names.h"
#include "files/Printable.h"
#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"

#include <QFileInfo>
#include <QFont>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString pathColumn = u"c10"_s;

enum Column { Name, Place, Size, BackedUp };

QList<OutletTableModel::Column> columns()
{
    return {{pathColumn, FolderListModel::tr("Name")},
            {u"place"_s, FolderListModel::tr("Place")},
            {u"size"_s, FolderListModel::tr("Size")},
            {u"backedUp"_s, FolderListModel::tr("Last backed up")}};
}

QString shortly(SourceState state)
{
    switch (state) {
    case SourceState::Fine:
        break;
    case SourceState::Missing:
        return FolderListModel::tr("not found");
    case SourceState::Unsuitable:
        return FolderListModel::tr("neither file nor folder");
    case SourceState::Link:
        return FolderListModel::tr("only a link");
    case SourceState::HoldsDestination:
        return FolderListModel::tr("holds the destination");
    }
    return {};
}

QString atLength(SourceState state)
{
    switch (state) {
    case SourceState::Fine:
        break;
    case SourceState::Missing:
        return FolderListModel::tr("Not found, and left out. Connect its disk, or remove it.");
    case SourceState::Unsuitable:
        return FolderListModel::tr("Neither a file nor a folder, and left out by a backup. Remove it.");
    case SourceState::Link:
        return FolderListModel::tr("A link to another place: only the link itself would be backed up. Add "
                                   "the folder that it leads to.");
    case SourceState::HoldsDestination:
        return FolderListModel::tr("The archives go into this folder, so each would hold the ones before it. "
                                   "Choose another destination.");
    }
    return {};
}

} // namespace

FolderListModel::FolderListModel(QObject *parent) : OutletTableModel(columns(), parent) {}

void FolderListModel::setFacts(const SourceFacts &facts, ListPurpose purpose)
{
    m_facts = &facts;
    m_purpose = purpose;
    connect(&facts, &SourceFacts::changed, this, [this] {
        if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    });
}

QString FolderListModel::text(const QString &path, int column) const
{
    const SourceFacts::Fact fact = this->fact(path);
    switch (column) {
    case Name: {
        const QString name = quillorentLibrary::lastPathComponent(path);
        return printableName(name.isEmpty() ? path : name);
    }
    case Place:
        return pathText(QFileInfo(path.endsWith(u'/') ? path.chopped(1) : path).path());
    case Size:
        if (fact.state != SourceState::Fine) return shortly(fact.state);
        // The space keeps it off the next column.
        return fact.bytes ? sizeText(*fact.bytes) + QChar(QChar::Nbsp)
                          : tr("…", "a size that is being measured");
    default:
        if (fact.backedUp.isValid()) return momentText(fact.backedUp);
        return fact.isKnown ? tr("never") : QString();
    }
}

SourceFacts::Fact FolderListModel::fact(const QString &path) const
{
    SourceFacts::Fact fact = m_facts ? m_facts->of(path) : SourceFacts::Fact();
    // What else is odd for a backup is copied as it is.
    if (m_purpose == ListPurpose::Synchronisation && fact.state != SourceState::Missing)
        fact.state = SourceState::Fine;
    return fact;
}

QVariant FolderListModel::data(const QModelIndex &index, int role) const
{
    const QString path = cell(index.row(), pathColumn).toString();
    const SourceFacts::Fact fact = this->fact(path);
    const bool isWrong = fact.state != SourceState::Fine;
    switch (role) {
    case Qt::DisplayRole:
        return text(path, index.column());
    case Qt::DecorationRole:
        if (index.column() != Name) return {};
        if (isWrong) return themeIcon(u"dialog-warning"_s);
        return themeIcon(fact.isFile ? u"text-x-generic"_s : u"folder"_s);
    case Qt::FontRole: {
        QFont font;
        font.setItalic(fact.state == SourceState::Missing);
        font.setBold(isWrong && index.column() == Size);
        return isWrong ? font : QVariant();
    }
    case Qt::TextAlignmentRole:
        return index.column() == Size && !isWrong ? int(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ToolTipRole:
        return plainToolTip(isWrong ? path + u'\n' + atLength(fact.state) : path);
    case Qt::AccessibleDescriptionRole:
        return isWrong ? atLength(fact.state) : path;
    default:
        return OutletTableModel::data(index, role);
    }
}

FolderListView::FolderListView(QWidget *parent)
    : PathListView(tr("Drop folders here, or press Add"), parent), m_list(new FolderListModel(this))
{
    setOutletModel(m_list);
    QHeaderView &header = *horizontalHeader();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(Name, QHeaderView::Stretch);
    header.setSectionResizeMode(Place, QHeaderView::Stretch);
    header.setSectionResizeMode(Size, QHeaderView::ResizeToContents);
    header.setSectionResizeMode(BackedUp, QHeaderView::ResizeToContents);
    header.setSectionsClickable(false);
    header.show();
}

void FolderListView::setFacts(const SourceFacts &facts, ListPurpose purpose)
{
    m_list->setFacts(facts, purpose);
    setColumnHidden(BackedUp, purpose != ListPurpose::Backup);
}

QSize FolderListView::sizeHint() const
{
    constexpr int rows = 4;
    const int height =
        horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize();
    return {PathListView::sizeHint().width(), height + 2 * frameWidth()};
}

} // namespace ui
