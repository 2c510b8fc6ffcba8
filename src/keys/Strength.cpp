#include "keys/Strength.h"

#include <cstring>
#include <zxcvbn.h>

namespace {

// The estimate takes the square of the length; nobody needs one of more than this.
constexpr qsizetype estimatedCharacters = 64;

// Guessing at 600,000 rounds of key derivation a guess, a well-equipped attacker makes some 2^20 guesses a
// second: 45 bits last a year, 60 bits outlast whoever tries.
constexpr double fairBits = 45;
constexpr double strongBits = 60;

} // namespace

Strength estimateStrength(const QString &password)
{
    if (password.isEmpty()) return Strength::None;
    QByteArray text = QStringView(password).left(estimatedCharacters).toUtf8();
    const double bits = ZxcvbnMatch(text.constData(), nullptr, nullptr);
    explicit_bzero(text.data(), static_cast<std::size_t>(text.size()));
    if (bits < fairBits) return Strength::Weak;
    return bits < strongBits ? Strength::Fair : Strength::Strong;
}
