#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// The sheets that rename, make, duplicate and delete a profile.
struct ProfileSheets : virtual outlets::Registry {
    outlets::Panel profilePanel01{*this, QStringLiteral("profilePanel01")};
    outlets::TextField panel01text01{*this, QStringLiteral("panel01text01")}; ///< the profile to rename
    outlets::TextField panel01text02{*this, QStringLiteral("panel01text02")}; ///< its new name

    outlets::Panel profilePanel02{*this, QStringLiteral("profilePanel02")};
    outlets::TextField panel02text01{*this, QStringLiteral("panel02text01")}; ///< the new profile's name
    outlets::CheckBox mustDos01{
        *this, QStringLiteral("mustDos01")}; ///< it begins with the folders that everybody has

    outlets::Panel profilePanel03{*this, QStringLiteral("profilePanel03")};
    outlets::TextField panel03text01{*this, QStringLiteral("panel03text01")}; ///< the profile to duplicate
    outlets::TextField panel03text02{*this, QStringLiteral("panel03text02")}; ///< the duplicate's name

    outlets::Panel profilePanel04{*this, QStringLiteral("profilePanel04")};
    outlets::TextField panel04text01{*this, QStringLiteral("panel04text01")}; ///< the profile to delete

    outlets::Panel warningPanel04{*this, QStringLiteral("warningPanel04")};
    outlets::TextField warningText04{*this, QStringLiteral("warningText04")}; ///< why a name can't be taken
};
