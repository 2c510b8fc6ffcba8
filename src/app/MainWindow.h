#pragma once

#include "outlets/Controls.h"
#include "outlets/OpenPanel.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

#include <functional>

/// The main window itself and the row of the profile.
struct MainWindowOutlets : virtual outlets::Registry {
    outlets::Panel window{*this, u"window"_qs};
    // Set by the front end before the program starts up.
    outlets::OpenPanelAnswer openPanel;
    std::function<void(const QString &)> openAddress; ///< in the user's browser
    bool showsUpdates = false;                        ///< off: nobody would see that there is a newer version

    outlets::Chooser profileCombo01{*this, u"profileCombo01"_qs};
    outlets::TextField currentProfileTextView{*this, u"currentProfileTextView"_qs};
    outlets::ProgressIndicator indicator01{*this, u"indicator01"_qs};
    outlets::ProgressIndicator indicator02{*this, u"indicator02"_qs};
    outlets::ProgressIndicator indicator03{*this, u"indicator03"_qs};
    outlets::CheckBox autosaveCheck01{*this, u"autosaveCheck01"_qs};
    outlets::CheckBox updatesCheck01{*this, u"updatesCheck01"_qs};
};
