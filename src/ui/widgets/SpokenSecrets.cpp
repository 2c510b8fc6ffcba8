#include "ui/widgets/SpokenSecrets.h"

#include <QLineEdit>

namespace ui {
namespace {

QString maskFor(const QString &text) { return QString(text.size(), u'*'); }

/// Stands in front of the toolkit's own way, and lets it go on.
void tell(QAccessibleEvent *event)
{
    const std::unique_ptr<QAccessibleEvent> masked = withoutSecret(*event);
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(masked ? masked.get() : event);
    QAccessible::installUpdateHandler(tell);
}

} // namespace

std::unique_ptr<QAccessibleEvent> withoutSecret(const QAccessibleEvent &event)
{
    const auto *field = qobject_cast<QLineEdit *>(event.object());
    if (!field || field->echoMode() == QLineEdit::Normal) return nullptr;
    QObject *const object = event.object();
    if (event.type() == QAccessible::TextInserted) {
        const auto &text = static_cast<const QAccessibleTextInsertEvent &>(event);
        return std::make_unique<QAccessibleTextInsertEvent>(object, text.changePosition(),
                                                            maskFor(text.textInserted()));
    }
    if (event.type() == QAccessible::TextRemoved) {
        const auto &text = static_cast<const QAccessibleTextRemoveEvent &>(event);
        return std::make_unique<QAccessibleTextRemoveEvent>(object, text.changePosition(),
                                                            maskFor(text.textRemoved()));
    }
    if (event.type() != QAccessible::TextUpdated) return nullptr;
    const auto &text = static_cast<const QAccessibleTextUpdateEvent &>(event);
    return std::make_unique<QAccessibleTextUpdateEvent>(
        object, text.changePosition(), maskFor(text.textRemoved()), maskFor(text.textInserted()));
}

void keepSecretsUnspoken() { QAccessible::installUpdateHandler(tell); }

} // namespace ui
