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

bool QuillorentAppDelegate::pkeySelector() const
{
    return passCombo01.selectedIndex() != Certificate || !certFile01.text().isEmpty();
}

void QuillorentAppDelegate::passCombo01Action()
{
    const int source = passCombo01.selectedIndex();
    currentRecord().setValue(u"passtype"_qs, source);
    passTabs.selectIndex(std::max(source, 0));
    pkView.setHidden(source != Certificate);
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

void QuillorentAppDelegate::certButton01Action()
{
    const auto chosen = openPanel(
        {.title = u"Choose a certificate"_qs,
         .allowedFileTypes = {u"cer"_qs, u"p12"_qs, u"p15"_qs, u"crt"_qs, u"der"_qs, u"pem"_qs, u"pfx"_qs,
                              u"cert"_qs, u"txt"_qs, u"rtf"_qs, u"pk12"_qs, u"pk15"_qs, u"pkcs12"_qs}});
    if (!chosen || chosen->isEmpty()) return;
    certFile01.setText(chosen->first());
    currentRecord().setValue(u"lastcertfile"_qs, chosen->first());
}
