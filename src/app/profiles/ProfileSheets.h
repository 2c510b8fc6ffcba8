#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// The sheets that rename, make, duplicate and delete a profile.
struct ProfileSheets : virtual outlets::Registry {
    outlets::Panel profilePanel01{*this, u"profilePanel01"_qs};
    outlets::TextField panel01text01{*this, u"panel01text01"_qs}; ///< the profile to rename
    outlets::TextField panel01text02{*this, u"panel01text02"_qs}; ///< its new name

    outlets::Panel profilePanel02{*this, u"profilePanel02"_qs};
    outlets::TextField panel02text01{*this, u"panel02text01"_qs}; ///< the new profile's name
    outlets::CheckBox mustDos01{*this, u"mustDos01"_qs}; ///< it begins with the folders that everybody has

    outlets::Panel profilePanel03{*this, u"profilePanel03"_qs};
    outlets::TextField panel03text01{*this, u"panel03text01"_qs}; ///< the profile to duplicate
    outlets::TextField panel03text02{*this, u"panel03text02"_qs}; ///< the duplicate's name

    outlets::Panel profilePanel04{*this, u"profilePanel04"_qs};
    outlets::TextField panel04text01{*this, u"panel04text01"_qs}; ///< the profile to delete

    outlets::Panel warningPanel04{*this, u"warningPanel04"_qs};
    outlets::TextField warningText04{*this, u"warningText04"_qs}; ///< why a name can't be taken
};
