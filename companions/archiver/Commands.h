#pragma once

#include "Arguments.h"
#include "Diagnostics.h"

namespace archiver {

/// Does what the arguments ask for. All that goes wrong is reported; silence is success.
void runCommand(const Arguments &arguments, Diagnostics &diagnostics);

} // namespace archiver
