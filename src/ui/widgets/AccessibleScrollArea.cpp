#include "ui/widgets/AccessibleScrollArea.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <mutex>

namespace ui {
namespace {

/// As any widget with children; lists and texts have ways of their own.
QAccessibleInterface *asWidget(const QString &kind, QObject *object)
{
    auto *area = qobject_cast<QWidget *>(object);
    const bool isPlain = kind == u"QScrollArea" || kind == u"QAbstractScrollArea";
    return area && isPlain ? new QAccessibleWidget(area, QAccessible::Client) : nullptr;
}

} // namespace

void keepScrollAreasInBounds()
{
    static std::once_flag once;
    std::call_once(once, [] { QAccessible::installFactory(asWidget); });
}

} // namespace ui
