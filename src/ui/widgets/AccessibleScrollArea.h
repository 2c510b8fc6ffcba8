#pragma once

namespace ui {

/// From now on a screen reader that asks an area for a scroll bar which has gone by then gets none: the
/// toolkit would look past the end of its list, and crash.
void keepScrollAreasInBounds();

} // namespace ui
