#pragma once

class QMainWindow;
class QTabWidget;

namespace ui {

/// Keeps the size and the tab of the window from one start to the next. They are no settings of the user's:
/// they lie below $XDG_STATE_HOME, and nothing is lost with them.
void keepPlace(const QMainWindow &window, const QTabWidget &tabs);

/// As it was kept; a size that suits the font where nothing was.
void restorePlace(QMainWindow &window, QTabWidget &tabs);

} // namespace ui
