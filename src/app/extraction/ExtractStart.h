#pragma once

#include "app/Start.h"

#include <string>
#include <vector>

class QuillorentAppDelegate;

/// Looks into the archive, unless that was done before, and shows what it holds. Several archives, or none,
/// are an obstacle. Main thread.
[[nodiscard]] RunStart prepareLook(QuillorentAppDelegate &delegate, const QStringList &archives);

/// Brings back what is chosen of the archive, by paths as the archive has them. Main thread.
[[nodiscard]] RunStart preparePart(QuillorentAppDelegate &delegate, const QStringList &archives,
                                   const std::vector<std::string> &chosen);
