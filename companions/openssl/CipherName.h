#pragma once

#include <string_view>

/// Whether the tool takes `name`, in any case, for one of its symmetric ciphers (`aes-256-cbc`, `aes256`,
/// `DES3`).
[[nodiscard]] bool isCipher(std::string_view name);

/// Whether the cipher is found in the legacy provider only, which the tool does not load by itself.
/// Source: https://docs.openssl.org/3.0/man7/OSSL_PROVIDER-legacy/
[[nodiscard]] bool needsLegacyProvider(std::string_view cipher);
