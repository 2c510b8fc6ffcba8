#pragma once

class QStackedWidget;
class QTabWidget;

namespace ui {

/// Lets each page scroll where the window is smaller than what stands on it, instead of cutting it off. What
/// stands on the pages goes on being found by its name.
void letPagesScroll(QTabWidget &tabs);

/// Lets a stack take the room of the page that is shown, not of the largest one.
void fitToShownPage(QStackedWidget &stack);

} // namespace ui
