#pragma once

#include "keychain/Keychain.h"

#include <atomic>
#include <map>
#include <mutex>
#include <vector>

/// A keychain that lasts as long as its object, for tests of what uses one.
class InMemoryKeychain final : public Keychain {
public:
    /// Anything but Success: what every call ends with, as if the keychain were in that state.
    std::atomic<KeychainStatus> failure = KeychainStatus::Success;

    /// What unlock() ends with; with Success it unlocks.
    std::atomic<KeychainStatus> unlocking = KeychainStatus::Success;

    KeychainAnswer findGenericPassword(const GenericPasswordKey &key) override;
    KeychainAnswer findInternetPassword(const InternetPasswordKey &key) override;
    KeychainAnswer addGenericPassword(const GenericPasswordKey &key, Secret password) override;
    KeychainAnswer addInternetPassword(const InternetPasswordKey &key, Secret password) override;
    KeychainStatus modifyAttributesAndData(const KeychainItemHandle &item,
                                           const QList<KeychainAttribute> &attributes,
                                           std::optional<Secret> data) override;
    KeychainStatus deleteItem(const KeychainItemHandle &item) override;
    KeychainStatus lock() override;
    KeychainStatus unlock() override;
    void giveUp() override {} ///< no call of it ever waits

private:
    using Attributes = std::map<KeychainTag, QByteArray>;
    struct Entry;
    struct Reference;

    static Attributes attributesOf(const GenericPasswordKey &key);
    static Attributes attributesOf(const InternetPasswordKey &key);
    [[nodiscard]] KeychainStatus state() const;
    [[nodiscard]] std::shared_ptr<Entry> entryOf(const Attributes &attributes, quint32 authentication) const;
    KeychainAnswer find(const Attributes &attributes, quint32 authentication);
    KeychainAnswer add(const Attributes &attributes, quint32 authentication, Secret password);

    mutable std::mutex m_mutex;
    std::vector<std::shared_ptr<Entry>> m_entries;
    bool m_isLocked = false;
};
