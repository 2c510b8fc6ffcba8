#pragma once

#include "ui/watching/RefreshQueue.h"

#include <QWidget>

namespace ui {

/// Ties an outlet and the widget that shows it, by their classes. Says whether there is a way to do so.
[[nodiscard]] bool tie(RefreshQueue &queue, outlets::Outlet &outlet, QWidget &widget);

} // namespace ui
