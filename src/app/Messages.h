#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/TextView.h"

/// What the program says: why something can't start, what to think of before it does, what is left of it, and
/// the console log.
struct Messages : virtual outlets::Registry {
    outlets::Panel warningPanel01{*this, u"warningPanel01"_qs};
    outlets::TextField warningText01{*this, u"warningText01"_qs}; ///< which condition failed, and what to do

    outlets::Panel concernsPanel01{*this, u"concernsPanel01"_qs};   ///< before a run: go on all the same?
    outlets::TextField concernsText01{*this, u"concernsText01"_qs}; ///< what was found

    // Below the tabs, hidden where there is nothing to say.
    outlets::TextField toolsText01{*this,
                                   u"toolsText01"_qs}; ///< what still is at work after a run has failed
    outlets::Button toolsCancel01{*this, u"toolsCancel01"_qs};
    outlets::TextField clearText01{*this,
                                   u"clearText01"_qs}; ///< files that runs left, and that are not encrypted
    outlets::Button clearRemove01{*this, u"clearRemove01"_qs};

    outlets::Panel noPathPanel01{*this, u"noPathPanel01"_qs};
    outlets::TextField noPathText01{*this, u"noPathText01"_qs}; ///< how many tools are missing or wrong

    outlets::Panel consolePanel01{*this, u"consolePanel01"_qs};
    outlets::TextView consoleTextView01{*this, u"consoleTextView01"_qs};
};
