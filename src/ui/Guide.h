#pragma once

class QWidget;

namespace ui {

enum class GuidePage {
    Guide,   ///< how to use the program
    Recovery ///< how to get everything back without it
};

/// Shows a page of the guide, which lies in the program itself, in a window of its own beside `window`. There
/// is one such window; it is brought to the front where it is open.
void showGuide(QWidget &window, GuidePage page);

} // namespace ui
