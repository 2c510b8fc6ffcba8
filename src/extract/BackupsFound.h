#pragma once

#include "extract/ArchiveName.h"

#include <QDateTime>
#include <QList>
#include <functional>

/// An archive that lies in a folder, in one piece or as a set of volumes.
struct FoundBackup {
    QString name;    ///< of what was backed up
    QString archive; ///< path; of a set that of its first volume, or of the first that is there
    QDateTime made;  ///< the time of its newest file
    qint64 bytes = 0;
    QString missing{};        ///< what seems to be missing from a set; empty where nothing does
    bool hasBeginning = true; ///< false: nothing comes out of it, for the first volume is missing

    friend bool operator==(const FoundBackup &, const FoundBackup &) = default;
};

/// The archives right in `folder` whose names tell a method: those of one name together, the newest first,
/// and the name first of which the newest is. Gives up once `goesOn` says no. Blocks for as long as the disk
/// takes.
[[nodiscard]] QList<FoundBackup> backupsIn(const QString &folder, const QList<Method> &methods,
                                           const std::function<bool()> &goesOn);
