#pragma once

#include <cstddef>
#include <string_view>

namespace archiver::utf8 {

/// Bytes of the well-formed sequence (Unicode, table 3-7) at the start of `text`; 0 where there is none.
[[nodiscard]] std::size_t sequenceLength(std::string_view text);

} // namespace archiver::utf8
