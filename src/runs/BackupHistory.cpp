#include "runs/BackupHistory.h"

#include "files/FolderLock.h"
#include "runs/RunJournal.h"

namespace {

bool isAtWork(const RunRecord &record)
{
    return !record.ended.isValid() && FolderLock::isHeld(record.folder);
}

} // namespace

BackupHistory backupHistory(const QString &profile)
{
    BackupHistory history;
    for (const KeptRecord &kept : keptRecords()) {
        const RunRecord &record = kept.record;
        if (record.kind != u"backup" || record.profile != profile || isAtWork(record)) continue;
        for (const ItemRecord &item : record.items)
            if (item.outcome == Outcome::Succeeded)
                history.good[item.path] = {record.ended.isValid() ? record.ended : record.began, item.bytes};
        history.last = record;
    }
    return history;
}
