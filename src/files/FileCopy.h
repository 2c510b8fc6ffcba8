#pragma once

#include <string>

/// Whether the entries of one name in two open folders are files of the same bytes, or links to the same
/// path.
[[nodiscard]] bool haveSameContent(int folder, int other, const std::string &name);

/// Copies the file or link `name` from one open folder to another, with its rights and times. It is there
/// only when it is whole, and never in the place of something else. 0, or the error.
[[nodiscard]] int copyToFree(int from, int to, const std::string &name);
