#pragma once

#include "app/SheetMonitor.h"

/// Where a backup shows how it goes.
[[nodiscard]] RunSheet backupSheet(QuillorentAppDelegate &delegate);
