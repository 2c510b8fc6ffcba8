#pragma once

#include <QString>

struct PasswordTab;

namespace ui {

/// What the next backup is protected with, and what is still missing for it. Never holds the password itself.
[[nodiscard]] QString protectionText(const PasswordTab &tab);

} // namespace ui
