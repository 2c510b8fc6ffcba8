#pragma once

#include "plist/Dictionary.h"

#include <QStringList>

namespace quillorentLibrary {

/// Registers the program's own companions anew, in place, where the program lies now: those of the settings'
/// tools whose path is gone and that lay in the companions' folder of an installation. Gives the names of the
/// tools.
QStringList findCompanionsAgain(const plist::Dictionary &settings);

} // namespace quillorentLibrary
