#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/TextView.h"

/// What the program says: why something can't start, what to think of before it does, what is left of it, and
/// the console log.
struct Messages : virtual outlets::Registry {
    outlets::Panel warningPanel01{*this, QStringLiteral("warningPanel01")};
    outlets::TextField warningText01{
        *this, QStringLiteral("warningText01")}; ///< which condition failed, and what to do

    outlets::Panel concernsPanel01{*this,
                                   QStringLiteral("concernsPanel01")}; ///< before a run: go on all the same?
    outlets::TextField concernsText01{*this, QStringLiteral("concernsText01")}; ///< what was found

    // Below the tabs, hidden where there is nothing to say.
    outlets::TextField toolsText01{
        *this, QStringLiteral("toolsText01")}; ///< what still is at work after a run has failed
    outlets::Button toolsCancel01{*this, QStringLiteral("toolsCancel01")};
    outlets::TextField clearText01{
        *this, QStringLiteral("clearText01")}; ///< files that runs left, and that are not encrypted
    outlets::Button clearRemove01{*this, QStringLiteral("clearRemove01")};

    outlets::Panel noPathPanel01{*this, QStringLiteral("noPathPanel01")};
    outlets::TextField noPathText01{*this,
                                    QStringLiteral("noPathText01")}; ///< how many tools are missing or wrong

    outlets::Panel consolePanel01{*this, QStringLiteral("consolePanel01")};
    outlets::TextView consoleTextView01{*this, QStringLiteral("consoleTextView01")};
};
