#pragma once

#include "outlets/Controls.h"

/// Processing options of a profile.
struct OptionsPanel : virtual outlets::Registry {
    outlets::Selector prefSelector01{*this, u"prefSelector01"_qs}; ///< symmetric method
    outlets::CheckBox prefCheck02{*this, u"prefCheck02"_qs};       ///< treat every destination as empty
};
