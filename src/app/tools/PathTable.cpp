#include "app/tools/PathTable.h"

#include "app/QuillorentAppDelegate.h"
#include "app/tools/Compliance.h"
#include "tools/RegisteredTool.h"
#include "tools/Verification.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(tools)
};

plist::Dictionary registry() { return theDelegate().configPlist().dictionary(u"external"_s); }

} // namespace

int pathTable::numberOfRows() const { return int(registeredTools().size()); }

QVariant pathTable::objectValue(const QString &column, int row) const
{
    const QString tool = registeredTools().value(row);
    if (column == u"c10") return tool;
    if (column == u"c20") return registry().string(tool).value_or(QString());
    if (column == u"c30") return quillorentLibrary::testAll(tool);
    return QString();
}

void pathTable::setObjectValue(const QVariant &value, const QString &column, int row)
{
    const QString tool = registeredTools().value(row);
    if (column != u"c20" || tool.isNull()) return;
    registry().setValue(tool, value.toString());
    theDelegate().pathTableView.reloadData();
}

void QuillorentAppDelegate::selectFile()
{
    const auto chosen = openPanel(
        {.title = Words::tr("Choose a tool"), .directory = u"/usr/bin"_s, .allowedFileTypes = {u""_s}});
    const QString tool = registeredTools().value(pathTableView.selectedRow());
    if (chosen && !chosen->isEmpty() && !tool.isNull()) registry().setValue(tool, chosen->first());
    quillorentLibrary::updateCompliance();
    pathTableView.reloadData();
}
