#pragma once

#include <functional>
#include <memory>

using GDBusConnection = struct _GDBusConnection;
using GUnixFDList = struct _GUnixFDList;
using GVariant = struct _GVariant;

/// A connection to one of the machine's buses, on a thread of its own: whoever uses it never waits for it,
/// whatever the bus does. Where there is no bus, or none that answers, nothing happens.
class DesktopBus {
public:
    enum class Kind { Session, System };

    explicit DesktopBus(Kind kind);
    ~DesktopBus();
    DesktopBus(const DesktopBus &) = delete;
    DesktopBus &operator=(const DesktopBus &) = delete;

    /// What was not answered by now is dropped; nothing runs on the bus's thread any more.
    void end();

    /// Runs the step on the bus's thread, after those before it, once there is a connection.
    void post(std::function<void(GDBusConnection *)> step);

    struct Method {
        const char *service;
        const char *path;
        const char *interface;
        const char *name;
        bool startsService = false; ///< where none has the name yet
    };
    /// For steps: calls a method. `take` is given the answer, on the bus's thread too, unless that is an
    /// error.
    void call(const Method &method, GVariant *arguments,
              const std::function<void(GVariant *, GUnixFDList *)> &take = {});

private:
    struct Thread;
    std::shared_ptr<Thread> m_thread;
};
