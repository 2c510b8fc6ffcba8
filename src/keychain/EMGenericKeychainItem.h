#pragma once

#include "keychain/EMKeychainItem.h"

/// A password for a service, one for each account.
class EMGenericKeychainItem final : public EMKeychainItem {
public:
    /// None where there is no such password, the keychain fails or an argument is null; `status` says which
    /// (InvalidValue for an argument).
    [[nodiscard]] static std::shared_ptr<EMGenericKeychainItem>
    genericKeychainItemForService(const QString &serviceName, const QString &username,
                                  KeychainStatus *status = nullptr);

    /// Never overwrites: none where the service has a password for that account already, and else as above.
    static std::shared_ptr<EMGenericKeychainItem>
    addGenericKeychainItemForService(const QString &serviceName, const QString &username,
                                     const QString &password, KeychainStatus *status = nullptr);

    [[nodiscard]] QString serviceName() const { return read(mServiceName); }
    void setServiceName(const QString &serviceName);

private:
    EMGenericKeychainItem(KeychainItemHandle coreKeychainItem, QString serviceName, QString username,
                          QString password);

    static std::shared_ptr<EMGenericKeychainItem>
    _genericKeychainItemWithCoreKeychainItem(KeychainItemHandle coreKeychainItem, const QString &serviceName,
                                             const QString &username, const QString &password);

    QString mServiceName;
};
