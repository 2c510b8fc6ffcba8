#pragma once

#include <QString>

/// The text with U+FFFD for what a name can hold to look like another or to govern a terminal: control
/// characters, and those that turn the direction of what follows them
/// (https://www.unicode.org/reports/tr36/#Bidirectional_Text_Spoofing). Line breaks and tabs stay.
[[nodiscard]] QString printable(const QString &text);

/// The same for a name, which stays on its line.
[[nodiscard]] QString printableName(const QString &name);
