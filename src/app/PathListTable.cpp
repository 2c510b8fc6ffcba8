#include "app/PathListTable.h"

#include "app/QuillorentAppDelegate.h"

namespace {

plist::Array pathsUnder(const QString &key) { return theDelegate().currentRecord().array(key); }

} // namespace

int PathListTable::numberOfRows() const { return int(pathsUnder(m_key).count()); }

QVariant PathListTable::objectValue(const QString &column, int row) const
{
    return column == u"c10" ? pathsUnder(m_key).at(row).string().value_or(QString()) : QString();
}

void PathListTable::setObjectValue(const QVariant &, const QString &, int) { m_view.reloadData(); }

void PathListTable::add(const QStringList &paths)
{
    const plist::Dictionary record = theDelegate().currentRecord();
    if (!paths.isEmpty() && !record.array(m_key)) record.setValue(m_key, plist::Array::make());
    record.array(m_key).append(paths);
    m_view.reloadData();
}

void PathListTable::removeSelected()
{
    pathsUnder(m_key).removeAt(m_view.selectedRows());
    m_view.reloadData();
}
