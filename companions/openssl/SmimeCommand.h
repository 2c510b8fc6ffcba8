#pragma once

#include "CommandPlan.h"

/// Whether this encrypts or decrypts with a certificate: `smime -encrypt …`, `smime -decrypt …`.
[[nodiscard]] bool isSmimeCommand(std::span<char *const> arguments);

/// Lets the tool encrypt without holding the whole file in memory, and decrypts without the tool unless the
/// command line asks for something unusual. A pass phrase given in the arguments moves to `passPhrase`.
[[nodiscard]] CommandPlan planSmimeCommand(std::span<char *const> arguments, Secret &passPhrase);
