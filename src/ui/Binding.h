#pragma once

#include "ui/watching/RefreshQueue.h"

#include <QWidget>

namespace ui {

/// The widgets of that name among the roots and all below them.
[[nodiscard]] QList<QWidget *> widgetsNamed(const QString &name, const QList<QWidget *> &roots);

/// Where outlets meet widgets: each outlet is tied to the one widget of its name. A change of the outlet
/// shows in the widget, what the user does to the widget is written to the outlet. Neither answers the
/// other's echo.
class Binding {
public:
    /// Outlets without a widget are left alone. Two widgets of one outlet's name, or one that can't show it,
    /// are a mistake in a form and end the program.
    Binding(const QList<outlets::Outlet *> &outlets, const QList<QWidget *> &roots);

    /// For what a window derives from outlets beyond showing them.
    [[nodiscard]] RefreshQueue &queue() { return m_queue; }

private:
    RefreshQueue m_queue;
};

} // namespace ui
