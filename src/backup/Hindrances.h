#pragma once

#include "backup/BackupOrder.h"

#include <vector>

/// What keeps a backup from starting: it would cost files, leave clear text or encrypt with a bad secret.
struct Hindrance {
    /// Where it can be put right.
    enum class Place { Sources, Destination, Password, Certificate, VolumeSize, Settings };

    Place place = Place::Settings;
    QString text; ///< what is wrong and what to do

    friend bool operator==(const Hindrance &, const Hindrance &) = default;
};
using Hindrances = std::vector<Hindrance>;

/// The password's, where it is by password. Looks at nothing but the order.
[[nodiscard]] Hindrances hindrancesByPassword(const BackupOrder &order);

/// All others. Looks at the disk, and may block where one does not answer; writes nothing and holds nothing.
/// Of archives that would meet it tells only where the destination is there and the settings name them.
[[nodiscard]] Hindrances otherHindrances(const BackupOrder &order);
