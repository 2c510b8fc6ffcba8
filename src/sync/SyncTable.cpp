#include "sync/SyncTable.h"

#include "app/QuillorentAppDelegate.h"

namespace {

plist::Array entries() { return theDelegate().currentRecord().array(u"sync"_qs); }

} // namespace

int syncTable::numberOfRows() const { return int(entries().count()); }

QVariant syncTable::objectValue(const QString &column, int row) const
{
    return column == u"c10" ? entries().at(row).string().value_or(QString()) : QString();
}
