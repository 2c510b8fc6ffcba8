#pragma once

#include "smime/ByteStreams.h"
#include "smime/CryptoHandles.h"

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

[[nodiscard]] CryptoHandle<EVP_MD> fetchDigest(std::string_view name);

/// The key with the initialisation vector behind it, as both derivations make them. Wiped at the end.
class KeyMaterial {
public:
    KeyMaterial() = default;
    ~KeyMaterial();
    KeyMaterial(const KeyMaterial &) = delete;
    KeyMaterial &operator=(const KeyMaterial &) = delete;

    /// False: the library won't.
    [[nodiscard]] bool derive(const EVP_CIPHER *cipher, const KeyDerivation &derivation,
                              std::string_view password, Bytes salt);
    [[nodiscard]] const unsigned char *key() const { return m_bytes.data(); }
    [[nodiscard]] const unsigned char *vector() const { return m_vector; }

private:
    std::array<unsigned char, EVP_MAX_KEY_LENGTH + EVP_MAX_IV_LENGTH> m_bytes{};
    unsigned char *m_vector = m_bytes.data();
};
