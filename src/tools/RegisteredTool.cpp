#include "tools/RegisteredTool.h"

#include "plist/Value.h"

using namespace Qt::StringLiterals;

namespace {

std::function<plist::Dictionary()> &toolSettings()
{
    static std::function<plist::Dictionary()> settings = [] { return plist::Dictionary(); };
    return settings;
}

} // namespace

void setToolSettings(std::function<plist::Dictionary()> settings) { toolSettings() = std::move(settings); }

std::optional<QString> toolSetting(const QString &table, const QString &name)
{
    return toolSettings()().dictionary(table).string(name);
}

QStringList registeredTools()
{
    QStringList names;
    const QList<plist::Dictionary::Entry> entries = toolSettings()().dictionary(u"external"_s).entries();
    for (const auto &[name, value] : entries)
        if (value.isString()) names.append(name);
    return names;
}

QString registeredTool(const QString &name) { return toolSetting(u"external"_s, name).value_or(QString()); }

ToolResult runRegisteredTool(const QString &name, const QStringList &arguments)
{
    return runTool(registeredTool(name), arguments);
}
