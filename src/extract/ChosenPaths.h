#pragma once

#include "extract/ExtractOrder.h"
#include "files/MoveTree.h"

/// Makes paths of the one form that the order takes, "home/anna/letter", each once, and none that lies in
/// another. Why one of them can lead to nothing in an archive; else empty.
[[nodiscard]] QString tidyChosen(std::vector<std::string> &paths);

/// Lets the order's stages work in a private folder of its own in the extraction folder.
void workInPrivate(ExtractOrder &order);

/// Moves what was chosen of `archive`, which is unpacked in `folder`, to where the order wants it, and tells
/// `brought` each path there; without it, where one is not in the archive, nothing. `example` is one of the
/// archive's paths. Why it failed, else empty; then what was not moved stays.
[[nodiscard]] QString bringChosen(const ExtractOrder &order, const QString &archive, const QString &folder,
                                  const QString &example, const MoveTree::Events &events,
                                  const std::function<void(const QString &)> &brought);

/// The deepest folder that both are, or lie in. Both are absolute paths.
[[nodiscard]] QString commonFolder(const QString &one, const QString &other);
