#include "app/extraction/ExtractTable.h"

#include "app/QuillorentAppDelegate.h"

int extractTable::numberOfRows() const { return int(theDelegate().extractFullList.count()); }

QVariant extractTable::objectValue(const QString &column, int row) const
{
    return column == u"c10" ? theDelegate().extractFullList.at(row).string().value_or(QString()) : QString();
}

bool extractTable::isExtracted(int row) const
{
    return theDelegate().extractList.contains(theDelegate().extractFullList.at(row));
}
