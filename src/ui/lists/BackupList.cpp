#include "ui/lists/BackupList.h"

#include "files/Printable.h"
#include "ui/look/Appearance.h"

#include <QHeaderView>
#include <QLocale>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

enum Column { Name, Made, Size, Note };

constexpr int archiveRole = Qt::UserRole;

QString describeState(const FoundBackup &backup)
{
    if (!backup.hasBeginning) return BackupList::tr("its first part is missing");
    return backup.missing.isEmpty() ? QString() : BackupList::tr("incomplete");
}

QString describeWhole(const FoundBackup &backup)
{
    return backup.missing.isEmpty()
               ? backup.archive
               : backup.archive + u'\n' + BackupList::tr("Incomplete or mixed: %1.").arg(backup.missing);
}

} // namespace

BackupList::BackupList(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderLabels({tr("What was backed up"), tr("When"), tr("Size"), tr("State")});
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(Name, QHeaderView::Stretch);
    connect(this, &QTreeWidget::itemChanged, this, &BackupList::tellOfBox);
}

void BackupList::setBackups(const QList<FoundBackup> &backups)
{
    if (backups == m_backups) return;
    m_backups = backups;
    const QSignalBlocker quiet(this);
    clear();
    QTreeWidgetItem *newest = nullptr;
    QString name; // of the newest
    for (const FoundBackup &backup : backups) {
        if (backup.name != name) newest = nullptr;
        add(backup, newest);
        if (!newest) newest = topLevelItem(topLevelItemCount() - 1);
        name = backup.name;
    }
    updateGeometry();
}

void BackupList::add(const FoundBackup &backup, QTreeWidgetItem *newest)
{
    auto *item = newest ? new QTreeWidgetItem(newest) : new QTreeWidgetItem(this);
    const QLocale locale;
    item->setText(Name, printableName(backup.name));
    item->setText(Made, locale.toString(backup.made, QLocale::ShortFormat));
    item->setText(Size, locale.formattedDataSize(backup.bytes, 1, QLocale::DataSizeSIFormat));
    item->setText(Note, describeState(backup));
    item->setTextAlignment(Size, Qt::AlignRight | Qt::AlignVCenter);
    item->setIcon(Name, themeIcon(backup.missing.isEmpty() ? u"folder"_s : u"dialog-warning"_s));
    item->setData(Name, archiveRole, backup.archive);
    for (int column = Name; column <= Note; ++column)
        item->setToolTip(column, plainToolTip(describeWhole(backup)));
    // Nothing comes out of a set without its beginning: there is no box.
    if (backup.hasBeginning) item->setCheckState(Name, Qt::Unchecked);
}

void BackupList::setTaken(const QStringList &archives)
{
    const QSignalBlocker quiet(this);
    for (QTreeWidgetItemIterator each(this); *each; ++each) {
        if (!(*each)->data(Name, Qt::CheckStateRole).isValid()) continue;
        const bool isTaken = archives.contains((*each)->data(Name, archiveRole).toString());
        (*each)->setCheckState(Name, isTaken ? Qt::Checked : Qt::Unchecked);
    }
    viewport()->update();
}

void BackupList::tellOfBox(QTreeWidgetItem *item, int column)
{
    if (column != Name) return;
    Q_EMIT taken(item->data(Name, archiveRole).toString(), item->checkState(Name) == Qt::Checked);
}

int BackupList::heightOfRows(int rows) const
{
    const int row = topLevelItemCount() > 0 ? sizeHintForRow(0) : fontMetrics().height();
    return header()->sizeHint().height() + rows * std::max(row, fontMetrics().height()) + 2 * frameWidth();
}

QSize BackupList::sizeHint() const
{
    constexpr int most = 6;
    return {QTreeWidget::sizeHint().width(), heightOfRows(std::clamp(int(m_backups.size()), 2, most))};
}

QSize BackupList::minimumSizeHint() const
{
    return {QTreeWidget::minimumSizeHint().width(), heightOfRows(2)};
}

} // namespace ui
