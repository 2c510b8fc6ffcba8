#include "ui/Binding.h"

#include "ui/Ties.h"

namespace ui {

QList<QWidget *> widgetsNamed(const QString &name, const QList<QWidget *> &roots)
{
    QList<QWidget *> found;
    for (QWidget *root : roots) {
        if (root->objectName() == name) found.append(root);
        // A panel is a child of the window and a root of its own: it is counted once.
        for (QWidget *widget : root->findChildren<QWidget *>(name))
            if (!roots.contains(widget) && !found.contains(widget)) found.append(widget);
    }
    return found;
}

Binding::Binding(const QList<outlets::Outlet *> &outlets, const QList<QWidget *> &roots)
{
    for (outlets::Outlet *outlet : outlets) {
        const QList<QWidget *> widgets = widgetsNamed(outlet->name(), roots);
        if (widgets.isEmpty()) continue;
        if (widgets.size() > 1)
            qFatal("%lld widgets are named %s", widgets.size(), qUtf8Printable(outlet->name()));
        if (!tie(m_queue, *outlet, *widgets.first()))
            qFatal("%s is shown by a widget of the wrong kind", qUtf8Printable(outlet->name()));
    }
}

} // namespace ui
