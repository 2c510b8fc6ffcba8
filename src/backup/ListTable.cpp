#include "backup/ListTable.h"

#include "app/QuillorentAppDelegate.h"

namespace {

plist::Array folders() { return theDelegate().currentRecord().array(u"folders"_qs); }

} // namespace

int listTable::numberOfRows() const { return int(folders().count()); }

QVariant listTable::objectValue(const QString &column, int row) const
{
    return column == u"c10" ? folders().at(row).string().value_or(QString()) : QString();
}

void listTable::setObjectValue(const QVariant &, const QString &, int)
{
    theDelegate().listTableView.reloadData();
}
