#include "extract/ExtractLook.h"

#include "extract/Candidates.h"
#include "extract/ChosenPaths.h"
#include "extract/VolumeSet.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "runs/Aftermath.h"
#include "runs/Looks.h"
#include "runs/Run.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>
#include <algorithm>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

using quillorentLibrary::lastPathComponent;

bool isReadableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable();
}

QStringList pathsBetween(const ExtractPaths &paths)
{
    QStringList between{paths.encrypted, paths.inner};
    if (paths.leftover != paths.encrypted) between.append(paths.leftover);
    return between;
}

/// Every file of the archives that were named, with the volumes beside them.
QSet<QString> filesOfAll(const ExtractOrder &order)
{
    QSet<QString> files;
    for (const QString &archive : order.shown) {
        files.insert(QFileInfo(archive).canonicalFilePath());
        for (const QString &volume : filesOfArchive(withoutVolumePart(archive)))
            files.insert(QFileInfo(volume).canonicalFilePath());
    }
    files.remove(QString());
    return files;
}

void lookForArchivesInTheWay(const ExtractOrder &order, Findings &findings)
{
    const QSet<QString> archives = filesOfAll(order);
    for (const ExtractItem &item : order.items)
        for (const QString &path : pathsBetween(item.paths))
            if (archives.contains(QFileInfo(path).canonicalFilePath()))
                findings.addObstacle(Words::tr("\"%1\" is one of the archives, and its name is needed for "
                                               "what comes out of \"%2\". Extract into another folder.")
                                         .arg(path, item.archive));
}

void lookAtVolumes(const ExtractItem &item, Findings &findings)
{
    const std::optional<QList<Volume>> volumes = volumesBeside(item.archive);
    const QString missing = volumes ? whatIsMissing(*volumes) : QString();
    if (!missing.isEmpty())
        findings.addConcern(Words::tr("The set of \"%1\" seems incomplete or mixed: %2. Put all its volumes, "
                                      "and no others, into one folder.")
                                .arg(lastPathComponent(item.archive), missing));
}

void lookAtKey(const ExtractOrder &order, Findings &findings)
{
    if (order.key.isEmpty())
        findings.addConcern(Words::tr("No private key is chosen. Without it nothing that was encrypted for a "
                                      "certificate can be decrypted."));
    else if (!isReadableFile(order.key))
        findings.addConcern(Words::tr("The private key \"%1\" can't be read.").arg(order.key));
    if (order.certificate.isEmpty())
        findings.addConcern(
            Words::tr("No certificate is chosen. Choose the one that the archives were encrypted for."));
    else if (!isReadableFile(order.certificate))
        findings.addConcern(Words::tr("The certificate \"%1\" can't be read.").arg(order.certificate));
}

void lookAtProtection(const ExtractOrder &order, const ExtractItem &item, Findings &findings)
{
    const QString name = lastPathComponent(item.archive);
    if (item.command.isEmpty())
        findings.addConcern(Words::tr("The name of \"%1\" does not tell how it was encrypted. Choose the "
                                      "method, unless the name of what is in it tells.")
                                .arg(name));
    else if (item.command == u"smime")
        lookAtKey(order, findings);
    else if (order.isCertificateChosen)
        findings.addConcern(Words::tr("\"%1\" was encrypted by a password, and a certificate is chosen. "
                                      "Choose a password on the Password tab.")
                                .arg(name));
}

void lookAtPlaces(const ExtractOrder &order, const ExtractItem &item, Findings &findings)
{
    for (const QString &path : pathsBetween(item.paths)) {
        const auto there = entryAt(path);
        if (!there) continue;
        const bool isKnown = std::any_of(order.known.begin(), order.known.end(), [&](const LeftFile &left) {
            return left.path == path && left.identity == there->identity;
        });
        if (there->kind == FileEntry::Kind::Folder)
            findings.addConcern(
                Words::tr("\"%1\" is a folder, and a file of that name is needed for a while. Rename it.")
                    .arg(path));
        else if (!isKnown)
            findings.addConcern(Words::tr("\"%1\" is there, and its name is needed for a while. It will get "
                                          "another name, which begins with \"kept\", and stay.")
                                    .arg(path));
    }
}

void lookForNamesakes(const ExtractOrder &order, Findings &findings)
{
    QSet<QString> taken;
    for (const ExtractItem &item : order.items)
        for (const QString &path : pathsBetween(item.paths)) {
            if (taken.contains(path))
                findings.addConcern(
                    Words::tr("Two archives need the name \"%1\" for a while. They are extracted one after "
                              "the other; what the second would replace goes into a folder of its own.")
                        .arg(lastPathComponent(path)));
            taken.insert(path);
        }
}

void lookForLeftOut(const ExtractOrder &order, Findings &findings)
{
    QStringList extracted;
    for (const ExtractItem &item : order.items)
        extracted.append(item.archive);
    for (const QString &path : namesLeftOut(order.shown, extracted))
        findings.addConcern(describeLeftOut({path}, order.shown, extracted));
}

void lookForRoom(const ExtractOrder &order, Findings &findings)
{
    findings.addConcern(whyNotWritable(order.folder));
    QList<qint64> sizes;
    for (const ExtractItem &item : order.items)
        sizes.append(bytesOfArchive(item.archive));
    findings.addConcern(whyTooLittleRoom(order.folder, roomNeeded(sizes, workerLimit())));
}

void repair(const ExtractOrder &order, const QString &folder)
{
    aftermath::repair(folder,
                      [&](const QString &archive) { return isWholeArchive(order.archiver, archive); });
}

/// One archive at a time: of several, names that meet would tell nobody which of them was meant.
void lookAtChoice(ExtractOrder &order, Findings &findings)
{
    if (order.items.size() != 1)
        findings.addObstacle(
            Words::tr("Single files are looked for in one archive at a time. Choose one archive, or of "
                      "a set its first volume."));
    findings.addObstacle(tidyChosen(order.chosen));
    if (findings.obstacles.isEmpty()) workInPrivate(order);
}

/// Archives are extracted from where backups are made: one that was killed may have left its former archive
/// under another name there.
void repairAround(const ExtractOrder &order)
{
    QStringList folders;
    for (const QString &archive : order.shown)
        if (const QString folder = QFileInfo(archive).path(); !folders.contains(folder))
            folders.append(folder);
    for (const QString &folder : folders)
        if (const FolderLock lock = FolderLock::take(folder); !lock.isBusy()) repair(order, folder);
}

} // namespace

Findings lookAtExtraction(ExtractOrder &order, FolderLock &lock)
{
    Findings findings;
    if (!quillorentLibrary::folderExists(order.folder)) {
        findings.addObstacle(Words::tr("The extraction folder \"%1\" does not exist or is no folder. Connect "
                                       "its disk, or choose another one.")
                                 .arg(order.folder));
        return findings;
    }
    if (order.isPart()) lookAtChoice(order, findings);
    lookForArchivesInTheWay(order, findings);
    if (!findings.obstacles.isEmpty()) return findings;
    repairAround(order);
    lock = FolderLock::take(order.folder);
    if (lock.isBusy()) {
        findings.addObstacle(whyBusy(order.folder));
        return findings;
    }
    repair(order, order.folder);
    order.known = aftermath::leftIn(order.folder);

    for (const ExtractItem &item : order.items) {
        if (!isReadableFile(item.archive)) {
            findings.addConcern(
                Words::tr("\"%1\" is not there any more, or can't be read.").arg(item.archive));
            continue;
        }
        lookAtVolumes(item, findings);
        lookAtProtection(order, item, findings);
        lookAtPlaces(order, item, findings);
    }
    lookForNamesakes(order, findings);
    lookForLeftOut(order, findings);
    findings.addConcern(concernAboutRecords());
    lookForRoom(order, findings);
    // What is chosen replaces nothing.
    if (!order.isPart() && order.asksBeforeReplacing && !quillorentLibrary::holdsNothing(order.folder))
        findings.overwrites =
            Words::tr("The extraction folder \"%1\" is not empty. Files of the same name are replaced.")
                .arg(order.folder);
    return findings;
}

qint64 roomNeeded(QList<qint64> archives, qsizetype atOnce)
{
    // An archive packs base64 text to three quarters, so the encrypted file is four thirds of it. That text
    // stands for three bytes in four characters, so the inner archive is as large as the outer one again; and
    // what it stores without packing are the contents. First encrypted file and inner archive lie beside each
    // other, then inner archive and contents: on top of its contents an archive needs what its encrypted file
    // takes.
    std::sort(archives.begin(), archives.end(), std::greater<>());
    qint64 bytes = 0;
    for (qsizetype index = 0; index < archives.size(); ++index)
        bytes += archives[index] + (index < atOnce ? archives[index] / 3 * 4 : 0);
    return bytes;
}
