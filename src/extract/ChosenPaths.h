#pragma once

#include "extract/ExtractOrder.h"

/// Makes paths of the one form that the order takes, "home/anna/letter", each once, and none that lies in
/// another. Why one of them can lead to nothing in an archive; else empty.
[[nodiscard]] QString tidyChosen(std::vector<std::string> &paths);

/// Lets the order's stages work in a private folder of its own in the extraction folder.
void workInPrivate(ExtractOrder &order);

/// The deepest folder that both are, or lie in. Both are absolute paths.
[[nodiscard]] QString commonFolder(const QString &one, const QString &other);
