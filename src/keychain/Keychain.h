#pragma once

#include "keychain/Secret.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>

/// Four characters as the number that keychains know an attribute or a protocol by.
[[nodiscard]] constexpr quint32 fourCharacterCode(const char (&characters)[5])
{
    quint32 code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8U | static_cast<unsigned char>(characters[i]);
    return code;
}

/// How a keychain's call ended.
enum class KeychainStatus {
    Success,
    ItemNotFound,
    DuplicateItem,     ///< there is one already; it stays as it is
    NoService,         ///< nothing that keeps passwords runs in this session
    NoDefaultKeychain, ///< the service runs and has none
    Locked,
    UnlockDeclined, ///< unlocking ended and the keychain is still locked
    Refused,
    NotAnswering,    ///< given up after a time; what was asked for may still happen
    Cancelled,       ///< see Keychain::giveUp()
    InvalidItem,     ///< no item was given, or one of another keychain
    NoSuchAttribute, ///< an item of this kind does not have it
    InvalidValue,    ///< a text that is not UTF-8 or holds a null character; a number not of four bytes
};

/// What is written by Keychain::modifyAttributesAndData(). Port and Protocol take a 32-bit number in the
/// machine's byte order, the others UTF-8.
enum class KeychainTag : quint32 {
    Account = fourCharacterCode("acct"),
    Label = fourCharacterCode("labl"),
    Service = fourCharacterCode("svce"),
    Server = fourCharacterCode("srvr"),
    Path = fourCharacterCode("path"),
    Port = fourCharacterCode("port"),
    Protocol = fourCharacterCode("ptcl"),
};

namespace keychainProtocol {
inline constexpr quint32 ftp = fourCharacterCode("ftp ");
inline constexpr quint32 ftpAccount = fourCharacterCode("ftpa");
} // namespace keychainProtocol

namespace keychainAuthentication {
inline constexpr quint32 any = 0; ///< in a search: whichever it was stored with
inline constexpr quint32 byDefault = fourCharacterCode("dflt");
} // namespace keychainAuthentication

/// What tells one generic password from another; texts in UTF-8.
struct GenericPasswordKey {
    QByteArray service;
    QByteArray account;
};

/// What tells one internet password from another; texts in UTF-8. An empty path is a value like any other.
struct InternetPasswordKey {
    QByteArray server;
    QByteArray account;
    QByteArray path;
    quint16 port = 0;
    quint32 protocol = 0;
    quint32 authentication = keychainAuthentication::any;
};

struct KeychainAttribute {
    KeychainTag tag;
    QByteArray value;
};

/// An item in a keychain, as that keychain knows it. Only the keychain that gave it can use it.
class KeychainItemReference {
public:
    virtual ~KeychainItemReference() = default;
};
using KeychainItemHandle = std::shared_ptr<const KeychainItemReference>;

struct KeychainAnswer {
    KeychainStatus status = KeychainStatus::Success;
    KeychainItemHandle item{}; ///< of a search or an addition that succeeded
    Secret password{};         ///< of a search that succeeded
};

/// A place that keeps passwords. Every call may be made from any thread and blocks it: call from a worker.
/// None but unlock() asks a person, or waits longer than some seconds. Failure is a status; passwords are in
/// no text and no log.
class Keychain {
public:
    virtual ~Keychain() = default;

    [[nodiscard]] virtual KeychainAnswer findGenericPassword(const GenericPasswordKey &key) = 0;
    [[nodiscard]] virtual KeychainAnswer findInternetPassword(const InternetPasswordKey &key) = 0;

    /// Adds to the default keychain and never overwrites: where the key is there already, nothing changes.
    [[nodiscard]] virtual KeychainAnswer addGenericPassword(const GenericPasswordKey &key,
                                                            Secret password) = 0;
    [[nodiscard]] virtual KeychainAnswer addInternetPassword(const InternetPasswordKey &key,
                                                             Secret password) = 0;

    /// Attributes that are not named keep their values; without `data` so does the password. A change that
    /// would make two items of one key is refused.
    virtual KeychainStatus modifyAttributesAndData(const KeychainItemHandle &item,
                                                   const QList<KeychainAttribute> &attributes,
                                                   std::optional<Secret> data) = 0;
    virtual KeychainStatus deleteItem(const KeychainItemHandle &item) = 0;

    virtual KeychainStatus lock() = 0; ///< the default keychain

    /// Unlocks the default keychain. The service asks the person; waits for the answer as long as it takes,
    /// or until giveUp().
    virtual KeychainStatus unlock() = 0;

    /// What the status means and what to do, as sentences for a person.
    [[nodiscard]] virtual QString statusText(KeychainStatus status) const;

    /// Ends every call that waits at this moment, with Cancelled: the program quits.
    virtual void giveUp() = 0;
};

/// The keychain that the program uses: the desktop's, until setKeychain() says otherwise. Never null.
[[nodiscard]] std::shared_ptr<Keychain> keychain();

/// Calls that run stay with the keychain that they began with. Null: the desktop's again.
void setKeychain(std::shared_ptr<Keychain> replacement);
