#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace archiver {

/// The components of a path or a name, without empty ones and ".".
[[nodiscard]] std::vector<std::string> componentsOf(const std::string &path);

/// Bytes of the well-formed sequence (Unicode, table 3-7) at the start of `text`; 0 where there is none.
[[nodiscard]] std::size_t utf8Length(std::string_view text);

// RAR 5 stores names as UTF-8; a name on disk is any bytes. What is not UTF-8 follows a U+FFFE in its
// component of the path, each byte b as U+E000 + b, as other archivers of the format do it.

/// The form in an archive of a name (or path) on disk. decodeName() gives back exactly what went in, for any
/// bytes.
[[nodiscard]] std::string encodeName(std::string_view bytes);

/// The name on disk of a name in an archive.
[[nodiscard]] std::string decodeName(std::string_view stored);

/// A file name for a message: control characters and bytes that are not UTF-8 as "\xHH", and cut
/// where it is longer than anyone reads.
[[nodiscard]] std::string printable(std::string_view name);

} // namespace archiver
