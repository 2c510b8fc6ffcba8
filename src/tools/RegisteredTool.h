#pragma once

#include "plist/Dictionary.h"
#include "tools/ToolRun.h"

#include <functional>

/// Tells where the tables of the external tools are: the settings in force, asked for at each use. Called
/// once, before anything runs a tool.
void setToolSettings(std::function<plist::Dictionary()> settings);

/// The text under the tool's name in the settings' table: "external" (path), "verifiers", "executables". None
/// where either is missing.
[[nodiscard]] std::optional<QString> toolSetting(const QString &table, const QString &name);

/// The names of all tools that the settings register, in their order. What gives no path as its text, such as
/// a table that lies there, is no tool.
[[nodiscard]] QStringList registeredTools();

/// The path that is registered for the tool; empty where none is.
[[nodiscard]] QString registeredTool(const QString &name);

/// Runs the tool that the settings register under `name`, as runTool() does. One that is not registered can't
/// be started, and the result says so.
[[nodiscard]] ToolResult runRegisteredTool(const QString &name, const QStringList &arguments);
