#pragma once

#include "Files.h"
#include "smime/Crypto.h"

#include <array>

/// Whether the tool takes `name`, in any case, for one of its symmetric ciphers (`aes-256-cbc`, `aes256`,
/// `DES3`).
[[nodiscard]] bool isCipher(std::string_view name);

/// A cipher of the library, with where it comes from.
class LibraryCipher {
public:
    explicit LibraryCipher(std::string_view name);

    /// Null: the library has none of this name that a password or a certificate's key goes with.
    [[nodiscard]] const EVP_CIPHER *get() const { return m_cipher.get(); }
    /// Whether only the legacy provider can have it, which the tool does not load by itself:
    /// https://docs.openssl.org/3.0/man7/OSSL_PROVIDER-legacy/
    [[nodiscard]] bool isLegacy() const { return m_legacy != nullptr; }

private:
    CryptoHandle<OSSL_PROVIDER> m_standard;
    CryptoHandle<OSSL_PROVIDER> m_legacy;
    CryptoHandle<EVP_CIPHER> m_cipher;
};

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

[[nodiscard]] CryptoHandle<EVP_MD> fetchDigest(std::string_view name);

/// How a file is encrypted with a password, as the tool's `enc` does it: a mark and a salt, and behind them
/// what the cipher makes of the content.
struct PasswordFile {
    LibraryCipher cipher;
    bool isBase64 = false;
    bool isPadded = true;                     ///< to whole blocks
    std::vector<KeyDerivation> derivations{}; ///< cheapest first; encrypting goes by the last
};

/// Both are conversions.
[[nodiscard]] bool encryptFile(const PasswordFile &file, std::string_view password, ByteSource &input,
                               ByteSink &output, Fault &fault);

/// An archive tells which derivation it is: of a RAR 4 or RAR 5 archive the first seven or eight bytes are
/// known, and no wrong key hits them. Whatever else there is goes by the last derivation.
[[nodiscard]] bool decryptFile(const PasswordFile &file, std::string_view password, ByteSource &input,
                               ByteSink &output, Fault &fault);
