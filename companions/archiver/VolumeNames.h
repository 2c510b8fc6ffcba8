#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace archiver {

/// "NAME.part03.rar" taken apart.
struct VolumeName {
    std::string base; ///< "NAME", with the folder before it
    std::uint64_t number = 0;
    std::size_t digits = 0;
    std::string extension; ///< ".rar", in the case that it is written in
};

/// None where `path` is not the name of a numbered volume.
[[nodiscard]] std::optional<VolumeName> parseVolumeName(std::string_view path);
[[nodiscard]] std::string volumePath(std::string_view base, std::uint64_t number, std::size_t digits,
                                     std::string_view extension = ".rar");
/// The name of the volume after `path`: one more in ".partN.rar", or the older ".rar", ".r00", ".r01" …
/// ".s00".
[[nodiscard]] std::string nextVolumePath(std::string_view path);
/// `path` without a final ".rar".
[[nodiscard]] std::string withoutExtension(std::string_view path);

} // namespace archiver
