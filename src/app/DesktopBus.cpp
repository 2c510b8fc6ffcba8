#include <gio/gio.h>

#include "app/DesktopBus.h"

#include <QString>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <mutex>
#include <string>
#include <thread>

namespace {

// By itself the library would start a bus where there is none.
std::string addressOf(DesktopBus::Kind kind)
{
    const bool isSystem = kind == DesktopBus::Kind::System;
    if (const char *address = std::getenv(isSystem ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS"))
        return address;
    const char *runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path socket = isSystem
                                             ? "/run/dbus/system_bus_socket"
                                             : std::filesystem::path(runtime ? runtime : "/nowhere") / "bus";
    std::error_code none;
    return std::filesystem::exists(socket, none) ? "unix:path=" + socket.string() : std::string();
}

} // namespace

/// All but the constructor, the destructor, end() and invoke() runs on the thread itself, and nothing of it
/// blocks.
struct DesktopBus::Thread {
    using Step = std::function<void(GDBusConnection *)>;
    using Take = std::function<void(GVariant *, GUnixFDList *)>;

    explicit Thread(Kind kind);
    ~Thread();

    void end();                              ///< called once its owner is done with it
    void invoke(std::function<void()> step); ///< called on any thread
    void runNext();
    void take(Step step);
    void run(const std::string &address);
    void stop();
    void finishOne();
    void call(const Method &method, GVariant *arguments, const Take &take);

    static void connected(GObject *, GAsyncResult *result, gpointer self);
    static void answered(GObject *connection, GAsyncResult *result, gpointer data);

    struct Call {
        Thread &thread;
        Take take;
    };

    GMainContext *const context = g_main_context_new();
    GMainLoop *const loop = g_main_loop_new(context, FALSE);
    GCancellable *const cancellable = g_cancellable_new();
    GDBusConnection *connection = nullptr;
    std::mutex mutex;
    std::deque<std::function<void()>> steps; ///< handed over; guarded by the mutex
    std::deque<Step> waiting;                ///< for the connection
    int pending = 0;
    bool isUseless = false; ///< there is no connection, and will be none
    bool isStopping = false;
    std::thread thread; // last: it uses the others
};

DesktopBus::Thread::Thread(Kind kind) : thread([this, address = addressOf(kind)] { run(address); }) {}

DesktopBus::Thread::~Thread()
{
    end();
    if (connection) g_object_unref(connection);
    g_object_unref(cancellable);
    g_main_loop_unref(loop);
    g_main_context_unref(context);
}

void DesktopBus::Thread::end()
{
    if (!thread.joinable()) return;
    invoke([this] { stop(); });
    thread.join();
}

void DesktopBus::Thread::invoke(std::function<void()> step)
{
    {
        const std::lock_guard lock(mutex);
        steps.push_back(std::move(step));
    }
    GSource *source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(
        source,
        [](gpointer self) -> gboolean {
            static_cast<Thread *>(self)->runNext();
            return G_SOURCE_REMOVE;
        },
        this, nullptr);
    g_source_attach(source, context);
    g_source_unref(source);
}

void DesktopBus::Thread::runNext()
{
    std::function<void()> step;
    {
        const std::lock_guard lock(mutex);
        step = std::move(steps.front());
        steps.pop_front();
    }
    step();
}

void DesktopBus::Thread::run(const std::string &address)
{
    g_main_context_push_thread_default(context);
    isUseless = address.empty();
    if (!isUseless) {
        ++pending;
        constexpr auto flags = static_cast<GDBusConnectionFlags>(
            G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        g_dbus_connection_new_for_address(address.c_str(), flags, nullptr, cancellable, connected, this);
    }
    g_main_loop_run(loop);
    waiting.clear();
    g_main_context_pop_thread_default(context);
}

void DesktopBus::Thread::connected(GObject *, GAsyncResult *result, gpointer self)
{
    auto &thread = *static_cast<Thread *>(self);
    thread.connection = g_dbus_connection_new_for_address_finish(result, nullptr);
    thread.isUseless = !thread.connection;
    for (const Step &step : std::exchange(thread.waiting, {}))
        if (thread.connection && !thread.isStopping) step(thread.connection);
    thread.finishOne();
}

void DesktopBus::Thread::take(Step step)
{
    if (isUseless || isStopping) return;
    if (connection)
        step(connection);
    else
        waiting.push_back(std::move(step));
}

void DesktopBus::Thread::call(const Method &method, GVariant *arguments, const Take &take)
{
    ++pending;
    g_dbus_connection_call_with_unix_fd_list(
        connection, method.service, method.path, method.interface, method.name, arguments, nullptr,
        method.startsService ? G_DBUS_CALL_FLAGS_NONE : G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr,
        cancellable, answered, new Call{*this, take});
}

void DesktopBus::Thread::answered(GObject *connection, GAsyncResult *result, gpointer data)
{
    const std::unique_ptr<Call> call(static_cast<Call *>(data));
    GUnixFDList *descriptors = nullptr;
    GVariant *answer = g_dbus_connection_call_with_unix_fd_list_finish(
        reinterpret_cast<GDBusConnection *>(connection), &descriptors, result, nullptr);
    if (answer && call->take && !call->thread.isStopping) call->take(answer, descriptors);
    if (answer) g_variant_unref(answer);
    if (descriptors) g_object_unref(descriptors);
    call->thread.finishOne();
}

void DesktopBus::Thread::finishOne()
{
    if (--pending == 0 && isStopping) g_main_loop_quit(loop);
}

// What was cancelled still tells so, at once.
void DesktopBus::Thread::stop()
{
    isStopping = true;
    g_cancellable_cancel(cancellable);
    if (pending == 0) g_main_loop_quit(loop);
}

DesktopBus::DesktopBus(Kind kind) : m_thread(std::make_shared<Thread>(kind)) {}

// Steps use this object as long as the thread runs.
DesktopBus::~DesktopBus() { end(); }

void DesktopBus::end() { m_thread->end(); }

void DesktopBus::post(std::function<void(GDBusConnection *)> step)
{
    m_thread->invoke([thread = m_thread.get(), step = std::move(step)] { thread->take(step); });
}

void DesktopBus::call(const Method &method, GVariant *arguments,
                      const std::function<void(GVariant *, GUnixFDList *)> &take)
{
    m_thread->call(method, arguments, take);
}
