#pragma once

#include "runs/RunRecord.h"

#include <functional>
#include <mutex>

/// The folder of the runs' records, below $XDG_STATE_HOME (default ~/.local/state;
/// https://specifications.freedesktop.org/basedir-spec/). It need not exist.
[[nodiscard]] QString recordsFolder();

/// Why no record can be written; empty where one can. Makes the folder.
[[nodiscard]] QString whyNoRecords();

/// Keeps the record of one run on disk, whole at each moment. Any thread may call.
class RunJournal {
public:
    /// Nothing is written yet; and never of a run that has no kind.
    explicit RunJournal(RunRecord record);

    /// Changes the record, then the file: it is there from the first change on. A file that can't be written
    /// leaves the one before, and is no failure: who started the run was told.
    void change(const std::function<void(RunRecord &)> &step);
    void changeItem(qsizetype index, const std::function<void(ItemRecord &)> &step);

    [[nodiscard]] RunRecord record() const;

private:
    const QString m_path;
    mutable std::mutex m_mutex;
    RunRecord m_record;
};

/// A record that is kept in a file.
struct KeptRecord {
    QString path;
    RunRecord record;
};

/// All records that can be read, the oldest first. Of the runs that ended and left nothing behind, the oldest
/// beyond some two hundred are removed.
[[nodiscard]] QList<KeptRecord> keptRecords();

/// Writes a record anew in the place of its file.
void rewrite(const KeptRecord &kept);
