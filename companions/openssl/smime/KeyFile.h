#pragma once

#include "CryptoHandles.h"

#include <optional>
#include <string>
#include <string_view>

struct PrivateKey {
    CryptoHandle<EVP_PKEY> handle; ///< null: it could not be read
    std::string file;
};

struct Certificate {
    CryptoHandle<X509> handle; ///< null: it could not be read
    std::string file;
};

/// Reads a private key in PEM or DER. `passPhrase` opens one that is protected; nobody is ever asked for it.
/// Where the key can't be read, `problem` is a whole sentence that says why.
[[nodiscard]] PrivateKey readPrivateKey(const std::string &file, std::optional<std::string_view> passPhrase,
                                        std::string &problem);

/// Reads a certificate in PEM or DER; otherwise as readPrivateKey().
[[nodiscard]] Certificate readCertificate(const std::string &file, std::string &problem);
