#include "Diagnostics.h"

#include "EntryName.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace archiver {

bool Diagnostics::report(std::string_view message)
{
    std::string line = "\n";
    line += message;
    line += '\n';
    repeat(line);
    return false;
}

void Diagnostics::repeat(std::string_view messages)
{
    if (messages.empty()) return;
    ++m_count;
    if (m_collected) {
        *m_collected += messages;
        return;
    }
    // One call for each message: several archivers may share a pipe.
    const ssize_t written = write(STDERR_FILENO, messages.data(), messages.size());
    static_cast<void>(written); // the exit status still tells
}

bool Diagnostics::reportSystem(std::string_view message)
{
    return report(std::string(message) + ": " + std::generic_category().message(errno));
}

std::string printable(std::string_view name)
{
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr std::size_t longest = 4096; // no path that the system takes is longer
    std::string text;
    if (name.size() > longest) return printable(name.substr(0, longest)) + "…";
    while (!name.empty()) {
        const std::size_t length = utf8Length(name);
        const auto byte = static_cast<unsigned char>(name.front());
        if (length == 0 || byte < 0x20 || byte == 0x7f) {
            text += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
            name.remove_prefix(1);
            continue;
        }
        text += name.substr(0, length);
        name.remove_prefix(length);
    }
    return text;
}

} // namespace archiver
