#pragma once

class QTabWidget;

namespace ui {

/// Lets each page scroll where the window is smaller than what stands on it, instead of cutting it off. What
/// stands on the pages goes on being found by its name.
void letPagesScroll(QTabWidget &tabs);

} // namespace ui
