#include <gio/gio.h>

#include "ui/widgets/Motion.h"

#include <QApplication>
#include <QStyle>
#include <atomic>

namespace ui {
namespace {

constexpr const char *portal = "org.freedesktop.portal.Desktop";
constexpr const char *portalPath = "/org/freedesktop/portal/desktop";
constexpr const char *settings = "org.freedesktop.portal.Settings";
constexpr const char *table = "org.gnome.desktop.interface"; // other desktops answer for it, too
constexpr const char *key = "enable-animations";

std::atomic<bool> isAllowed = true;

/// The value may be wrapped more than once.
void take(GVariant *value)
{
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_BOOLEAN)) isAllowed = g_variant_get_boolean(value);
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE_VARIANT)) return;
    GVariant *inner = g_variant_get_variant(value);
    take(inner);
    g_variant_unref(inner);
}

void takeLast(GVariant *values)
{
    GVariant *value = g_variant_get_child_value(values, g_variant_n_children(values) - 1);
    take(value);
    g_variant_unref(value);
}

void takeChange(GDBusConnection *, const char *, const char *, const char *, const char *,
                GVariant *arguments, gpointer)
{
    const char *changedKey = nullptr;
    if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)"))) return;
    g_variant_get_child(arguments, 1, "&s", &changedKey);
    if (g_str_equal(changedKey, key)) takeLast(arguments);
}

} // namespace

bool isMotionWanted()
{
    return isAllowed && QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

MotionSettings::MotionSettings()
{
    m_bus.post([this](GDBusConnection *connection) {
        g_dbus_connection_signal_subscribe(connection, portal, settings, "SettingChanged", portalPath, table,
                                           G_DBUS_SIGNAL_FLAGS_NONE, takeChange, nullptr, nullptr);
        m_bus.call({portal, portalPath, settings, "Read", true}, g_variant_new("(ss)", table, key),
                   [](GVariant *answer, GUnixFDList *) {
                       if (g_variant_is_of_type(answer, G_VARIANT_TYPE("(v)"))) takeLast(answer);
                   });
    });
}

} // namespace ui
