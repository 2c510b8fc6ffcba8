#pragma once

#include "EntryName.h"
#include "StopSignals.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace archiver {

/// Takes what goes wrong. Each message is a line of its own on standard error, after an empty one. Nothing
/// else is ever printed but a list that was asked for, so silence means success to the caller of the program.
class Diagnostics {
public:
    Diagnostics() = default;
    /// Collects the messages in `text` instead of printing them.
    explicit Diagnostics(std::string &text) : m_collected(&text) {}

    /// Always false, for `return diagnostics.report(…)`.
    bool report(std::string_view message)
    {
        std::string line = "\n";
        line += message;
        line += '\n';
        repeat(line);
        return false;
    }
    /// Adds what errno says: "MESSAGE: No such file or directory". Always false.
    bool reportSystem(std::string_view message)
    {
        const std::string reason = std::generic_category().message(errno);
        return report(std::string(message) + ": " + reason);
    }
    /// What other diagnostics collected.
    void repeat(std::string_view messages)
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

    [[nodiscard]] bool silent() const { return m_count == 0; }

private:
    std::string *m_collected = nullptr;
    unsigned long m_count = 0;
};

/// Whether a signal asked to stop: the work in hand stops then, and removes what it has not finished.
[[nodiscard]] inline bool interrupted() { return base::StopSignals::received() != 0; }

} // namespace archiver
