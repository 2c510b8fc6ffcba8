#pragma once

#include <QString>

// What the looks before all runs have in common.

/// A sentence on a folder that another run holds.
[[nodiscard]] QString whyBusy(const QString &folder);

/// A sentence where no record of the run can be kept; empty where one can.
[[nodiscard]] QString concernAboutRecords();

/// Whether the archiver finds nothing wrong with the archive, or with the set that it is the first volume of.
/// Blocks.
[[nodiscard]] bool isWholeArchive(const QString &archiver, const QString &archive);
