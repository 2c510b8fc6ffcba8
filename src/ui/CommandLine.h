#pragma once

namespace ui {

/// Whether the program was asked for its help or its version, which is printed then, and not for its window.
[[nodiscard]] bool wantsText(int argc, char **argv, const char *version);

} // namespace ui
