#pragma once

#include "CommandPlan.h"
#include "KeyDerivation.h"

/// Whether this is a command of a symmetric cipher: `aes-256-cbc …` or `enc -aes-256-cbc …`.
[[nodiscard]] bool isCipherCommand(std::span<char *const> arguments);

/// Adds what the caller left open: the key derivation, the legacy provider for a cipher that needs it, and a
/// buffer that suits large files. Where a file is to be decrypted that may be of an older derivation, that is
/// left open still. A password given in the arguments moves to `password`, and is refused where
/// the tool would cut it off on the way.
[[nodiscard]] CommandPlan planCipherCommand(std::span<char *const> arguments, Secret &password,
                                            const KeyDerivation &derivation = currentKeyDerivation);
