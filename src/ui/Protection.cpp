#include "ui/Protection.h"

#include "keys/PasswordTab.h"

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

QString ofCertificate(const PasswordTab &tab)
{
    const QString path = tab.certFile01.text();
    return path.isEmpty() ? tr("Certificate – none chosen yet")
                          : tr("Certificate: %1").arg(QFileInfo(path).fileName());
}

} // namespace

QString protectionText(const PasswordTab &tab)
{
    switch (tab.passCombo01.selectedIndex()) {
    case PasswordTab::KeychainPassword:
        return tr("Password from the keychain – not in this version");
    case PasswordTab::Certificate:
        return ofCertificate(tab);
    default:
        return ofTypedPassword(tab);
    }
}

} // namespace ui
