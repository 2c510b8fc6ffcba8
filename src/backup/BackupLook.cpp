#include "backup/BackupLook.h"

#include "backup/PasswordTrial.h"

#include "files/ArchiveFiles.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "files/Sizes.h"
#include "keys/SecretRules.h"
#include "runs/Aftermath.h"
#include "runs/Looks.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <climits>
#include <future>

namespace {

using quillorentLibrary::lastPathComponent;

void lookAtSettings(const BackupOrder &order, Findings &findings)
{
    const auto missing = [&](const QString &value, const QString &what) {
        if (value.isEmpty())
            findings.addObstacle(
                u"The settings have no %1, and without it files would be lost. Repair the "
                "settings file, or move it away: the next start makes a new one."_qs.arg(what));
    };
    missing(order.archiveExtension, u"file extension of archives (\"extensions\", \"RAR\")"_qs);
    missing(order.methodExtension, u"file extension of \"%1\" (\"extensions\")"_qs.arg(order.method));
    missing(order.cipher, u"command for \"%1\" (\"encparam\")"_qs.arg(order.method));
    missing(order.archiver, u"path of the archiver (\"external\", \"RAR\")"_qs);
    missing(order.encoder, u"path of the OpenSSL tool (\"external\", \"OpenSSL\")"_qs);
}

void lookAtSecret(const BackupOrder &order, Findings &findings)
{
    if (!order.byCertificate) {
        QString password = order.password.text();
        findings.addObstacle(whyBadPassword(password));
        wipe(password);
        return;
    }
    const CertificateJudgement judgement = judgeCertificate(order.certificate);
    findings.addObstacle(judgement.obstacle);
    findings.addConcern(judgement.concern);
}

void lookAtVolumeSize(const BackupOrder &order, Findings &findings)
{
    if (order.split.isEmpty()) return;
    bool isNumber = false;
    const qulonglong thousands = order.volumeSize.toULongLong(&isNumber);
    constexpr qulonglong largest = 1'000'000'000'000;
    if (!isNumber || thousands == 0 || thousands > largest)
        findings.addObstacle(
            u"\"%1\" is no size of volumes. Type how many thousand bytes each is to have, or "
            "switch the splitting off."_qs.arg(order.volumeSize));
}

/// Names that the item's files will have, or may have for a while. Of its volumes the longest stands for all.
QStringList namesOf(const BackupItem &item)
{
    return {lastPathComponent(item.stored), lastPathComponent(item.encrypted), lastPathComponent(item.final)};
}

void lookAtNames(const BackupOrder &order, Findings &findings)
{
    // Behind or before a name, for volumes and for what is set aside.
    constexpr qsizetype decoration = 24;
    for (const BackupItem &item : order.items)
        for (const QString &name : namesOf(item))
            if (QFile::encodeName(name).size() + decoration > NAME_MAX)
                findings.addObstacle(
                    u"The archive of \"%1\" would have a name that is too long for a file. Rename "
                    "it, or back up the folder that it lies in."_qs.arg(item.source));
}

/// The same, and what stands for all volumes of a set that one of them is or may be of.
QStringList claimsOf(const BackupItem &item)
{
    QStringList claims = namesOf(item);
    for (const QString &name : namesOf(item))
        if (const auto volume = volumeName(name)) claims.append(volume->set + u".part"_qs);
    const QString final = lastPathComponent(item.final);
    claims.append(final.left(final.lastIndexOf(u'.')) + u".part"_qs);
    return claims;
}

void lookForMeetings(const BackupOrder &order, Findings &findings)
{
    const bool foldsCase = ignoresCase(order.destination);
    const auto asFound = [foldsCase](const QString &name) { return foldsCase ? name.toCaseFolded() : name; };
    QHash<QString, QString> owners;
    for (const BackupItem &item : order.items)
        for (const QString &name : claimsOf(item)) {
            const QString owner = owners.value(asFound(name), item.source);
            if (owner != item.source)
                findings.addObstacle(
                    u"\"%1\" and \"%2\" would both need the file \"%3\" in the destination, and one "
                    "archive would replace the other. Rename one of them, or back it up by a "
                    "profile of its own."_qs.arg(owner, item.source, name));
            owners.insert(asFound(name), item.source);
        }
}

QString canonical(const QString &path)
{
    const QFileInfo file(path);
    QString there = file.canonicalFilePath();
    if (!there.isEmpty()) return there;
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return folder.isEmpty() ? quillorentLibrary::standardizePath(path)
                            : quillorentLibrary::joined(folder, file.fileName());
}

void lookForSourcesInTheWay(const BackupOrder &order, Findings &findings)
{
    QStringList sources;
    for (const BackupItem &item : order.items) {
        sources.append(canonical(item.source));
        sources.append(quillorentLibrary::standardizePath(item.source));
    }
    for (const BackupItem &item : order.items)
        for (const QString &path :
             QStringList{item.stored, item.encrypted, item.final} + filesOfArchive(item.final))
            if (sources.contains(path) || sources.contains(canonical(path)))
                findings.addObstacle(
                    u"\"%1\" is on the list, and its name is needed for the archive of \"%2\". "
                    "Choose another destination, or rename it."_qs.arg(path, item.source));
}

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
            findings.addConcern(
                u"\"%1\" is a folder, and a file of that name is needed for a while: the backup will "
                "fail. Rename it."_qs.arg(path));
        else
            findings.addConcern(u"\"%1\" is there, and its name is needed for a while. It may be yours, or "
                                u"left in clear by a run "
                                "that was interrupted. It will be called \"%2\", and stay."_qs.arg(path, [&] {
                                    const auto plan = planAside({path}, u"kept"_qs);
                                    return plan ? lastPathComponent(plan->first().to) : u"kept-…"_qs;
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
            const QString more = files.size() > 1 ? u" and %1 more"_qs.arg(files.size() - 1) : QString();
            if (!names.contains(name + more)) names.append(name + more);
        }
    if (!names.isEmpty())
        findings.overwrites =
            u"These archives are in \"%1\" and will be replaced, other files stay: %2."_qs.arg(
                order.destination, names.join(u", "_qs));
    else if (!quillorentLibrary::holdsNothing(order.destination))
        findings.overwrites =
            u"The destination \"%1\" is not empty. Other files stay as they are."_qs.arg(order.destination);
}

/// A mistyped password is a lost backup: archives that are there tell whether it is mistyped, or else who
/// typed it twice.
void lookAtPassword(const BackupOrder &order, Findings &findings)
{
    if (order.byCertificate) return;
    const PasswordTrial trial = tryPassword(order);
    if (trial.verdict == PasswordTrial::Verdict::Opens) return;
    if (trial.verdict == PasswordTrial::Verdict::Wrong)
        findings.addConcern(u"\"%1\" does not open with this password: it is not the password of the "
                            "archives there, or this one is damaged. If it is mistyped, stop and correct it. "
                            "If you go on, the new archives open with this password only."_qs.arg(
                                lastPathComponent(trial.archive)));
    if (!order.repetition || order.repetition->bytes() == order.password.bytes()) return;
    findings.addConcern(
        order.repetition->bytes().isEmpty()
            ? u"The password was typed only once, and nothing tells whether it is mistyped. Type it again, "
              u"in "
              "the second field on the Password tab: nobody can open what a mistyped password encrypts."_qs
            : u"The password and its repetition differ: one of them is mistyped. Type both again on the "
              "Password tab: nobody can open what a mistyped password encrypts."_qs);
}

void lookAtSource(const BackupOrder &order, const BackupItem &item, Findings &findings)
{
    const auto there = entryAt(item.source); // a slash at its end leads through a link
    if (!QFileInfo::exists(quillorentLibrary::standardizePath(item.source)))
        findings.addConcern(
            u"\"%1\" is not there, and is left out. Connect its disk, or remove it from the list."_qs.arg(
                item.source));
    else if (there && there->kind == FileEntry::Kind::Other)
        findings.addConcern(u"\"%1\" is %2, and is left out."_qs.arg(item.source, describeKind(there->kind)));
    else if (there && there->kind == FileEntry::Kind::Link)
        findings.addConcern(
            u"\"%1\" is a link, and only the link itself would be backed up, nothing that it leads "
            "to. Put a slash behind it, or add the folder that it leads to."_qs.arg(item.source));
    const QString source = canonical(item.source);
    if (QFileInfo(source).isDir() && quillorentLibrary::isInside(canonical(order.destination), source))
        findings.addConcern(
            u"The destination \"%1\" lies in \"%2\", so each archive would hold the ones before it. "
            "Choose another destination."_qs.arg(order.destination, item.source));
}

void lookForRepetitions(const BackupOrder &order, Findings &findings)
{
    QStringList seen;
    for (const BackupItem &item : order.items) {
        if (seen.contains(item.source))
            findings.addConcern(
                u"\"%1\" is listed more than once, and is backed up as often, one after the other, "
                "into one archive."_qs.arg(item.source));
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
    findings.addConcern(whyTooLittleRoom(order.destination, qint64(bytes / 2 * 5)));
}

void lookAtOrder(const BackupOrder &order, Findings &findings)
{
    lookAtSettings(order, findings);
    lookAtSecret(order, findings);
    lookAtVolumeSize(order, findings);
    if (order.archiveExtension.isEmpty() || order.methodExtension.isEmpty()) return; // names say nothing then
    lookAtNames(order, findings);
    lookForMeetings(order, findings);
    lookForSourcesInTheWay(order, findings);
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
    if (!quillorentLibrary::folderExists(order.destination)) {
        findings.addObstacle(
            u"The destination \"%1\" does not exist or is no folder. Connect its disk, or choose "
            "another one."_qs.arg(order.destination));
        return findings;
    }
    lookAtOrder(order, findings);
    findings.addObstacle(whyNotWritable(order.destination));
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
