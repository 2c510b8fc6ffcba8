#include "runs/Aftermath.h"

#include "files/ArchiveFiles.h"
#include "files/FolderLock.h"
#include "files/PrivateFolder.h"
#include "files/Room.h"
#include "runs/RunJournal.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

bool isSameFolder(const QString &path, const QString &other)
{
    return path == other || (QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(other));
}

/// The new archive's files: what has come under its names since they were given up.
QStringList successorsOf(const ItemRecord &item)
{
    QList<FileIdentity> former;
    for (const Aside &aside : item.former)
        if (const auto there = entryAt(aside.to)) former.append(there->identity);
    QStringList files;
    for (const QString &archive : item.final)
        for (const QString &path : filesOfArchive(archive)) {
            const auto there = entryAt(path);
            const bool isNew = there && there->isFile() && item.packingSince.isValid() &&
                               there->changed >= item.packingSince.toSecsSinceEpoch();
            const bool isFormer =
                std::any_of(former.begin(), former.end(), [&](const FileIdentity &identity) {
                    return there && identity.isSameFile(there->identity);
                });
            if (isNew && !isFormer) files.append(path);
        }
    return files;
}

void repairItem(ItemRecord &item, const aftermath::IsWhole &isWhole)
{
    const bool isAnySetAside = std::any_of(item.former.begin(), item.former.end(),
                                           [](const Aside &aside) { return entryAt(aside.to).has_value(); });
    if (!isAnySetAside) {
        item.former.clear();
        return;
    }
    const QStringList successors = successorsOf(item);
    if (!successors.isEmpty() && isWhole(successors.first())) {
        dropAside(item.former);
        item.former.clear();
        item.archives = successors;
        return;
    }
    // Pieces of an archive that was never finished; those under a former one's name are written over.
    for (const QString &path : successors)
        if (std::none_of(item.former.begin(), item.former.end(),
                         [&](const Aside &aside) { return aside.from == path; }))
            QFile::remove(path);
    if (putBack(item.former).isEmpty()) item.former.clear();
}

/// Of a run that ended, and could not give a former archive its name back. False where there is none.
bool repairFormer(RunRecord &record, const aftermath::IsWhole &isWhole)
{
    bool isAny = false;
    for (ItemRecord &item : record.items) {
        isAny = isAny || !item.former.isEmpty();
        repairItem(item, isWhole);
    }
    return isAny;
}

/// Whether what was left is what is there now. A disk that was connected again may have another number.
bool isStill(const LeftFile &file, const FileEntry &there)
{
    if (!file.identity) return true;
    if (there.kind == FileEntry::Kind::Folder) return isPrivateFolder(file.path);
    const FileIdentity &was = *file.identity;
    const FileIdentity &is = there.identity;
    // Other systems' disks keep times less exactly than the program notes them.
    return was.bytes == is.bytes &&
           (isOfOtherSystems(file.path) || (was.inode == is.inode && was.modified == is.modified));
}

/// Of the files that may have been left, those that are there. One that can't be told from others that came
/// to bear its name stays without identity.
QList<LeftFile> stillThere(const ItemRecord &item)
{
    QList<LeftFile> left;
    QStringList noted;
    for (const LeftFile &file : item.left) {
        const auto there = entryAt(file.path);
        noted.append(file.path);
        if (there && isStill(file, *there)) left.append(file);
    }
    if (item.outcome != Outcome::Open) return left;
    for (const QString &path : item.between)
        if (!noted.contains(path) && entryAt(path)) left.append({path, path == item.clear});
    return left;
}

void closeKilled(RunRecord &record, const aftermath::IsWhole &isWhole)
{
    for (ItemRecord &item : record.items) {
        repairItem(item, isWhole);
        item.left = stillThere(item);
        if (item.outcome != Outcome::Open) continue;
        item.outcome = Outcome::Failed;
        item.reason = Words::tr("the program was ended in the middle of it");
    }
    record.outcome = Outcome::Failed;
    record.summary = Words::tr("The program was ended before the run was.");
    record.ended = QDateTime::currentDateTimeUtc();
}

/// A run's own folder goes with all that is in it. True where one did.
bool removePrivateFolders(RunRecord &record)
{
    const auto isGone = [](const LeftFile &file) {
        return isPrivateFolder(file.path) && removePrivateFolder(file.path, file.identity);
    };
    qsizetype removed = 0;
    for (ItemRecord &item : record.items)
        removed += item.left.removeIf(isGone);
    return removed > 0;
}

void removeLeft(const LeftFile &file)
{
    const auto there = entryAt(file.path);
    if (there && there->isFile()) QFile::remove(file.path);
    if (there && isPrivateFolder(file.path)) removePrivateFolder(file.path, file.identity);
}

template <class Use>
void forAllClear(Use use)
{
    for (const KeptRecord &kept : keptRecords()) {
        // What a run that is at work makes is not left yet.
        const bool isAtWork = !kept.record.ended.isValid() && FolderLock::isHeld(kept.record.folder);
        if (isAtWork) continue;
        for (const ItemRecord &item : kept.record.items)
            for (const LeftFile &file : stillThere(item))
                if (file.isClear) use(file);
    }
}

} // namespace

void aftermath::repair(const QString &folder, const IsWhole &isWhole)
{
    for (KeptRecord &kept : keptRecords()) {
        if (!isSameFolder(kept.record.folder, folder)) continue;
        const bool wasKilled = !kept.record.ended.isValid();
        if (wasKilled) closeKilled(kept.record, isWhole);
        const bool isRepaired = !wasKilled && repairFormer(kept.record, isWhole);
        const bool isTidied = removePrivateFolders(kept.record);
        if (wasKilled || isRepaired || isTidied) rewrite(kept);
    }
}

QList<LeftFile> aftermath::leftIn(const QString &folder)
{
    QList<LeftFile> all;
    for (KeptRecord &kept : keptRecords()) {
        if (!kept.record.ended.isValid() || !isSameFolder(kept.record.folder, folder)) continue;
        bool isChanged = false;
        for (ItemRecord &item : kept.record.items) {
            const QList<LeftFile> left = stillThere(item);
            isChanged = isChanged || left.size() != item.left.size();
            item.left = left;
            all += left;
        }
        if (isChanged) rewrite(kept);
    }
    return all;
}

QStringList aftermath::leftInClear()
{
    QStringList paths;
    forAllClear([&](const LeftFile &file) {
        if (!paths.contains(file.path)) paths.append(file.path);
    });
    return paths;
}

QStringList aftermath::removeLeftInClear()
{
    forAllClear(removeLeft);
    return leftInClear();
}
