#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"

/// What the program says and asks of the files that it keeps its settings and profiles in.
struct SavePanels : virtual outlets::Registry {
    outlets::Panel settingsPanel01{*this, u"settingsPanel01"_qs};
    outlets::TextField settingsText01{*this, u"settingsText01"_qs}; ///< what has become of the files

    outlets::Panel savePanel01{*this, u"savePanel01"_qs};
    outlets::TextField saveText01{*this, u"saveText01"_qs}; ///< what could not be saved, and why

    outlets::Panel conflictPanel01{*this, u"conflictPanel01"_qs};
    outlets::TextField conflictText01{*this, u"conflictText01"_qs}; ///< what was changed here and by others

    outlets::Panel quitPanel01{*this, u"quitPanel01"_qs};
    outlets::TextField quitText01{*this, u"quitText01"_qs}; ///< what would be lost by quitting, and why
};
