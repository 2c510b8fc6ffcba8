#pragma once

#include "files/Entry.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// What an archive holds, as a tree. Names are bytes, in no encoding.
struct ArchiveListing {
    static constexpr int top = -1; ///< the index of what everything is in

    struct Entry {
        std::string name{};
        int parent = top; ///< index of the folder that it is in
        FileEntry::Kind kind = FileEntry::Kind::File;
        qint64 bytes = 0;    ///< of a folder those of all that is below it
        qint64 modified = 0; ///< seconds since 1970; 0 where the archive doesn't tell
        int files = 0;       ///< below a folder; of anything else 1
    };

    std::vector<Entry> entries{}; ///< folders before what is in them
    /// Of each entry, among what is in the same folder: folders first, then as the user's language sorts
    /// names.
    std::vector<int> places{};
    std::chrono::milliseconds took{};  ///< to look into the archive
    QString archive{};                 ///< in one piece, or the first volume of a set
    std::vector<FileIdentity> files{}; ///< of the archive when it was looked into

    /// As restoring takes it: "home/anna/letter".
    [[nodiscard]] std::string pathOf(int index) const;
};

/// What `archive` holds, all of which lies in `folder` and took that long to be unpacked. What can't be read
/// is left out. Gives up, with what it has by then, once `goesOn` says no. Takes its time where there are
/// very many entries.
[[nodiscard]] ArchiveListing listArchive(const QString &archive, const QString &folder,
                                         std::chrono::milliseconds took, const std::function<bool()> &goesOn);

/// What tells an archive, with all volumes of its set, from what has come under its names since.
[[nodiscard]] std::vector<FileIdentity> identitiesOf(const QString &archive);
