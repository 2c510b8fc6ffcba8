#pragma once

#include <QDateTime>
#include <QString>
#include <chrono>

namespace ui {

/// "48.2 GB".
[[nodiscard]] QString sizeText(quint64 bytes);

/// "today at 19:24", "yesterday at 08:10", "on 12/03/26 at 19:24", as the locale has it.
[[nodiscard]] QString momentText(const QDateTime &moment);

/// "8 s", "11 min", "2 h 5 min": as exact as a person wants to know it.
[[nodiscard]] QString durationText(std::chrono::seconds duration);

/// The path as printableName() has it, which reads from the left to the right among words of any language.
[[nodiscard]] QString pathText(const QString &path);

/// The text as printable() has it, but a name of 255 characters can go over several lines: a label would be
/// as wide as it.
[[nodiscard]] QString breakable(const QString &text);

} // namespace ui
