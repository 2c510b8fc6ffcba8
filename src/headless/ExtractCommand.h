#pragma once

#include "headless/ExitStatus.h"
#include "headless/Options.h"

class QuillorentAppDelegate;

/// Extracts archives with the current profile as the window's button does, and waits for the end. What the
/// window would ask is answered by the options or refused, with its text on standard error.
[[nodiscard]] ExitStatus runExtraction(QuillorentAppDelegate &delegate, const Options &options);

/// Prints what the one archive holds, in the same way.
[[nodiscard]] ExitStatus runListing(QuillorentAppDelegate &delegate, const Options &options);
