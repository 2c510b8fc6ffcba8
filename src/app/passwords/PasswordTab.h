#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The tab of passwords and keys. Of each pair of password fields one is visible: the first masked, the
/// second clear.
struct PasswordTab : virtual outlets::Registry {
    /// Where the password comes from, by the index in the chooser.
    enum Source { TypedPassword = 0, KeychainPassword = 1, Certificate = 2 };

    outlets::Selector passCombo01{*this, u"passCombo01"_qs};
    outlets::Selector passTabs{*this, u"passTabs"_qs};

    outlets::TextField secureText01a{*this, u"secureText01a"_qs};
    outlets::TextField secureText01b{*this, u"secureText01b"_qs};
    outlets::CheckBox checkBox01{
        *this, u"checkBox01"_qs}; ///< on: the masked fields count, here and of the keychain's

    outlets::TextField keychainUser{*this, u"keychainUser"_qs};
    outlets::TextField keychainPass{*this, u"keychainPass"_qs};
    outlets::TextField keychainClear{*this, u"keychainClear"_qs};
    outlets::CheckBox checkBox02{*this,
                                 u"checkBox02"_qs}; ///< on: the masked field is stored and fetched into
    outlets::TextField keychainText01{*this,
                                      u"keychainText01"_qs}; ///< what the keychain said last, and what to do
    outlets::Button keychainUnlock01{*this, u"keychainUnlock01"_qs};
    outlets::ProgressIndicator keychainIndicator01{*this,
                                                   u"keychainIndicator01"_qs}; ///< turns while it is asked

    outlets::View pkView{*this, u"pkView"_qs};
    outlets::TextField certFile01{*this, u"certFile01"_qs};
    outlets::TextField certSummary01{*this, u"certSummary01"_qs}; ///< subject and dates
    outlets::TextField certWarning01{*this, u"certWarning01"_qs}; ///< expired, soon to expire, unreadable
    outlets::TextField pkFile01{*this, u"pkFile01"_qs};
    outlets::TextField pkWarning01{*this, u"pkWarning01"_qs}; ///< what a missing key means

    outlets::Panel certPanel01{*this, u"certPanel01"_qs};
    outlets::TextField certPanelText01{*this, u"certPanelText01"_qs}; ///< why the certificate is refused
    outlets::Panel pkPanel01{*this, u"pkPanel01"_qs};
    outlets::TextField pkPanelText01{*this, u"pkPanelText01"_qs}; ///< why the private key is refused
};
