#pragma once

#include "CommandPlan.h"

/// Whether this is a command of a symmetric cipher: `aes-256-cbc …` or `enc -aes-256-cbc …`.
[[nodiscard]] bool isCipherCommand(std::span<char *const> arguments);

/// What the program itself asks for, and whatever else is as regular, the front does itself. Elsewhere it
/// adds what the caller left open: the key derivation, the legacy provider for a cipher that needs it, and a
/// buffer that suits large files. The password moves to `password` from the arguments, where they spell it
/// out, or from where they say that it is; it is refused where the tool would cut it off on the way.
[[nodiscard]] CommandPlan planCipherCommand(std::span<char *const> arguments, Secret &password);
