#pragma once

#include "CommandPlan.h"

#include <string_view>

/// How the tool makes a key from a password: PBKDF2 (RFC 8018, section 5.2) with HMAC over a digest.
struct KeyDerivation {
    unsigned iterations;
    std::string_view digest; ///< as the tool's `-md` takes it
};

/// The count that the OWASP Password Storage Cheat Sheet asks for with PBKDF2-HMAC-SHA256:
/// https://cheatsheetseries.owasp.org/cheatsheets/Password_Storage_Cheat_Sheet.html#pbkdf2
/// It is not written into the file: whoever decrypts has to know it.
inline constexpr KeyDerivation currentKeyDerivation{600'000, "sha256"};

/// Whether this is a command of a symmetric cipher: `aes-256-cbc …` or `enc -aes-256-cbc …`.
[[nodiscard]] bool isCipherCommand(std::span<char *const> arguments);

/// Adds what the caller left open: the key derivation, the legacy provider for a cipher that needs it, and a
/// buffer that suits large files. A password given in the arguments moves to `password`, and is refused where
/// the tool would cut it off on the way.
[[nodiscard]] CommandPlan planCipherCommand(std::span<char *const> arguments, Secret &password,
                                            const KeyDerivation &derivation = currentKeyDerivation);
