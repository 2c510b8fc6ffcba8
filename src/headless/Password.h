#pragma once

#include <QString>
#include <optional>

/// A password, or why there is none.
struct PasswordInput {
    std::optional<QString> password;
    QString reason;
};

/// The first line of the file, without its end; "-" is standard input. It may be a pipe: what comes behind
/// the line is not waited for.
[[nodiscard]] PasswordInput readPassword(const QString &file);

/// Twice: for archives that are made with it. A mistyped password would be noticed when it is too late.
enum class Asking { Once, Twice };

/// Asks on the terminal, without showing what is typed. None without a reason where there is no terminal.
[[nodiscard]] PasswordInput askForPassword(Asking asking);
