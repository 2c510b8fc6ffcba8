#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// All that a synchronisation depends on, as it was when it was asked for.
struct SyncOrder {
    QString profile{};
    QString tool{};                ///< path of rsync; empty where none is registered
    QStringList entries{};         ///< files and folders, absolute paths
    QString destination{};         ///< a folder here or, where `isRemote`, on the server
    std::optional<QString> mode{}; ///< "0": leave what is newer at the destination; else by checksum
    bool deletesExtra = false;     ///< delete at the destination what the source lacks
    bool removesSources = false;   ///< remove the source files once they are transferred
    bool isRemote = false;
    QString user{};
    QString server{};
    QString port{};
    std::optional<QString> parameters{}; ///< the settings' extra argument in front; none where they lack it
    std::optional<QString> excludes{};   ///< the settings' extra argument behind the mode; the same
};

/// What keeps it from starting, in words that say what to do; empty where nothing does. Looks at no file.
[[nodiscard]] QString whatIsMissing(const SyncOrder &order);

/// The same for what lies at a local destination already.
[[nodiscard]] QString checkDestination(const SyncOrder &order);

/// Makes a local destination folder where its parent exists: rsync would put a single file there under the
/// folder's name. Says why it can't be made; empty where it is there then, or where rsync tells.
[[nodiscard]] QString makeDestination(const SyncOrder &order);
