#pragma once

#include "KeyDerivation.h"
#include "smime/ByteStreams.h"

#include <cstddef>
#include <optional>
#include <string>

/// How much of an encrypted file tells its derivation, in bytes.
inline constexpr std::size_t tellingSize = 32;

/// The older derivation that, with this password, makes an archive of an encrypted file: of a RAR 4 or RAR 5
/// archive the first seven or eight bytes are known, and no wrong key hits them. Nothing: none of them does.
/// Then the file is of the current derivation or holds something else, or the password is wrong.
/// `head`: what the file begins with, tellingSize of it at least. `digest`: the caller's choice; empty: none.
[[nodiscard]] std::optional<KeyDerivation> findOlderDerivation(const std::string &cipher, Bytes head,
                                                               std::string_view password,
                                                               std::string_view digest);
