#pragma once

class QuillorentAppDelegate;

namespace Ui {
class MainWindow;
}

namespace ui {

class RefreshQueue;

/// What the row of the profile shows beyond its outlets, and the window's title. All must live as long as the
/// queue.
void showHeader(QuillorentAppDelegate &controller, Ui::MainWindow &form, RefreshQueue &queue);

} // namespace ui
