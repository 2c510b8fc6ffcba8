#include "ui/facts/Protection.h"

#include "app/passwords/PasswordTab.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Protection)
};

QString ofTypedPassword(const PasswordTab &tab)
{
    const outlets::SecretField &field = tab.checkBox01.isOn() ? tab.secureText01a : tab.secureText01b;
    return field.isEmpty() ? Words::tr("Password – none typed yet") : Words::tr("Typed password");
}

QString ofKeychain(const PasswordTab &tab)
{
    const QString account = tab.keychainUser.text();
    const QString origin = tab.keychainOrigin.text();
    const outlets::SecretField &counting = tab.checkBox01.isOn() ? tab.keychainPass : tab.keychainClear;
    if (isKeychainFieldAmbiguous(tab))
        return Words::tr("Password from the keychain – please look at the Password tab");
    if (counting.isEmpty() && account.isEmpty())
        return Words::tr("Password from the keychain – no account chosen yet");
    if (counting.isEmpty()) return Words::tr("Password from the keychain – not fetched yet");
    return origin.isEmpty() ? Words::tr("Password typed for the keychain – not stored in it")
                            : Words::tr("Password from the keychain, account %1").arg(origin);
}

QString ofCertificate(const PasswordTab &tab)
{
    const QString path = tab.certFile01.text();
    return path.isEmpty() ? Words::tr("Certificate – none chosen yet")
                          : Words::tr("Certificate: %1").arg(QFileInfo(path).fileName());
}

} // namespace

bool isKeychainFieldAmbiguous(const PasswordTab &tab)
{
    return tab.checkBox01.isOn() != tab.checkBox02.isOn() && !tab.keychainPass.holdsSameAs(tab.keychainClear);
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
