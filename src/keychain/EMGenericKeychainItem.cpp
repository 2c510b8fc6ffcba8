#include "keychain/EMGenericKeychainItem.h"

#include <utility>

EMGenericKeychainItem::EMGenericKeychainItem(KeychainItemHandle coreKeychainItem, QString serviceName,
                                             QString username, QString password)
    : EMKeychainItem(std::move(coreKeychainItem), std::move(username), std::move(password))
    , mServiceName(std::move(serviceName))
{
}

std::shared_ptr<EMGenericKeychainItem> EMGenericKeychainItem::_genericKeychainItemWithCoreKeychainItem(
    KeychainItemHandle coreKeychainItem, const QString &serviceName, const QString &username,
    const QString &password)
{
    return std::shared_ptr<EMGenericKeychainItem>(
        new EMGenericKeychainItem(std::move(coreKeychainItem), serviceName, username, password));
}

std::shared_ptr<EMGenericKeychainItem>
EMGenericKeychainItem::genericKeychainItemForService(const QString &serviceName, const QString &username,
                                                     KeychainStatus *status)
{
    if (status) *status = KeychainStatus::InvalidValue;
    if (serviceName.isNull() || username.isNull()) return {};

    KeychainAnswer found = keychain()->findGenericPassword({serviceName.toUtf8(), username.toUtf8()});
    report("genericKeychainItemForService:withUsername:", found.status, status);
    if (found.status != KeychainStatus::Success || !found.item) return {};
    return _genericKeychainItemWithCoreKeychainItem(std::move(found.item), serviceName, username,
                                                    found.password.text());
}

std::shared_ptr<EMGenericKeychainItem>
EMGenericKeychainItem::addGenericKeychainItemForService(const QString &serviceName, const QString &username,
                                                        const QString &password, KeychainStatus *status)
{
    if (status) *status = KeychainStatus::InvalidValue;
    if (serviceName.isNull() || username.isNull() || password.isNull()) return {};

    KeychainAnswer added =
        keychain()->addGenericPassword({serviceName.toUtf8(), username.toUtf8()}, Secret::fromText(password));
    report("addGenericKeychainItemForService:withUsername:password:", added.status, status);
    if (added.status != KeychainStatus::Success || !added.item) return {};
    return _genericKeychainItemWithCoreKeychainItem(std::move(added.item), serviceName, username, password);
}

void EMGenericKeychainItem::setServiceName(const QString &serviceName)
{
    const std::lock_guard lock(mLock);
    modifyText(mServiceName, serviceName, KeychainTag::Service);
}
