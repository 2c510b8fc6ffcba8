#pragma once

namespace ui {

/// Sees to it that the words in empty fields can be read on every palette, also on one that comes while the
/// program runs. Palettes that do well by themselves are left alone.
void keepPlaceholdersReadable();

} // namespace ui
