#include "files/Printable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView breaks = u"\n\t";

/// Marks and isolates from the left to the right are not among them: the program sets them around paths.
constexpr QStringView turns = u"\u202a\u202b\u202c\u202d\u202e\u2067\u2068";

QString without(QString text, QStringView kept)
{
    const auto isKept = [kept](QChar unit) {
        return kept.contains(unit) || !(unit.category() == QChar::Other_Control || turns.contains(unit));
    };
    if (std::ranges::all_of(std::as_const(text), isKept)) return text;
    for (QChar &unit : text)
        if (!isKept(unit)) unit = QChar::ReplacementCharacter;
    return text;
}

} // namespace

QString printable(const QString &text) { return without(text, breaks); }

QString printableName(const QString &name) { return without(name, {}); }
