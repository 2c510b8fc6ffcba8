#include "keychain/SecretServiceConnection.h"

#include <QLoggingCategory>
#include <algorithm>

namespace secretService {

namespace {

Q_LOGGING_CATEGORY(logSecretService, "quillorent.keychain.service", QtInfoMsg)

} // namespace

KeychainStatus Error::status(KeychainStatus otherwise) const
{
    if (!m_error) return otherwise;
    qCDebug(logSecretService, "%s %d: %s", g_quark_to_string(m_error->domain), m_error->code,
            m_error->message);
    if (is(SECRET_ERROR, {SECRET_ERROR_IS_LOCKED})) return KeychainStatus::Locked;
    if (is(SECRET_ERROR, {SECRET_ERROR_NO_SUCH_OBJECT})) return KeychainStatus::ItemNotFound;
    if (is(SECRET_ERROR, {SECRET_ERROR_ALREADY_EXISTS})) return KeychainStatus::DuplicateItem;
    if (is(G_DBUS_ERROR,
           {G_DBUS_ERROR_UNKNOWN_METHOD, G_DBUS_ERROR_UNKNOWN_OBJECT, G_DBUS_ERROR_UNKNOWN_INTERFACE}))
        return KeychainStatus::ItemNotFound;
    if (is(G_DBUS_ERROR,
           {G_DBUS_ERROR_SERVICE_UNKNOWN, G_DBUS_ERROR_NAME_HAS_NO_OWNER, G_DBUS_ERROR_DISCONNECTED,
            G_DBUS_ERROR_NO_SERVER, G_DBUS_ERROR_SPAWN_EXEC_FAILED, G_DBUS_ERROR_SPAWN_CHILD_EXITED,
            G_DBUS_ERROR_SPAWN_SERVICE_NOT_FOUND, G_DBUS_ERROR_SPAWN_FAILED}))
        return KeychainStatus::NoService;
    if (is(G_IO_ERROR, {G_IO_ERROR_CLOSED})) return KeychainStatus::NoService;
    if (is(G_IO_ERROR, {G_IO_ERROR_TIMED_OUT, G_IO_ERROR_CANCELLED})) return KeychainStatus::NotAnswering;
    if (is(G_DBUS_ERROR, {G_DBUS_ERROR_NO_REPLY, G_DBUS_ERROR_TIMEOUT, G_DBUS_ERROR_TIMED_OUT}))
        return KeychainStatus::NotAnswering;
    return otherwise;
}

bool Error::is(GQuark domain, std::initializer_list<int> codes) const
{
    return m_error->domain == domain && std::find(codes.begin(), codes.end(), m_error->code) != codes.end();
}

ContextOfCall::ContextOfCall() : m_context(g_main_context_new())
{
    g_main_context_push_thread_default(m_context);
}

ContextOfCall::~ContextOfCall()
{
    while (g_main_context_iteration(m_context, FALSE)) {
    }
    g_main_context_pop_thread_default(m_context);
    g_main_context_unref(m_context);
}

Cancellation::Cancellation() : m_handle(g_cancellable_new(), g_object_unref) {}

void Cancellation::cancel() const { g_cancellable_cancel(static_cast<GCancellable *>(m_handle.get())); }

Service::Service(const Cancellation *cancellation)
    : m_cancellable(cancellation ? static_cast<GCancellable *>(cancellation->handle()) : nullptr)
{
    Error error;
    m_bus.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, m_cancellable, error.place()));
    if (!m_bus) {
        m_status = error.status(KeychainStatus::NoService);
        return;
    }
    // The end of the session's bus is not the end of the program.
    g_dbus_connection_set_exit_on_close(m_bus.get(), FALSE);

    m_service.reset(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                             m_cancellable, error.place()));
    if (!m_service) m_status = error.status(KeychainStatus::NoService);
}

} // namespace secretService
