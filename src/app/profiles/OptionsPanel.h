#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// Processing options of a profile.
struct OptionsPanel : virtual outlets::Registry {
    outlets::Panel preferencesPanel01{*this, QStringLiteral("preferencesPanel01")};
    outlets::Selector prefSelector01{*this, QStringLiteral("prefSelector01")}; ///< symmetric method
    outlets::Selector prefSelector02{*this,
                                     QStringLiteral("prefSelector02")};  ///< asymmetric method: there is one
    outlets::CheckBox prefCheck02{*this, QStringLiteral("prefCheck02")}; ///< treat every destination as empty
    outlets::CheckBox prefCheck03{
        *this, QStringLiteral("prefCheck03")}; ///< compress before encrypting, as `checkBox06`
};
