#pragma once

class QuillorentAppDelegate;

namespace Ui {
class MainWindow;
}

namespace ui {

class RefreshQueue;

/// Keeps what the window shows beyond its outlets in step with them: hints, warnings, which buttons can be
/// pressed. All three must outlive the queue's last refresh.
void showDerived(QuillorentAppDelegate &all, Ui::MainWindow &form, RefreshQueue &queue);

} // namespace ui
