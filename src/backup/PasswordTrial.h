#pragma once

#include "backup/BackupOrder.h"

/// Whether the order's password opens an archive that it is about to replace.
struct PasswordTrial {
    enum class Verdict {
        NotTried, ///< there is none, or none that could be read as far as that
        Opens,
        Wrong, ///< the archive was made with another one, or is damaged
    };
    Verdict verdict = Verdict::NotTried;
    QString archive{}; ///< the one that it was tried on, or its first volume
};

/// Tries the password on the beginning of the first archive that lends itself to it. Runs the archiver and
/// the encoder, each for a moment. Nothing is written in clear.
[[nodiscard]] PasswordTrial tryPassword(const BackupOrder &order);
