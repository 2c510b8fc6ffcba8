#pragma once

#include <QString>

struct PasswordTab;

namespace ui {

/// What the next backup is protected with, and what is still missing for it. Never holds the password itself.
[[nodiscard]] QString protectionText(const PasswordTab &tab);

/// Whether the keychain's field that counts differs from the one that is seen: which counts follows the
/// switch of the typed password, which is seen follows the keychain's own.
[[nodiscard]] bool isKeychainFieldAmbiguous(const PasswordTab &tab);

} // namespace ui
