#include "ui/Protection.h"

#include "app/passwords/PasswordTab.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ui {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("Protection", text); }

QString ofTypedPassword(const PasswordTab &tab)
{
    const outlets::TextField &field = tab.checkBox01.isOn() ? tab.secureText01a : tab.secureText01b;
    return field.text().isEmpty() ? tr("Typed password – not entered yet") : tr("Typed password");
}

QString ofKeychain(const PasswordTab &tab)
{
    const QString account = tab.keychainUser.text();
    const outlets::TextField &counting = tab.checkBox01.isOn() ? tab.keychainPass : tab.keychainClear;
    if (isKeychainFieldAmbiguous(tab))
        return tr("Password from the keychain – please look at the Passwords tab");
    if (account.isEmpty()) return tr("Password from the keychain – no account chosen yet");
    return counting.text().isEmpty() ? tr("Password from the keychain – not fetched yet")
                                     : tr("Password from the keychain, account %1").arg(account);
}

QString ofCertificate(const PasswordTab &tab)
{
    const QString path = tab.certFile01.text();
    return path.isEmpty() ? tr("Certificate – none chosen yet")
                          : tr("Certificate: %1").arg(QFileInfo(path).fileName());
}

} // namespace

bool isKeychainFieldAmbiguous(const PasswordTab &tab)
{
    return tab.checkBox01.isOn() != tab.checkBox02.isOn() &&
           tab.keychainPass.text() != tab.keychainClear.text();
}

QString protectionText(const PasswordTab &tab)
{
    switch (tab.passCombo01.selectedIndex()) {
    case PasswordTab::KeychainPassword:
        return ofKeychain(tab);
    case PasswordTab::Certificate:
        return ofCertificate(tab);
    default:
        return ofTypedPassword(tab);
    }
}

} // namespace ui
