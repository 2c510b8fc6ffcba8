#pragma once

class QMainWindow;

namespace ui {

/// Makes the menu bar of the window's form work. What the window has a control for, the menu does by pressing
/// that control: there is one way to do a thing, and it may be done when the control may be pressed.
void connectMenu(QMainWindow &window);

} // namespace ui
