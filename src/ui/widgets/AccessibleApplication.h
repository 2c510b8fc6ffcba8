#pragma once

namespace ui {

/// From now on the program tells screen readers of its windows itself. One that asks for a window which has
/// closed by then gets none: the toolkit would look past the end of its list, and crash.
void tellOfWindows();

} // namespace ui
