#include "tools/RegisteredTool.h"

#include "app/QuillorentAppDelegate.h"

ToolResult runRegisteredTool(const QString &name, const QStringList &arguments)
{
    return runTool(theDelegate().setting(u"external"_qs, name).value_or(QString()), arguments);
}
