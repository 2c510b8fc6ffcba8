#pragma once

#include "tools/ToolRun.h"

/// Runs the tool that the settings register under `name`, as runTool() does. One that is not registered can't
/// be started, and the result says so.
[[nodiscard]] ToolResult runRegisteredTool(const QString &name, const QStringList &arguments);
