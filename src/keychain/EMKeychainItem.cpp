#include "keychain/EMKeychainItem.h"

#include <QLoggingCategory>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(logKeychain, "quillorent.keychain")

struct ErrorLog {
    std::mutex mutex;
    bool isOn = false;
};

ErrorLog &errorLog()
{
    static ErrorLog log;
    return log;
}

// Strings share their characters with their copies and with nothing else.
bool isSameObject(const QString &one, const QString &other)
{
    return one.isNull() == other.isNull() && one.constData() == other.constData() &&
           one.size() == other.size();
}

} // namespace

EMKeychainItem::EMKeychainItem(KeychainItemHandle coreKeychainItem, QString username, QString password)
    : mUsername(std::move(username))
    , mPassword(std::move(password))
    , mCoreKeychainItem(std::move(coreKeychainItem))
{
}

EMKeychainItem::~EMKeychainItem() { wipe(mPassword); }

void EMKeychainItem::setUsername(const QString &username)
{
    const std::lock_guard lock(mLock);
    modifyText(mUsername, username, KeychainTag::Account);
}

void EMKeychainItem::setLabel(const QString &label)
{
    const std::lock_guard lock(mLock);
    modifyText(mLabel, label, KeychainTag::Label);
}

void EMKeychainItem::setPassword(const QString &password)
{
    const std::lock_guard lock(mLock);
    {
        const std::lock_guard fields(mFieldsMutex);
        QString old = std::exchange(mPassword, password);
        wipe(old);
    }
    std::optional<Secret> data;
    if (!password.isNull()) data = Secret::fromText(password);
    keychain()->modifyAttributesAndData(coreKeychainItem(), {}, std::move(data));
}

void EMKeychainItem::removeFromKeychain()
{
    const KeychainItemHandle item = coreKeychainItem();
    if (!item)
        throw KeychainAssertionFailure("removeFromKeychain",
                                       "Core keychain item is nil. You cannot remove a keychain item that is "
                                       "not in the keychain already.");
    if (keychain()->deleteItem(item) != KeychainStatus::Success) return;
    const std::lock_guard fields(mFieldsMutex);
    mCoreKeychainItem.reset();
}

void EMKeychainItem::setLogsErrors(bool logsErrors)
{
    const std::lock_guard lock(errorLog().mutex);
    errorLog().isOn = logsErrors;
}

bool EMKeychainItem::logsErrors()
{
    const std::lock_guard lock(errorLog().mutex);
    return errorLog().isOn;
}

KeychainStatus EMKeychainItem::unlockKeychain() { return keychain()->unlock(); }

KeychainStatus EMKeychainItem::lockKeychain() { return keychain()->lock(); }

void EMKeychainItem::_modifyAttributeWithTag(KeychainTag tag, const QByteArray &value)
{
    const KeychainItemHandle item = coreKeychainItem();
    if (!item)
        throw KeychainAssertionFailure("_modifyAttributeWithTag:toBeValue:ofLength:",
                                       "Core keychain item is nil. You cannot modify a keychain item that is "
                                       "not in the keychain.");
    keychain()->modifyAttributesAndData(item, {{tag, value}}, std::nullopt);
}

void EMKeychainItem::modifyText(QString &field, const QString &value, KeychainTag tag)
{
    if (replace(field, value)) _modifyAttributeWithTag(tag, value.toUtf8());
}

QString EMKeychainItem::read(const QString &field) const
{
    const std::lock_guard fields(mFieldsMutex);
    return field;
}

bool EMKeychainItem::replace(QString &field, const QString &value)
{
    const std::lock_guard fields(mFieldsMutex);
    if (isSameObject(field, value)) return false;
    field = value;
    return true;
}

void EMKeychainItem::report(const char *operation, KeychainStatus status, KeychainStatus *to)
{
    if (to) *to = status;
    if (status == KeychainStatus::Success || !logsErrors()) return;
    qCWarning(logKeychain, "Error (%s) - %s", operation, qUtf8Printable(keychain()->statusText(status)));
}

KeychainItemHandle EMKeychainItem::coreKeychainItem() const
{
    const std::lock_guard fields(mFieldsMutex);
    return mCoreKeychainItem;
}
