#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// What the program says and asks of the files that it keeps its settings and profiles in.
struct SavePanels : virtual outlets::Registry {
    outlets::Panel settingsPanel01{*this, QStringLiteral("settingsPanel01")};
    outlets::TextField settingsText01{*this,
                                      QStringLiteral("settingsText01")}; ///< what has become of the files

    outlets::Panel savePanel01{*this, QStringLiteral("savePanel01")};
    outlets::TextField saveText01{*this, QStringLiteral("saveText01")}; ///< what could not be saved, and why

    outlets::Panel conflictPanel01{*this, QStringLiteral("conflictPanel01")};
    outlets::TextField conflictText01{
        *this, QStringLiteral("conflictText01")}; ///< what was changed here and by others

    outlets::Panel quitPanel01{*this, QStringLiteral("quitPanel01")};
    outlets::TextField quitText01{*this,
                                  QStringLiteral("quitText01")}; ///< what would be lost by quitting, and why
};
