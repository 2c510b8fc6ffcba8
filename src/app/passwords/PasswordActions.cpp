#include "app/QuillorentAppDelegate.h"

using namespace Qt::StringLiterals;

namespace {

/// Of a pair of fields for one password, shows the masked one or the clear one, with the text of the other.
void showOneOf(const outlets::CheckBox &maskedWanted, outlets::SecretField &masked,
               outlets::SecretField &clear)
{
    outlets::SecretField &shown = maskedWanted.isOn() ? masked : clear;
    outlets::SecretField &hidden = maskedWanted.isOn() ? clear : masked;
    shown.setText(hidden.text());
    shown.setHidden(false);
    hidden.setHidden(true);
}

} // namespace

QString QuillorentAppDelegate::passwordSelector() const
{
    switch (passCombo01.selectedIndex()) {
    // Which of the keychain's two fields counts follows the switch of the typed password.
    case KeychainPassword:
        return checkBox01.isOn() ? keychainPass.text() : keychainClear.text();
    case Certificate:
        return certFile01.text();
    default:
        break;
    }
    if (passCombo01.selectedIndex() > Certificate) return {};
    return checkBox01.isOn() ? secureText01a.text() : secureText01b.text();
}

bool QuillorentAppDelegate::pkeySelector() const
{
    return passCombo01.selectedIndex() != Certificate || !certFile01.text().isEmpty();
}

void QuillorentAppDelegate::passCombo01Action()
{
    const int source = passCombo01.selectedIndex();
    currentRecord().setValue(u"passtype"_s, source);
    passTabs.selectIndex(std::max(source, 0));
    pkView.setHidden(source != Certificate);
    if (source == KeychainPassword && !keychainUser.text().isEmpty()) passButton01Action();
    if (source == Certificate) describeKeys();
}

void QuillorentAppDelegate::checkBox01Action() { showOneOf(checkBox01, secureText01a, secureText01b); }

void QuillorentAppDelegate::checkBox02Action() { showOneOf(checkBox02, keychainPass, keychainClear); }
