#include "ui/widgets/AccessibleApplication.h"

#include <QAccessibleObject>
#include <QApplication>
#include <QWidget>
#include <mutex>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

/// The root of what a screen reader sees of the program; its children are the windows.
class AccessibleApplication : public QAccessibleObject {
public:
    using QAccessibleObject::QAccessibleObject;

    QWindow *window() const override { return QGuiApplication::focusWindow(); }
    int childCount() const override { return int(windows().size()); }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return int(windows().indexOf(qobject_cast<QWidget *>(child->object())));
    }
    QAccessibleInterface *focusChild() const override
    {
        return QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    }
    QAccessibleInterface *parent() const override { return nullptr; }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(windows().value(index));
    }
    QString text(QAccessible::Text what) const override
    {
        if (what == QAccessible::Name) return QGuiApplication::applicationDisplayName();
        return what == QAccessible::Description ? QCoreApplication::applicationFilePath() : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Application; }
    QAccessible::State state() const override { return {}; }

private:
    static QWidgetList windows()
    {
        QWidgetList all = QApplication::topLevelWidgets();
        all.removeIf([](const QWidget *each) {
            return each->windowType() == Qt::Popup || each->windowType() == Qt::Desktop;
        });
        return all;
    }
};

QAccessibleInterface *asApplication(const QString &kind, QObject *object)
{
    return kind == u"QApplication" ? new AccessibleApplication(object) : nullptr;
}

} // namespace

void tellOfWindows()
{
    static std::once_flag once;
    std::call_once(once, [] {
        // Where a reader is at work already, the toolkit has made its own.
        const QAccessible::Id former = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(qApp));
        QAccessible::installFactory(asApplication);
        QAccessible::deleteAccessibleInterface(former);
    });
}

} // namespace ui
