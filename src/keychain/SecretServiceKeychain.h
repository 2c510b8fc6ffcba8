#pragma once

#include "keychain/Keychain.h"

#include <chrono>
#include <functional>
#include <map>

namespace secretService {
class Cancellation;
}

/// The desktop's keychain on Linux: whatever answers as the Secret Service on the session's bus. An item has
/// the attributes "service" and "account", or "server", "account", "path", "port", "protocol" and
/// "authentication", so that other programs find and show them; without a service nothing is kept anywhere.
class SecretServiceKeychain final : public Keychain {
public:
    static constexpr std::chrono::milliseconds patience = std::chrono::seconds(5);

    /// Calls that the service has not answered after `answersWithin` end with NotAnswering.
    explicit SecretServiceKeychain(std::chrono::milliseconds answersWithin = patience);
    ~SecretServiceKeychain() override;

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
    void giveUp() override;

private:
    struct Waiting;
    using Question = std::function<KeychainAnswer(const secretService::Cancellation &)>;

    KeychainAnswer find(const std::map<QByteArray, QByteArray> &attributes);
    KeychainAnswer add(const std::map<QByteArray, QByteArray> &attributes, const QByteArray &label,
                       Secret password);
    KeychainAnswer ask(Question question, std::optional<std::chrono::milliseconds> atMost);

    std::chrono::milliseconds m_answersWithin;
    std::shared_ptr<Waiting> m_waiting;
};
