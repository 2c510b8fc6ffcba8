#pragma once

#include <QString>

// What the looks before all runs have in common.

/// A sentence on a folder that another run holds.
[[nodiscard]] QString whyBusy(const QString &folder);

/// A sentence where no record of the run can be kept; empty where one can.
[[nodiscard]] QString concernAboutRecords();

/// What to do where the OpenSSL tool complains of its own way to derive keys from passwords.
[[nodiscard]] QString whyOtherOpenSsl();

/// Whether the archiver finds nothing wrong with the archive, or with the set that it is the first volume of.
/// Blocks.
[[nodiscard]] bool isWholeArchive(const QString &archiver, const QString &archive);
