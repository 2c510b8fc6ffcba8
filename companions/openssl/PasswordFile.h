#pragma once

#include "CipherName.h"
#include "FileConversion.h"
#include "KeyDerivation.h"

/// How a file is encrypted with a password, as the tool's `enc` does it: a mark and a salt, and behind them
/// what the cipher makes of the content.
struct PasswordFile {
    LibraryCipher cipher;
    bool isBase64 = false;
    bool isPadded = true;                     ///< to whole blocks
    std::vector<KeyDerivation> derivations{}; ///< cheapest first; encrypting goes by the last
};

/// Both leave the file and the password with the caller, who keeps them until the conversion is over.
[[nodiscard]] Conversion encryption(const PasswordFile &file, std::string_view password);

/// An archive tells which derivation it is: of a RAR 4 or RAR 5 archive the first seven or eight bytes are
/// known, and no wrong key hits them. Whatever else there is goes by the last derivation.
[[nodiscard]] Conversion decryption(const PasswordFile &file, std::string_view password);
