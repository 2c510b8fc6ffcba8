#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/TextView.h"

/// What the program says: the warning that something can't start, and the console log.
struct Messages : virtual outlets::Registry {
    outlets::Panel warningPanel01{*this, u"warningPanel01"_qs};
    outlets::TextField warningText01{*this, u"warningText01"_qs}; ///< which condition failed, and what to do

    outlets::Panel noPathPanel01{*this, u"noPathPanel01"_qs};
    outlets::TextField noPathText01{*this, u"noPathText01"_qs}; ///< how many tools are missing or wrong

    outlets::Panel consolePanel01{*this, u"consolePanel01"_qs};
    outlets::TextView consoleTextView01{*this, u"consoleTextView01"_qs};
};
