#pragma once

#include "StopSignals.h"

namespace archiver {

/// Whether a signal asked to stop: the work in hand stops then, and removes what it has not finished.
[[nodiscard]] inline bool interrupted() { return base::StopSignals::received() != 0; }

} // namespace archiver
