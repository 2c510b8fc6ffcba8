#include "ui/widgets/Announcer.h"

#include "ui/widgets/PanelDialog.h"
#include "ui/widgets/TextArea.h"

#include <QAccessibleWidget>
#include <QTimer>
#include <mutex>

namespace ui {
namespace {

QAccessibleInterface *asNotification(const QString &, QObject *object)
{
    auto *announcer = qobject_cast<Announcer *>(object);
    return announcer ? new QAccessibleWidget(announcer, QAccessible::Notification) : nullptr;
}

QString textOf(const QWidget &panel)
{
    QStringList texts;
    for (const auto *area : panel.findChildren<TextArea *>())
        if (area->isVisible()) texts.append(area->text());
    return texts.join(u'\n');
}

} // namespace

Announcer::Announcer(QWidget &window) : QWidget(&window)
{
    static std::once_flag once;
    std::call_once(once, [] { QAccessible::installFactory(asNotification); });
    resize(0, 0);
}

void Announcer::say(const QString &text)
{
    if (text.isEmpty()) return;
    setAccessibleName(text);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

void Announcer::readAloud(PanelDialog &panel)
{
    // Its texts may be filled in only after it is shown.
    connect(&panel, &PanelDialog::visibilityChanged, this, [this, &panel](bool isVisible) {
        if (isVisible) QTimer::singleShot(0, &panel, [this, &panel] { say(textOf(panel)); });
    });
}

} // namespace ui
