#pragma once

#include "outlets/Controls.h"
#include "outlets/OpenPanel.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

#include <functional>

/// The main window itself and the row of the profile.
struct MainWindowOutlets : virtual outlets::Registry {
    outlets::Panel window{*this, QStringLiteral("window")};
    // Set by the front end before the program starts up.
    outlets::OpenPanelAnswer openPanel;
    std::function<void(const QString &)> openAddress; ///< in the user's browser
    bool showsUpdates = false;                        ///< off: nobody would see that there is a newer version

    outlets::Chooser profileCombo01{*this, QStringLiteral("profileCombo01")};
    outlets::TextField currentProfileTextView{*this, QStringLiteral("currentProfileTextView")};
    outlets::ProgressIndicator indicator01{*this, QStringLiteral("indicator01")};
    outlets::ProgressIndicator indicator02{*this, QStringLiteral("indicator02")};
    outlets::ProgressIndicator indicator03{*this, QStringLiteral("indicator03")};
    outlets::CheckBox autosaveCheck01{*this, QStringLiteral("autosaveCheck01")};
    outlets::CheckBox updatesCheck01{*this, QStringLiteral("updatesCheck01")};
};
