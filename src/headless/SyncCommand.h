#pragma once

#include "headless/ExitStatus.h"
#include "headless/Options.h"

class QuillorentAppDelegate;

/// Synchronises what the current profile lists as the window's button does, and waits for the end.
[[nodiscard]] ExitStatus runSync(QuillorentAppDelegate &delegate, const Options &options);
