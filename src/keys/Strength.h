#pragma once

#include <QString>

/// How long a typed password withstands someone who guesses.
enum class Strength { None, Weak, Fair, Strong };

/// By an estimate of the guesses that it takes (words, names, keyboard rows, dates); None for an empty one.
/// Fast enough to be called at each key.
[[nodiscard]] Strength estimateStrength(const QString &password);
