#pragma once

#include "keychain/EMKeychainItem.h"

#include <atomic>

/// A password for an account on a server. Null and empty paths are the same to the keychain. Of a port the
/// keychain is asked for the lowest 16 bits; the item keeps the number that it was given.
class EMInternetKeychainItem final : public EMKeychainItem {
public:
    /// None where there is no such password, the keychain fails, or server or account is null; `status` says
    /// which (InvalidValue for an argument). What is not found under FTP is looked for under FTP with an
    /// account ("ftpa") too, and then has that protocol.
    [[nodiscard]] static std::shared_ptr<EMInternetKeychainItem>
    internetKeychainItemForServer(const QString &server, const QString &username, const QString &path,
                                  int port, quint32 protocol, KeychainStatus *status = nullptr);

    /// Never overwrites: none where there is such a password already, the password is null, and else as
    /// above.
    static std::shared_ptr<EMInternetKeychainItem>
    addInternetKeychainItemForServer(const QString &server, const QString &username, const QString &password,
                                     const QString &path, int port, quint32 protocol,
                                     KeychainStatus *status = nullptr);

    [[nodiscard]] QString server() const { return read(mServer); }
    [[nodiscard]] QString path() const { return read(mPath); }
    [[nodiscard]] int port() const { return mPort; }
    [[nodiscard]] quint32 protocol() const { return mProtocol; } ///< see fourCharacterCode()

    void setServer(const QString &server);
    void setPort(int port);
    void setProtocol(quint32 protocol);

    /// Unlike the other setters it does not wait for one that is at work on another thread.
    void setPath(const QString &path);

private:
    EMInternetKeychainItem(KeychainItemHandle coreKeychainItem, QString server, QString username,
                           QString password, QString path, int port, quint32 protocol);

    static std::shared_ptr<EMInternetKeychainItem>
    _internetKeychainItemWithCoreKeychainItem(KeychainItemHandle coreKeychainItem, const QString &server,
                                              const QString &username, const QString &password,
                                              const QString &path, int port, quint32 protocol);

    QString mServer;
    QString mPath;
    std::atomic<int> mPort;
    std::atomic<quint32> mProtocol;
};
