#pragma once

#include <QString>
#include <vector>

/// One thing that a synchronisation would do.
struct PreviewRow {
    /// In the order of how much they matter to somebody who looks for a mistake.
    enum class Change { Delete, Replace, Copy, RemoveHere, MakeFolder, Adjust };

    Change change = Change::Copy;
    qint64 size = 0; ///< bytes of a file; 0 of a folder, or of what is deleted
    QString path;    ///< below the common folder; a folder's ends in a slash
};

struct Preview {
    std::vector<PreviewRow> rows; ///< by change, then as rsync came to them
    QString complaints;           ///< all that rsync said beside; empty where nothing went wrong
    bool removesSources = false;
};

/// Reads what the arguments of syncArguments::preview() make rsync print (see "--itemize-changes" and
/// "--out-format" in rsync(1)).
[[nodiscard]] Preview readPreview(const QString &output, bool removesSources);

/// "deleted at the destination" and the like.
[[nodiscard]] QString describeChange(PreviewRow::Change change, bool removesSources);

/// How many of which, in one sentence.
[[nodiscard]] QString summarize(const Preview &preview);

/// Whether one that was `shown` before lacks anything that would be deleted there or removed here.
[[nodiscard]] bool deletesMore(const Preview &preview, const Preview &shown);

/// A question that names how much would be deleted there and removed here; empty where nothing would be.
[[nodiscard]] QString askForDeletions(const Preview &preview);
