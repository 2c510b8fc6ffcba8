#include "HandedArguments.h"

#include "FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <span>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>

namespace {

constexpr std::string_view option = "--arguments=";

/// The number of the file that holds them; none: they are where they always are.
std::optional<int> handedFile(int argc, char **argv)
{
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (!first.starts_with(option)) return std::nullopt;
    int file = -1;
    std::from_chars(first.data() + option.size(), first.data() + first.size(), file);
    return file;
}

/// The file itself, and no copy: what is written over here is gone.
std::optional<std::span<char>> map(const base::FileDescriptor &file)
{
    struct stat status {};
    if (fstat(file.get(), &status) != 0) return std::nullopt;
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0) return std::span<char>();
    void *const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
    if (memory == MAP_FAILED) return std::nullopt;
    return std::span(static_cast<char *>(memory), size);
}

} // namespace

std::optional<std::vector<char *>> takeArguments(int argc, char **argv)
{
    const std::optional<int> file = handedFile(argc, argv);
    std::vector<char *> arguments(argv, argv + (file ? 1 : argc));
    if (file) {
        const auto bytes = map(base::FileDescriptor(*file));
        if (!bytes) return std::nullopt;
        errno = EINVAL;
        if (!bytes->empty() && bytes->back() != '\0') return std::nullopt;
        for (char *next = bytes->data(); next != bytes->data() + bytes->size(); next += std::strlen(next) + 1)
            arguments.push_back(next);
    }
    arguments.resize(std::max<std::size_t>(arguments.size(), 1) + 1);
    return arguments;
}
