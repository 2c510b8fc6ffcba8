#pragma once

#define SECRET_WITH_UNSTABLE
#define SECRET_API_SUBJECT_TO_CHANGE // an item by its path
#include <libsecret/secret.h>

#include "keychain/SecretServiceCalls.h"

#include <initializer_list>
#include <memory>

// What every call to the service needs. For SecretServiceCalls.cpp alone: libsecret's header has to come
// before Qt's.
namespace secretService {

struct Unreference {
    void operator()(void *object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

struct ReleaseTable {
    void operator()(GHashTable *table) const { g_hash_table_unref(table); }
};
using Table = std::unique_ptr<GHashTable, ReleaseTable>;

struct ReleaseValue {
    void operator()(SecretValue *value) const { secret_value_unref(value); }
};
using Value = std::unique_ptr<SecretValue, ReleaseValue>;

struct ReleaseItems {
    void operator()(GList *items) const { g_list_free_full(items, g_object_unref); }
};
using Items = std::unique_ptr<GList, ReleaseItems>;

/// A place for a call's error, and what it means.
class Error {
public:
    Error() = default;
    ~Error() { g_clear_error(&m_error); }
    Error(const Error &) = delete;
    Error &operator=(const Error &) = delete;

    [[nodiscard]] GError **place() { return &m_error; }

    /// `otherwise` where there is none, or one that says no more.
    [[nodiscard]] KeychainStatus status(KeychainStatus otherwise) const;

private:
    [[nodiscard]] bool is(GQuark domain, std::initializer_list<int> codes) const;

    GError *m_error = nullptr;
};

/// A main loop's context for the calling thread while the object lives. What GLib has to say of connections
/// and objects is said to it; said to the program's own, where nobody may listen, it would hold them for
/// ever, even a connection that has been closed long since.
class ContextOfCall {
public:
    ContextOfCall();
    ~ContextOfCall();
    ContextOfCall(const ContextOfCall &) = delete;
    ContextOfCall &operator=(const ContextOfCall &) = delete;

private:
    GMainContext *m_context;
};

/// The service as it is now. `status` says why there is none.
class Service {
public:
    /// Null: can't be cancelled.
    explicit Service(const Cancellation *cancellation);

    [[nodiscard]] KeychainStatus status() const { return m_status; }
    [[nodiscard]] SecretService *get() const { return m_service.get(); }
    [[nodiscard]] GCancellable *cancellable() const { return m_cancellable; }

private:
    ContextOfCall m_context; // the first to come and the last to go
    GCancellable *m_cancellable;
    Owned<GDBusConnection> m_bus;
    Owned<SecretService> m_service;
    KeychainStatus m_status = KeychainStatus::Success;
};

} // namespace secretService
