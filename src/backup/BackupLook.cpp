#include "backup/BackupLook.h"

#include "backup/Hindrances.h"
#include "backup/PasswordTrial.h"
#include "backup/SourceLook.h"
#include "files/ArchiveFiles.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "files/Sizes.h"
#include "keys/SecretRules.h"
#include "runs/Aftermath.h"
#include "runs/Looks.h"

#include <QCoreApplication>
#include <algorithm>
#include <future>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(backup)
};

using quillorentLibrary::lastPathComponent;

void lookForFilesInTheWay(const BackupOrder &order, const BackupItem &item, Findings &findings)
{
    for (const QString &path : {item.stored, item.encrypted}) {
        const auto there = entryAt(path);
        if (!there) continue;
        const bool isKnown = std::any_of(order.known.begin(), order.known.end(), [&](const LeftFile &left) {
            return left.path == path && left.identity == there->identity;
        });
        if (isKnown) continue;
        if (there->kind == FileEntry::Kind::Folder)
            findings.addConcern(Words::tr("\"%1\" is a folder, and a file of that name is needed for a "
                                          "while: the backup will fail. Rename it.")
                                    .arg(path));
        else
            findings.addConcern(
                Words::tr("\"%1\" is there, and its name is needed for a while. It may be yours, or left in "
                          "clear by a run that was interrupted. It will be called \"%2\", and stay.")
                    .arg(path, [&] {
                        const auto plan = planAside({path}, u"kept"_s);
                        return plan ? lastPathComponent(plan->first().to) : u"kept-…"_s;
                    }()));
    }
}

void lookForFormerArchives(const BackupOrder &order, Findings &findings)
{
    if (!order.asksBeforeReplacing) return;
    QStringList names;
    for (const BackupItem &item : order.items)
        if (const QStringList files = filesOfArchive(item.final); !files.isEmpty()) {
            const QString name = lastPathComponent(files.first());
            const QString more =
                files.size() > 1 ? u' ' + Words::tr("and %1 more").arg(files.size() - 1) : QString();
            if (!names.contains(name + more)) names.append(name + more);
        }
    if (!names.isEmpty())
        findings.overwrites =
            Words::tr("These archives are in \"%1\" and will be replaced, other files stay: %2.")
                .arg(order.destination, names.join(u", "_s));
    else if (!quillorentLibrary::holdsNothing(order.destination))
        findings.overwrites = Words::tr("The destination \"%1\" is not empty. Other files stay as they are.")
                                  .arg(order.destination);
}

/// A mistyped password is a lost backup: archives that are there tell whether it is mistyped, or else who
/// typed it twice.
void lookAtPassword(const BackupOrder &order, Findings &findings)
{
    if (order.byCertificate) return;
    const PasswordTrial trial = tryPassword(order);
    if (trial.verdict == PasswordTrial::Verdict::Opens) return;
    if (trial.verdict == PasswordTrial::Verdict::Wrong)
        findings.addConcern(
            Words::tr("\"%1\" does not open with this password: it is not the password of the archives "
                      "there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, "
                      "the new archives open with this password only.")
                .arg(lastPathComponent(trial.archive)));
    if (!order.repetition || order.repetition->bytes() == order.password.bytes()) return;
    findings.addConcern(
        order.repetition->bytes().isEmpty()
            ? Words::tr("The password was typed only once, and nothing tells whether it is mistyped. Type it "
                        "again, in the second field on the Password tab: nobody can open what a mistyped "
                        "password encrypts.")
            : Words::tr("The password and its repetition differ: one of them is mistyped. Type both again on "
                        "the Password tab: nobody can open what a mistyped password encrypts."));
}

void lookForRepetitions(const BackupOrder &order, Findings &findings)
{
    QStringList seen;
    for (const BackupItem &item : order.items) {
        if (seen.contains(item.source))
            findings.addConcern(Words::tr("\"%1\" is listed more than once, and is backed up as often, one "
                                          "after the other, into one archive.")
                                    .arg(item.source));
        seen.append(item.source);
    }
}

/// Of the items, in their order; fewer where it was given up.
std::vector<quint64> measure(const QStringList &sources, const std::function<bool()> &goesOn)
{
    std::vector<quint64> sizes;
    for (const QString &source : sources) {
        if (!goesOn()) break;
        sizes.push_back(quillorentLibrary::calculateSize(source, goesOn));
    }
    return sizes;
}

/// Whether there is room for the archives that are made at the same time as everything else is there. Where
/// they are compressed they need less, nobody knows how much.
void lookForRoom(BackupOrder &order, const std::vector<quint64> &sizes, Findings &findings)
{
    quint64 bytes = 0;
    for (std::size_t index = 0; index < sizes.size(); ++index) {
        order.items[qsizetype(index)].bytes = sizes[index];
        bytes += sizes[index];
    }
    findings.addConcern(whyTooLittleRoom(order.destination, qint64(roomForBackup(bytes))));
}

void lookAtSource(const BackupOrder &order, const BackupItem &item, Findings &findings)
{
    const SourceState state = stateOfSource(item.source, order.destination);
    findings.addConcern(concernAboutSource(state, item.source, order.destination));
}

void addHindrances(const Hindrances &hindrances, Findings &findings)
{
    for (const Hindrance &hindrance : hindrances)
        findings.addObstacle(hindrance.text);
}

void lookAtDisk(BackupOrder &order, Findings &findings, const std::function<bool()> &goesOn)
{
    for (const BackupItem &item : order.items) {
        lookAtSource(order, item, findings);
        lookForFilesInTheWay(order, item, findings);
    }
    lookForRepetitions(order, findings);
    lookForFormerArchives(order, findings);
    QStringList sources;
    for (const BackupItem &item : order.items)
        sources.append(item.source);
    // Both may take long, the one at the disk and the other at computing.
    auto sizes = std::async([&] { return measure(sources, goesOn); });
    if (goesOn()) lookAtPassword(order, findings);
    findings.addConcern(concernAboutRecords());
    lookForRoom(order, sizes.get(), findings);
}

} // namespace

Findings lookAtBackup(BackupOrder &order, FolderLock &lock, const std::function<bool()> &goesOn)
{
    Findings findings;
    addHindrances(otherHindrances(order), findings);
    addHindrances(hindrancesByPassword(order), findings);
    if (!findings.obstacles.isEmpty()) return findings;
    if (order.byCertificate) findings.addConcern(judgeCertificate(order.certificate).concern);
    lock = FolderLock::take(order.destination);
    if (lock.isBusy()) findings.addObstacle(whyBusy(order.destination));
    if (!findings.obstacles.isEmpty()) return findings;

    const QString archiver = order.archiver;
    aftermath::repair(order.destination,
                      [archiver](const QString &archive) { return isWholeArchive(archiver, archive); });
    order.known = aftermath::leftIn(order.destination);
    lookAtDisk(order, findings, goesOn);
    return findings;
}

quint64 roomForBackup(quint64 bytes) { return bytes / 2 * 5; }
