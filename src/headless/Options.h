#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// What `quillorent-run` was asked to do.
struct Options {
    enum class Command { Backup, Extract, List, Sync, Tools, Profiles };

    Command command = Command::Profiles;
    QString profile;           ///< empty: the one that the window would open
    QString passwordFile;      ///< "-": standard input; empty: the profile's own source
    QString folder;            ///< to extract into; empty: the profile's
    std::optional<int> method; ///< of decryption, by its place among the window's choices; none: by the name
    QStringList archives;      ///< to extract, or to look into
    QStringList only;          ///< of the one archive, by paths as it has them; empty: all
    bool yes = false;          ///< go on in spite of what is found before the run
    bool json = false;         ///< print the run's record
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
