#pragma once

#include <QString>
#include <optional>

namespace plist {

/// A place in a text, in UTF-16 units from its beginning, and what is wrong there.
struct Refusal {
    qsizetype index = 0;
    QString reason;
};

/// The first character that XML 1.0 can't carry, not even as a reference (https://www.w3.org/TR/xml/,
/// “Char”); the reason is its number, "U+0001". None where it can carry all.
[[nodiscard]] std::optional<Refusal> forbiddenCharacter(QStringView text);

/// What of a document must not reach the XML reader: characters that are not XML's (its messages would repeat
/// them), declarations and overlong tags (it takes time with the square of their number and length). None
/// where all may.
[[nodiscard]] std::optional<Refusal> refusedMarkup(QStringView document);

} // namespace plist
