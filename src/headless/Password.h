#pragma once

#include <QString>
#include <optional>

/// A password, or why there is none.
struct PasswordInput {
    std::optional<QString> password;
    QString reason;
};

/// The first line of the file, without its end; "-" is standard input.
[[nodiscard]] PasswordInput readPassword(const QString &file);

/// Asks on the terminal, without showing what is typed. None without a reason where there is no terminal.
[[nodiscard]] PasswordInput askForPassword(const QString &question);
