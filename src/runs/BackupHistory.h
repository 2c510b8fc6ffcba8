#pragma once

#include "runs/RunRecord.h"

#include <unordered_map>

/// What the records tell of the backups of a profile.
struct BackupHistory {
    /// Of one entry of the list, when it was last backed up well.
    struct Good {
        QDateTime when;
        quint64 bytes = 0; ///< that it had then
    };
    std::unordered_map<QString, Good> good; ///< by its path
    /// The run that ended last, or was killed; none where there is no record of one.
    std::optional<RunRecord> last;
};

/// Reads all records; takes a moment. A run that is at work is none of them.
[[nodiscard]] BackupHistory backupHistory(const QString &profile);
