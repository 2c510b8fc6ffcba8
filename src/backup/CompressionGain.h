#pragma once

#include <QStringList>
#include <functional>
#include <optional>

/// About which share of the bytes below `paths` is left where they are compressed; 1 where that gains
/// nothing. Packs samples, and takes a few seconds at the most. None where there is nothing to read, or
/// `goesOn`, which is asked often, said no.
[[nodiscard]] std::optional<double> estimateCompressedShare(const QStringList &paths,
                                                            const std::function<bool()> &goesOn);
