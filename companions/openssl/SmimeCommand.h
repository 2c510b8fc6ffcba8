#pragma once

#include "CommandPlan.h"

#include <cstdint>

/// The largest file, in bytes, that the tool decrypts again whatever the certificate. It holds the message in
/// a buffer that grows by a third at a time and must not be asked to once it needs 1,610,612,732 bytes; how
/// large it is by then, between 1.946 and 2.057 GB, depends on the length of what precedes the data. The
/// message is the file and a thousandth more.
inline constexpr std::int64_t maximumSmimeSize = 1'900'000'000;

/// The same for a message that the caller wants in one piece (`-noindef`): its buffer grows only once, to its
/// size.
inline constexpr std::int64_t maximumUnstreamedSmimeSize = 1'600'000'000;

/// Whether this encrypts or decrypts with a certificate: `smime -encrypt …`, `smime -decrypt …`.
[[nodiscard]] bool isSmimeCommand(std::span<char *const> arguments);

/// Lets the tool encrypt without holding the whole file in memory, and refuses a file larger than
/// maximumSmimeSize.
[[nodiscard]] CommandPlan planSmimeCommand(std::span<char *const> arguments);
