#include "keychain/SecretServiceConnection.h"

#include <algorithm>
#include <array>
#include <mutex>

namespace secretService {

namespace {

template <class T>
struct Fetched {
    KeychainStatus status = KeychainStatus::Success;
    T value{};
};

Fetched<Owned<SecretCollection>> defaultCollection(const Service &service)
{
    if (!service.get()) return {service.status()};
    Error error;
    Owned<SecretCollection> collection(
        secret_collection_for_alias_sync(service.get(), SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE,
                                         service.cancellable(), error.place()));
    if (!collection) return {error.status(KeychainStatus::NoDefaultKeychain)};
    const bool isLocked = secret_collection_get_locked(collection.get());
    return {isLocked ? KeychainStatus::Locked : KeychainStatus::Success, std::move(collection)};
}

Table toTable(const Attributes &attributes)
{
    Table table(g_hash_table_new_full(g_str_hash, g_str_equal, g_free, g_free));
    for (const auto &[name, value] : attributes)
        g_hash_table_insert(table.get(), g_strdup(name.constData()), g_strdup(value.constData()));
    return table;
}

Fetched<Items> search(const Service &service, const Attributes &attributes)
{
    if (!service.get()) return {service.status()};
    const Table table = toTable(attributes);
    Error error;
    Items items(secret_service_search_sync(service.get(), nullptr, table.get(), SECRET_SEARCH_ALL,
                                           service.cancellable(), error.place()));
    return {error.status(KeychainStatus::Success), std::move(items)};
}

QByteArray pathOf(SecretItem *item) { return g_dbus_proxy_get_object_path(&item->parent_instance); }

KeychainItemHandle referenceTo(SecretItem *item)
{
    return std::make_shared<Item>(pathOf(item), secret_item_get_created(item));
}

/// The item as it is now; the status is Locked for one that can't be changed.
Fetched<Owned<SecretItem>> fetch(const Service &service, const Item &reference)
{
    if (!service.get()) return {service.status()};
    Error error;
    Owned<SecretItem> item(secret_item_new_for_dbus_path_sync(
        service.get(), reference.path.constData(), SECRET_ITEM_NONE, service.cancellable(), error.place()));
    if (!item) return {error.status(KeychainStatus::ItemNotFound)};
    if (secret_item_get_created(item.get()) != reference.created) return {KeychainStatus::ItemNotFound};
    if (secret_item_get_locked(item.get())) return {KeychainStatus::Locked};
    return {KeychainStatus::Success, std::move(item)};
}

KeychainAnswer withPassword(SecretItem *item, GCancellable *cancellable)
{
    Error error;
    if (!secret_item_load_secret_sync(item, cancellable, error.place()))
        return {error.status(KeychainStatus::Refused)};
    const Value value(secret_item_get_secret(item));
    if (!value) return {KeychainStatus::Locked};
    gsize length = 0;
    const gchar *bytes = secret_value_get(value.get(), &length);
    return {KeychainStatus::Success, referenceTo(item),
            Secret(QByteArrayView(bytes, static_cast<qsizetype>(length)))};
}

Value toValue(const Secret &password)
{
    const QByteArrayView bytes = password.bytes();
    return Value(secret_value_new(bytes.isEmpty() ? "" : bytes.data(), bytes.size(), "text/plain"));
}

// The service takes two items of the same attributes. What looks for one and then writes it is one step, as
// far as this program goes.
std::mutex &writing()
{
    static auto *mutex = new std::mutex;
    return *mutex;
}

/// What tells items apart. Other programs give theirs further attributes.
Attributes keyOf(Attributes attributes)
{
    static const std::array<QByteArray, 7> names{"service", "server",   "account",       "path",
                                                 "port",    "protocol", "authentication"};
    std::erase_if(attributes, [](const auto &attribute) {
        return std::find(names.begin(), names.end(), attribute.first) == names.end();
    });
    return attributes;
}

KeychainStatus changeAttributes(const Service &service, SecretItem *item, const Attributes &changes)
{
    Attributes attributes;
    const Table present(secret_item_get_attributes(item));
    GHashTableIter iterator;
    gpointer name = nullptr;
    gpointer value = nullptr;
    g_hash_table_iter_init(&iterator, present.get());
    while (g_hash_table_iter_next(&iterator, &name, &value))
        attributes[static_cast<const char *>(name)] = static_cast<const char *>(value);
    for (const auto &[changed, to] : changes) {
        if (!attributes.contains(changed)) return KeychainStatus::NoSuchAttribute;
        attributes[changed] = to;
    }

    const Fetched<Items> same = search(service, keyOf(attributes));
    if (same.status != KeychainStatus::Success) return same.status;
    for (GList *other = same.value.get(); other; other = other->next)
        if (pathOf(static_cast<SecretItem *>(other->data)) != pathOf(item))
            return KeychainStatus::DuplicateItem;

    Error error;
    const Table table = toTable(attributes);
    if (secret_item_set_attributes_sync(item, nullptr, table.get(), service.cancellable(), error.place()))
        return KeychainStatus::Success;
    return error.status(KeychainStatus::Refused);
}

} // namespace

KeychainAnswer find(const Attributes &attributes, const Cancellation &cancellation)
{
    const Service service(&cancellation);
    const Fetched<Items> found = search(service, attributes);
    if (found.status != KeychainStatus::Success) return {found.status};
    for (GList *entry = found.value.get(); entry; entry = entry->next) {
        auto *item = static_cast<SecretItem *>(entry->data);
        if (!secret_item_get_locked(item)) return withPassword(item, service.cancellable());
    }
    if (found.value) return {KeychainStatus::Locked};

    // Some services show nothing of a locked collection.
    const KeychainStatus state = defaultCollection(service).status;
    return {state == KeychainStatus::Success ? KeychainStatus::ItemNotFound : state};
}

KeychainAnswer add(const Attributes &attributes, const QByteArray &label, const Secret &password,
                   const Cancellation &cancellation)
{
    const std::lock_guard lock(writing());
    const Service service(&cancellation);
    const auto collection = defaultCollection(service);
    if (collection.status != KeychainStatus::Success) return {collection.status};
    const Fetched<Items> same = search(service, attributes);
    if (same.status != KeychainStatus::Success) return {same.status};
    if (same.value) return {KeychainStatus::DuplicateItem};

    // By this name programs know how to show it. Not all give it to theirs, so no search asks for it.
    Attributes kept = attributes;
    kept["xdg:schema"] = "org.freedesktop.Secret.Generic";

    Error error;
    const Table table = toTable(kept);
    const Owned<SecretItem> item(secret_item_create_sync(
        collection.value.get(), nullptr, table.get(), label.constData(), toValue(password).get(),
        SECRET_ITEM_CREATE_NONE, service.cancellable(), error.place()));
    if (!item) return {error.status(KeychainStatus::Refused)};
    return {KeychainStatus::Success, referenceTo(item.get())};
}

KeychainStatus modify(const Item &reference, const Changes &changes, const Cancellation &cancellation)
{
    const std::lock_guard lock(writing());
    const Service service(&cancellation);
    const auto item = fetch(service, reference);
    if (item.status != KeychainStatus::Success) return item.status;

    if (!changes.attributes.empty()) {
        const KeychainStatus status = changeAttributes(service, item.value.get(), changes.attributes);
        if (status != KeychainStatus::Success) return status;
    }
    Error error;
    if (changes.label && !secret_item_set_label_sync(item.value.get(), changes.label->constData(),
                                                     service.cancellable(), error.place()))
        return error.status(KeychainStatus::Refused);
    if (changes.password && !secret_item_set_secret_sync(item.value.get(), toValue(*changes.password).get(),
                                                         service.cancellable(), error.place()))
        return error.status(KeychainStatus::Refused);
    return KeychainStatus::Success;
}

KeychainStatus remove(const Item &reference, const Cancellation &cancellation)
{
    const Service service(&cancellation);
    const auto item = fetch(service, reference);
    if (item.status != KeychainStatus::Success) return item.status;
    Error error;
    if (secret_item_delete_sync(item.value.get(), service.cancellable(), error.place()))
        return KeychainStatus::Success;
    return error.status(KeychainStatus::Refused);
}

KeychainStatus state(const Cancellation &cancellation)
{
    return defaultCollection(Service(&cancellation)).status;
}

KeychainStatus lock(const Cancellation &cancellation)
{
    const Service service(&cancellation);
    const auto collection = defaultCollection(service);
    if (collection.status == KeychainStatus::Locked) return KeychainStatus::Success;
    if (collection.status != KeychainStatus::Success) return collection.status;
    GList objects{collection.value.get(), nullptr, nullptr};
    Error error;
    const gint count =
        secret_service_lock_sync(service.get(), &objects, service.cancellable(), nullptr, error.place());
    return count > 0 ? KeychainStatus::Success : error.status(KeychainStatus::Refused);
}

KeychainStatus unlock()
{
    const Service service(nullptr);
    const auto collection = defaultCollection(service);
    if (collection.status != KeychainStatus::Locked) return collection.status;
    GList objects{collection.value.get(), nullptr, nullptr};
    Error error;
    const gint count = secret_service_unlock_sync(service.get(), &objects, nullptr, nullptr, error.place());
    return count > 0 ? KeychainStatus::Success : error.status(KeychainStatus::UnlockDeclined);
}

} // namespace secretService
