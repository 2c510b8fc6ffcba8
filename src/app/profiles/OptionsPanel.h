#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// Processing options of a profile.
struct OptionsPanel : virtual outlets::Registry {
    outlets::Panel preferencesPanel01{*this, u"preferencesPanel01"_qs};
    outlets::Selector prefSelector01{*this, u"prefSelector01"_qs}; ///< symmetric method
    outlets::Selector prefSelector02{*this, u"prefSelector02"_qs}; ///< asymmetric method: there is one
    outlets::CheckBox prefCheck02{*this, u"prefCheck02"_qs};       ///< treat every destination as empty
    outlets::CheckBox prefCheck03{*this, u"prefCheck03"_qs}; ///< compress before encrypting, as `checkBox06`
};
