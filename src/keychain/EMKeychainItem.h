#pragma once

#include "keychain/Keychain.h"

#include <mutex>
#include <stdexcept>

/// A promise of EMKeychainItem that its caller broke: the item is not in the keychain (any more).
class KeychainAssertionFailure : public std::logic_error {
public:
    KeychainAssertionFailure(const char *failedMethod, const char *description)
        : std::logic_error(description), method(failedMethod)
    {
    }

    const char *method;
    const char *sourceFile = "EMKeychainItem";
};

/// A password in the program's keychain. Setting a property writes it to the keychain at once; what the
/// keychain says to that is not looked at, the property has its new value all the same. Every call that
/// reaches the keychain blocks as long as that does (see Keychain); the getters never block.
///
/// Setting a text to "the very same object" does nothing. Two strings are the same object where they share
/// their characters, as a string and its copies do until one is changed; strings that merely read alike are
/// not, but for those that are empty, or null.
class EMKeychainItem {
public:
    virtual ~EMKeychainItem();
    EMKeychainItem(const EMKeychainItem &) = delete;
    EMKeychainItem &operator=(const EMKeychainItem &) = delete;

    [[nodiscard]] QString username() const { return read(mUsername); }
    [[nodiscard]] QString password() const { return read(mPassword); } ///< null where it is not UTF-8
    [[nodiscard]] QString label() const { return read(mLabel); }       ///< null until setLabel()

    /// These throw KeychainAssertionFailure where the item is not in the keychain, after having set the
    /// property.
    void setUsername(const QString &username);
    void setLabel(const QString &label);

    /// Writes even the same password again; never throws. A null password leaves the keychain's as it is.
    void setPassword(const QString &password);

    /// Throws KeychainAssertionFailure where the item is not in the keychain. Where the keychain refuses,
    /// nothing changes.
    void removeFromKeychain();

    /// Whether failed searches and additions are logged; off at first. Passwords never are.
    static void setLogsErrors(bool logsErrors);
    [[nodiscard]] static bool logsErrors();

    static KeychainStatus unlockKeychain(); ///< the service asks the person; see Keychain::unlock()
    static KeychainStatus lockKeychain();

protected:
    EMKeychainItem(KeychainItemHandle coreKeychainItem, QString username, QString password);

    void _modifyAttributeWithTag(KeychainTag tag, const QByteArray &value);

    /// Sets one of the texts and writes it, unless it is the same object.
    void modifyText(QString &field, const QString &value, KeychainTag tag);

    [[nodiscard]] QString read(const QString &field) const;

    /// Sets the field; says whether that is a change. Same: the same object, or the same number.
    [[nodiscard]] bool replace(QString &field, const QString &value);

    /// Notes how a search or an addition ended, and logs what went wrong in the operation of that name.
    static void report(const char *operation, KeychainStatus status, KeychainStatus *to);

    std::mutex mLock;                ///< held by one setter at a time, until the keychain has answered
    mutable std::mutex mFieldsMutex; ///< held for a moment, by whoever reads or writes a field

private:
    [[nodiscard]] KeychainItemHandle coreKeychainItem() const;

    QString mUsername;
    QString mPassword;
    QString mLabel;
    KeychainItemHandle mCoreKeychainItem;
};
