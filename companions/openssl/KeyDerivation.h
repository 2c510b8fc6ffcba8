#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// How the tool makes a key from a password: with PBKDF2 (RFC 8018, section 5.2) and HMAC over a digest or,
/// where nothing is said of it, with the digest itself, taken once over password and salt:
/// https://docs.openssl.org/3.0/man3/EVP_BytesToKey/
struct KeyDerivation {
    unsigned iterations;     ///< of PBKDF2; 0: the digest itself
    std::string_view digest; ///< as the tool's `-md` takes it
};

/// The count that the OWASP Password Storage Cheat Sheet asks for with PBKDF2-HMAC-SHA256:
/// https://cheatsheetseries.owasp.org/cheatsheets/Password_Storage_Cheat_Sheet.html#pbkdf2
/// It is not written into the file: whoever decrypts has to know it.
inline constexpr KeyDerivation currentKeyDerivation{600'000, "sha256"};

/// What the tool does by itself, from 1.1.0 on and before, and what it does with `-pbkdf2` alone:
/// https://docs.openssl.org/3.0/man1/openssl-enc/
inline constexpr std::array olderKeyDerivations{KeyDerivation{0, "sha256"}, KeyDerivation{0, "md5"},
                                                KeyDerivation{10'000, "sha256"}};

/// The tool's options that ask for it; without the digest where the caller names that himself.
[[nodiscard]] std::vector<std::string> derivationOptions(const KeyDerivation &derivation, bool withDigest);
