#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The tab of passwords and keys. Of each pair of password fields one is visible: the first masked, the
/// second clear.
struct PasswordTab : virtual outlets::Registry {
    /// Where the password comes from, by the index in the chooser.
    enum Source { TypedPassword = 0, KeychainPassword = 1, Certificate = 2 };

    outlets::Selector passCombo01{*this, QStringLiteral("passCombo01")};
    outlets::Selector passTabs{*this, QStringLiteral("passTabs")};

    outlets::SecretField secureText01a{*this, QStringLiteral("secureText01a")};
    outlets::SecretField secureText01b{*this, QStringLiteral("secureText01b")};
    outlets::SecretField secureText02{*this, QStringLiteral("secureText02")}; ///< the same, typed once more
    outlets::CheckBox checkBox01{
        *this, QStringLiteral("checkBox01")}; ///< on: the masked fields count, here and of the keychain's

    outlets::TextField keychainUser{*this, QStringLiteral("keychainUser")};
    outlets::SecretField keychainPass{*this, QStringLiteral("keychainPass")};
    outlets::SecretField keychainClear{*this, QStringLiteral("keychainClear")};
    /// The account whose password the two hold, as the keychain gave or took it; empty: they hold another
    /// text. Shown in the words of others only.
    outlets::Registry withoutWidget{};
    outlets::TextField keychainOrigin{withoutWidget, QStringLiteral("keychainOrigin")};
    outlets::CheckBox checkBox02{
        *this, QStringLiteral("checkBox02")}; ///< on: the masked field is stored and fetched into
    outlets::TextField keychainText01{
        *this, QStringLiteral("keychainText01")}; ///< what the keychain said last, and what to do
    outlets::Button keychainUnlock01{*this, QStringLiteral("keychainUnlock01")};
    outlets::ProgressIndicator keychainIndicator01{
        *this, QStringLiteral("keychainIndicator01")}; ///< turns while it is asked

    outlets::View pkView{*this, QStringLiteral("pkView")};
    outlets::TextField certFile01{*this, QStringLiteral("certFile01")};
    outlets::TextField certSummary01{*this, QStringLiteral("certSummary01")}; ///< subject, key and dates
    outlets::TextField certWarning01{*this,
                                     QStringLiteral("certWarning01")}; ///< expired, unreadable, of no use
    outlets::TextField pkFile01{*this, QStringLiteral("pkFile01")};
    outlets::TextField pkWarning01{*this,
                                   QStringLiteral("pkWarning01")}; ///< what a missing or a foreign key means

    outlets::Panel certPanel01{*this, QStringLiteral("certPanel01")};
    outlets::TextField certPanelText01{*this,
                                       QStringLiteral("certPanelText01")}; ///< why the certificate is refused
    outlets::Panel pkPanel01{*this, QStringLiteral("pkPanel01")};
    outlets::TextField pkPanelText01{*this,
                                     QStringLiteral("pkPanelText01")}; ///< why the private key is refused
};
