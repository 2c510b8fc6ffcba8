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

    outlets::SecretField secureText01a{*this, u"secureText01a"_qs};
    outlets::SecretField secureText01b{*this, u"secureText01b"_qs};
    outlets::SecretField secureText02{*this, u"secureText02"_qs}; ///< the same, typed once more
    outlets::CheckBox checkBox01{
        *this, u"checkBox01"_qs}; ///< on: the masked fields count, here and of the keychain's

    outlets::TextField keychainUser{*this, u"keychainUser"_qs};
    outlets::SecretField keychainPass{*this, u"keychainPass"_qs};
    outlets::SecretField keychainClear{*this, u"keychainClear"_qs};
    /// The account whose password the two hold, as the keychain gave or took it; empty: they hold another
    /// text. Shown in the words of others only.
    outlets::Registry withoutWidget{};
    outlets::TextField keychainOrigin{withoutWidget, u"keychainOrigin"_qs};
    outlets::CheckBox checkBox02{*this,
                                 u"checkBox02"_qs}; ///< on: the masked field is stored and fetched into
    outlets::TextField keychainText01{*this,
                                      u"keychainText01"_qs}; ///< what the keychain said last, and what to do
    outlets::Button keychainUnlock01{*this, u"keychainUnlock01"_qs};
    outlets::ProgressIndicator keychainIndicator01{*this,
                                                   u"keychainIndicator01"_qs}; ///< turns while it is asked

    outlets::View pkView{*this, u"pkView"_qs};
    outlets::TextField certFile01{*this, u"certFile01"_qs};
    outlets::TextField certSummary01{*this, u"certSummary01"_qs}; ///< subject, key and dates
    outlets::TextField certWarning01{*this, u"certWarning01"_qs}; ///< expired, unreadable, of no use
    outlets::TextField pkFile01{*this, u"pkFile01"_qs};
    outlets::TextField pkWarning01{*this, u"pkWarning01"_qs}; ///< what a missing or a foreign key means

    outlets::Panel certPanel01{*this, u"certPanel01"_qs};
    outlets::TextField certPanelText01{*this, u"certPanelText01"_qs}; ///< why the certificate is refused
    outlets::Panel pkPanel01{*this, u"pkPanel01"_qs};
    outlets::TextField pkPanelText01{*this, u"pkPanelText01"_qs}; ///< why the private key is refused
};
