#pragma once

class QWidget;

namespace ui {

/// Tells the program's version and licence, and the libraries that it stands on. Returns at once.
void showAbout(QWidget &window);

} // namespace ui
