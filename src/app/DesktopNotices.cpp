#include <gio/gio.h>

#include "app/DesktopNotices.h"

#include "files/Printable.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(DesktopNotices)
};

// https://specifications.freedesktop.org/notification-spec/
constexpr const char *service = "org.freedesktop.Notifications";
constexpr const char *path = "/org/freedesktop/Notifications";
constexpr const char *openKey = "open";

bool contains(GVariant *list, const char *word)
{
    GVariantIter words;
    g_variant_iter_init(&words, list);
    const char *each = nullptr;
    while (g_variant_iter_next(&words, "&s", &each))
        if (g_str_equal(each, word)) return true;
    return false;
}

} // namespace

DesktopNotices::DesktopNotices(std::function<void(Answer)> answered) : m_answered(std::move(answered)) {}

void DesktopNotices::listen(GDBusConnection *connection)
{
    if (std::exchange(m_listens, true)) return;
    const auto take = [](GDBusConnection *, const char *, const char *, const char *, const char *,
                         GVariant *arguments, gpointer data) {
        const auto &self = *static_cast<DesktopNotices *>(data);
        if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(us)"))) return;
        guint32 number = 0;
        const char *key = nullptr;
        g_variant_get(arguments, "(u&s)", &number, &key);
        if (number == self.m_shown)
            self.m_answered(g_str_equal(key, openKey) ? Answer::OpenFolder : Answer::Show);
    };
    g_dbus_connection_signal_subscribe(connection, service, service, "ActionInvoked", path, nullptr,
                                       G_DBUS_SIGNAL_FLAGS_NONE, take, this, nullptr);
}

void DesktopNotices::show(const Notice &notice)
{
    m_bus.post([this, notice](GDBusConnection *connection) {
        listen(connection);
        m_bus.call({service, path, service, "GetCapabilities", true}, nullptr,
                   [this, notice](GVariant *answer, GUnixFDList *) {
                       if (!g_variant_is_of_type(answer, G_VARIANT_TYPE("(as)"))) return;
                       GVariant *capabilities = g_variant_get_child_value(answer, 0);
                       const bool takesMarkup = contains(capabilities, "body-markup");
                       g_variant_unref(capabilities);
                       send(notice, takesMarkup);
                   });
    });
}

void DesktopNotices::send(const Notice &notice, bool takesMarkup)
{
    const QByteArray title = notice.title.toUtf8();
    // A name may hold what would be taken for markup.
    const QString shown = printable(notice.text);
    const QByteArray text = (takesMarkup ? shown.toHtmlEscaped() : shown).toUtf8();
    const auto add = [](GVariantBuilder &actions, const char *key, const QString &label) {
        g_variant_builder_add(&actions, "s", key);
        g_variant_builder_add(&actions, "s", label.toUtf8().constData());
    };
    GVariantBuilder actions;
    g_variant_builder_init(&actions, G_VARIANT_TYPE("as"));
    add(actions, "default", Words::tr("Show the window"));
    if (notice.opensFolder) add(actions, openKey, Words::tr("Open folder"));
    GVariantBuilder hints;
    g_variant_builder_init(&hints, G_VARIANT_TYPE("a{sv}"));
    g_variant_builder_add(&hints, "{sv}", "desktop-entry", g_variant_new_string("com.brolvanek.Quillorent"));
    g_variant_builder_add(&hints, "{sv}", "urgency", g_variant_new_byte(notice.isFailure ? 2 : 1));
    m_bus.call({service, path, service, "Notify", true},
               g_variant_new("(susssasa{sv}i)", "Quillorent", m_shown, "com.brolvanek.Quillorent",
                             title.constData(), text.constData(), &actions, &hints, -1),
               [this](GVariant *answer, GUnixFDList *) {
                   if (g_variant_is_of_type(answer, G_VARIANT_TYPE("(u)")))
                       g_variant_get(answer, "(u)", &m_shown);
               });
}

// A signal to whoever shows it: https://wiki.ubuntu.com/Unity/LauncherAPI
void DesktopNotices::showProgress(std::optional<double> part)
{
    m_bus.post([part](GDBusConnection *connection) {
        GVariantBuilder values;
        g_variant_builder_init(&values, G_VARIANT_TYPE("a{sv}"));
        g_variant_builder_add(&values, "{sv}", "progress", g_variant_new_double(part.value_or(0)));
        g_variant_builder_add(&values, "{sv}", "progress-visible", g_variant_new_boolean(part.has_value()));
        g_dbus_connection_emit_signal(
            connection, nullptr, "/com/brolvanek/Quillorent", "com.canonical.Unity.LauncherEntry", "Update",
            g_variant_new("(sa{sv})", "application://com.brolvanek.Quillorent.desktop", &values), nullptr);
    });
}
