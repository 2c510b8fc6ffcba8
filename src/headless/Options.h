#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// What `quillorent-run` was asked to do.
struct Options {
    enum class Command { Backup, Sync, Tools, Profiles };

    Command command = Command::Profiles;
    QString profile;      ///< empty: the one that the window would open
    QString passwordFile; ///< "-": standard input; empty: the profile's own source
    bool yes = false;     ///< write into a destination that is not empty
    bool progress = false;
};

/// Options, or what to print and the status to exit with.
struct ParsedArguments {
    std::optional<Options> options;
    QString message;
    int exitStatus = 0;
};

/// `arguments` without the program's name.
[[nodiscard]] ParsedArguments parseArguments(const QStringList &arguments);
