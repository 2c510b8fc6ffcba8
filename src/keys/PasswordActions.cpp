#include "app/QuillorentAppDelegate.h"

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

void QuillorentAppDelegate::passCombo01Action()
{
    const int source = passCombo01.selectedIndex();
    currentRecord().setValue(u"passtype"_qs, source);
    passTabs.selectIndex(std::max(source, 0));
    pkView.setHidden(source != Certificate);
    if (source == Certificate) describeKeys();
}

bool QuillorentAppDelegate::pkeySelector() const
{
    return passCombo01.selectedIndex() != Certificate || !certFile01.text().isEmpty();
}

void QuillorentAppDelegate::checkBox01Action()
{
    const bool masked = checkBox01.isOn();
    outlets::TextField &shown = masked ? secureText01a : secureText01b;
    outlets::TextField &hidden = masked ? secureText01b : secureText01a;
    shown.setText(hidden.text());
    shown.setHidden(false);
    hidden.setHidden(true);
}
