#pragma once

#include "StopSignals.h"

#include <string_view>

namespace archiver {

/// Takes what goes wrong. Each message is a line of its own on standard error, after an empty one. Nothing
/// else is ever printed but a list that was asked for, so silence means success to the caller of the program.
class Diagnostics {
public:
    Diagnostics() = default;
    /// Collects the messages in `text` instead of printing them.
    explicit Diagnostics(std::string &text) : m_collected(&text) {}

    /// Always false, for `return diagnostics.report(…)`.
    bool report(std::string_view message);
    /// Adds what errno says: "MESSAGE: No such file or directory". Always false.
    bool reportSystem(std::string_view message);
    /// What other diagnostics collected.
    void repeat(std::string_view messages);

    [[nodiscard]] bool silent() const { return m_count == 0; }

private:
    std::string *m_collected = nullptr;
    unsigned long m_count = 0;
};

/// A file name for a message: control characters and bytes that are not UTF-8 as "\xHH", and cut
/// where it is longer than anyone reads.
[[nodiscard]] std::string printable(std::string_view name);

/// Whether a signal asked to stop: the work in hand stops then, and removes what it has not finished.
[[nodiscard]] inline bool interrupted() { return base::StopSignals::received() != 0; }

} // namespace archiver
