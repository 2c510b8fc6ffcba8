#pragma once

#include "Diagnostics.h"

namespace archiver {

/// `Drop` puts all files straight into the folder, and makes no folders.
enum class Paths { Keep, Drop };

/// Makes an archive's entries below a folder, which is made where it is missing, over what is there already,
/// nothing of which is ever opened. A file appears under its name only when it is complete. Times and modes
/// of folders are set at the end.
void extractArchive(const std::string &archive, const std::string &folder, Paths paths,
                    Diagnostics &diagnostics);

} // namespace archiver
