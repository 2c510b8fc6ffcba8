#pragma once

#include "smime/CryptoHandles.h"

#include <string>
#include <string_view>

/// Whether the tool takes `name`, in any case, for one of its symmetric ciphers (`aes-256-cbc`, `aes256`,
/// `DES3`).
[[nodiscard]] bool isCipher(std::string_view name);

/// Whether the cipher is found in the legacy provider only, which the tool does not load by itself.
/// Source: https://docs.openssl.org/3.0/man7/OSSL_PROVIDER-legacy/
[[nodiscard]] bool needsLegacyProvider(std::string_view cipher);

/// A cipher of the library, with where it comes from.
class LibraryCipher {
public:
    explicit LibraryCipher(std::string_view name);

    /// Null: the library has none of this name that a password or a certificate's key goes with.
    [[nodiscard]] const EVP_CIPHER *get() const { return m_cipher.get(); }

private:
    CryptoHandle<OSSL_PROVIDER> m_standard;
    CryptoHandle<OSSL_PROVIDER> m_legacy;
    CryptoHandle<EVP_CIPHER> m_cipher;
};
