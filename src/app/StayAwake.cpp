#include <gio/gio.h>
#include <gio/gunixfdlist.h>

#include "app/StayAwake.h"

#include <unistd.h>

// See org.freedesktop.login1(5). Two holds: not everybody who may have the one may have the other.
StayAwake::StayAwake(const QString &why)
{
    m_bus.post([this, reason = why.toUtf8()](GDBusConnection *) {
        for (const char *what : {"idle:sleep", "shutdown"})
            m_bus.call({"org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                        "Inhibit"},
                       g_variant_new("(ssss)", what, "Quillorent", reason.constData(), "block"),
                       [this](GVariant *, GUnixFDList *descriptors) {
                           if (!descriptors) return;
                           const int descriptor = g_unix_fd_list_get(descriptors, 0, nullptr);
                           if (descriptor >= 0) m_descriptors.push_back(descriptor);
                       });
    });
}

StayAwake::~StayAwake()
{
    m_bus.end();
    for (const int descriptor : m_descriptors)
        close(descriptor);
}
