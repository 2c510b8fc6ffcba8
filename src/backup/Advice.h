#pragma once

#include <QString>

/// What to do after the backup of an entry failed, by the reason that its record gives. Never empty.
[[nodiscard]] QString adviceOnFailure(const QString &reason);
