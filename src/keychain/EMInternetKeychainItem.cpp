#include "keychain/EMInternetKeychainItem.h"

#include <utility>

namespace {

InternetPasswordKey keyOf(const QString &server, const QString &username, const QString &path, int port,
                          quint32 protocol, quint32 authentication)
{
    return {server.toUtf8(), username.toUtf8(), path.toUtf8(), static_cast<quint16>(port & 0xFFFF),
            protocol,        authentication};
}

template <class Number>
QByteArray bytesOf(Number number)
{
    return {reinterpret_cast<const char *>(&number), sizeof number};
}

} // namespace

EMInternetKeychainItem::EMInternetKeychainItem(KeychainItemHandle coreKeychainItem, QString server,
                                               QString username, QString password, QString path, int port,
                                               quint32 protocol)
    : EMKeychainItem(std::move(coreKeychainItem), std::move(username), std::move(password))
    , mServer(std::move(server))
    , mPath(std::move(path))
    , mPort(port)
    , mProtocol(protocol)
{
}

std::shared_ptr<EMInternetKeychainItem> EMInternetKeychainItem::_internetKeychainItemWithCoreKeychainItem(
    KeychainItemHandle coreKeychainItem, const QString &server, const QString &username,
    const QString &password, const QString &path, int port, quint32 protocol)
{
    return std::shared_ptr<EMInternetKeychainItem>(new EMInternetKeychainItem(
        std::move(coreKeychainItem), server, username, password, path, port, protocol));
}

std::shared_ptr<EMInternetKeychainItem>
EMInternetKeychainItem::internetKeychainItemForServer(const QString &server, const QString &username,
                                                      const QString &path, int port, quint32 protocol,
                                                      KeychainStatus *status)
{
    if (status) *status = KeychainStatus::InvalidValue;
    if (server.isNull() || username.isNull()) return {};

    const auto find = [&] {
        return keychain()->findInternetPassword(
            keyOf(server, username, path, port, protocol, keychainAuthentication::any));
    };
    KeychainAnswer found = find();
    if (found.status != KeychainStatus::Success && protocol == keychainProtocol::ftp) {
        protocol = keychainProtocol::ftpAccount;
        found = find();
    }
    report("internetKeychainItemForServer:withUsername:path:port:protocol:", found.status, status);
    if (found.status != KeychainStatus::Success || !found.item) return {};
    return _internetKeychainItemWithCoreKeychainItem(std::move(found.item), server, username,
                                                     found.password.text(), path, port, protocol);
}

std::shared_ptr<EMInternetKeychainItem>
EMInternetKeychainItem::addInternetKeychainItemForServer(const QString &server, const QString &username,
                                                         const QString &password, const QString &path,
                                                         int port, quint32 protocol, KeychainStatus *status)
{
    if (status) *status = KeychainStatus::InvalidValue;
    if (username.isNull() || server.isNull() || password.isNull()) return {};

    KeychainAnswer added = keychain()->addInternetPassword(
        keyOf(server, username, path, port, protocol, keychainAuthentication::byDefault),
        Secret::fromText(password));
    report("addInternetKeychainItemForServer:withUsername:password:path:port:protocol:", added.status,
           status);
    if (added.status != KeychainStatus::Success || !added.item) return {};
    return _internetKeychainItemWithCoreKeychainItem(std::move(added.item), server, username, password, path,
                                                     port, protocol);
}

void EMInternetKeychainItem::setServer(const QString &server)
{
    const std::lock_guard lock(mLock);
    modifyText(mServer, server, KeychainTag::Server);
}

void EMInternetKeychainItem::setPath(const QString &path) { modifyText(mPath, path, KeychainTag::Path); }

void EMInternetKeychainItem::setPort(int port)
{
    const std::lock_guard lock(mLock);
    if (mPort.exchange(port) == port) return;
    _modifyAttributeWithTag(KeychainTag::Port, bytesOf(qint32{port}));
}

void EMInternetKeychainItem::setProtocol(quint32 protocol)
{
    const std::lock_guard lock(mLock);
    if (mProtocol.exchange(protocol) == protocol) return;
    _modifyAttributeWithTag(KeychainTag::Protocol, bytesOf(protocol));
}
