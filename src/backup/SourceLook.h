#pragma once

#include <QString>

/// What a backup finds where an entry of the list leads to.
enum class SourceState {
    Fine,
    Missing,          ///< left out
    Unsuitable,       ///< a pipe, a socket, a device: left out
    Link,             ///< only the link itself would be backed up
    HoldsDestination, ///< each archive would hold the ones before it
};

/// Looks at the disk. `destination` may be empty.
[[nodiscard]] SourceState stateOfSource(const QString &source, const QString &destination);

/// What is wrong with it and what to do; empty where it is fine.
[[nodiscard]] QString concernAboutSource(SourceState state, const QString &source,
                                         const QString &destination);

/// The path without links, also of a file that is not there yet in a folder that is.
[[nodiscard]] QString canonicalPath(const QString &path);
