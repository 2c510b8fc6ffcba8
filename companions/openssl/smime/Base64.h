#pragma once

#include "FileDescriptor.h"

/// Base64 (RFC 4648, section 4) by the line and by the group, as fast as memory allows.
namespace base64 {

inline constexpr std::size_t lineBytes = 48; ///< that a line of text stands for
inline constexpr std::size_t lineSize = 65;  ///< of its text, with the end of the line

/// The text of `bytes`, in lines as the system's tool breaks them; the last one may be shorter, and padded.
/// `text` has room for lineSize for each of them. Returns what it is long.
std::size_t encode(base::Bytes bytes, std::uint8_t *text);

/// How far decode() came.
struct Progress {
    std::size_t text = 0;
    std::size_t bytes = 0;
};

/// Decodes whole groups of four characters, and passes over line feeds between them, until it comes upon
/// anything else, or the room is used up.
[[nodiscard]] Progress decode(base::Bytes text, std::span<std::uint8_t> into);

/// The six bits that a character stands for; above 63: none.
[[nodiscard]] std::uint8_t valueOf(std::uint8_t character);

} // namespace base64
