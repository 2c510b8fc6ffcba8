#pragma once

#include "runs/RunRecord.h"

#include <QFile>
#include <functional>
#include <mutex>

/// The folder of the runs' records, below $XDG_STATE_HOME (default ~/.local/state;
/// https://specifications.freedesktop.org/basedir-spec/). It need not exist.
[[nodiscard]] QString recordsFolder();

/// Why no record can be written; empty where one can. Makes the folder.
[[nodiscard]] QString whyNoRecords();

/// Keeps the record of one run on disk, whole at each moment and cheap to change. Any thread may call.
class RunJournal {
public:
    /// Nothing is written yet; and never of a run that has no kind.
    explicit RunJournal(RunRecord record);

    /// Writes the record for the first time. A file that can't be written is no failure, here or later: who
    /// started the run was told.
    void begin();
    /// Notes what happens to an item, in a few bytes at the end of the file.
    void changeItem(qsizetype index, const std::function<void(ItemRecord &)> &step);
    /// Waits until all that was noted is on the disk.
    void sync();
    /// Changes the record for the last time, and writes it anew in the form for readers.
    void end(const std::function<void(RunRecord &)> &step);

    /// Shows the record as it is, for as long as `reader` takes. No copy: its lists would ask without a
    /// barrier whether another thread still shares them, before they change in place.
    void read(const std::function<void(const RunRecord &)> &reader) const;

private:
    const QString m_path;
    mutable std::mutex m_mutex;
    RunRecord m_record;
    QFile m_file; ///< not open where nothing is written
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
