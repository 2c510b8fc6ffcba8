#pragma once

#include "KeyDerivation.h"
#include "ToolRun.h"

#include <optional>
#include <string>

class Secret;

/// A decryption with a password of which the file has to tell how the key is made of it.
struct CipherDecryption {
    ToolRun run; ///< lacks the key derivation, the input and where the pass phrase is
    std::string cipher;
    std::optional<std::string> input{}; ///< nothing: standard input
    bool isBase64 = false;
    std::string digest; ///< that the caller named; empty: none
    /// Where the pass phrase comes from: fetchPassPhrase(). Nothing: it is in the secret that goes with the
    /// plan, where `run.hasPassword`, or else a person is asked.
    std::optional<std::string> passPhraseSource{};
    KeyDerivation current = currentKeyDerivation; ///< for every file that is of none of the older ones
};

/// Carries it out with the system's tool, as runTool() does. An archive that was encrypted by an older
/// derivation opens without further ado; for anything else the tool has the last word. The pass phrase and
/// the input are read once.
[[nodiscard]] int decryptWithCipher(const std::string &tool, const CipherDecryption &decryption,
                                    Secret &passPhrase);
