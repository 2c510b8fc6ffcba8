#pragma once

#include "keychain/Keychain.h"

#include <map>

/// The calls that the Secret Service answers, each from a connection of its own: nothing is remembered from
/// call to call, so nothing goes stale when the service or the bus is restarted. They block as long as the
/// service lets them.
///
/// https://specifications.freedesktop.org/secret-service/latest/
namespace secretService {

/// Ends a call from another thread.
class Cancellation {
public:
    Cancellation();
    void cancel() const;
    [[nodiscard]] void *handle() const { return m_handle.get(); } ///< a GCancellable

private:
    std::shared_ptr<void> m_handle;
};

/// By name, both in UTF-8 and without null characters.
using Attributes = std::map<QByteArray, QByteArray>;

/// Where an item lies. Paths are used again for new items, so the time of its making tells whether it still
/// is the same one.
struct Item : KeychainItemReference {
    Item(QByteArray itemPath, quint64 itemCreated) : path(std::move(itemPath)), created(itemCreated) {}

    QByteArray path;
    quint64 created; ///< seconds since 1970
};

/// What changes in an item.
struct Changes {
    Attributes attributes;
    std::optional<QByteArray> label;
    std::shared_ptr<const Secret> password;
};

/// The first unlocked item that has these attributes, among others. Locked where all that there are (or all
/// that there may be) are locked.
[[nodiscard]] KeychainAnswer find(const Attributes &attributes, const Cancellation &cancellation);

[[nodiscard]] KeychainAnswer add(const Attributes &attributes, const QByteArray &label,
                                 const Secret &password, const Cancellation &cancellation);
[[nodiscard]] KeychainStatus modify(const Item &item, const Changes &changes,
                                    const Cancellation &cancellation);
[[nodiscard]] KeychainStatus remove(const Item &item, const Cancellation &cancellation);

/// Success where the default collection is there and unlocked.
[[nodiscard]] KeychainStatus state(const Cancellation &cancellation);
[[nodiscard]] KeychainStatus lock(const Cancellation &cancellation);

/// Waits for the person. Can't be cancelled: libsecret would wait for the prompt's end all the same, for
/// ever where the prompt is gone.
[[nodiscard]] KeychainStatus unlock();

} // namespace secretService
