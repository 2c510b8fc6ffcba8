#include "sync/SyncLook.h"

#include "files/FolderWalk.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "runs/Looks.h"
#include "sync/SyncArguments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <unordered_map>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

bool isEmptyFolder(const QString &path)
{
    return QFileInfo(path).isDir() &&
           QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// An unmounted disk leaves an empty folder in its place, and deleting what that lacks wipes the copy.
void lookForEmptySources(const SyncOrder &order, Findings &findings)
{
    if (!order.deletesExtra) return;
    const QString root = syncArguments::rootOf(order.entries);
    for (const QString &entry : order.entries) {
        if (!isEmptyFolder(entry)) continue;
        const QString copy = order.destination + u'/' + syncArguments::lineOf(entry, root);
        const bool mayHoldFiles = order.isRemote || (QFileInfo(copy).isDir() && !isEmptyFolder(copy));
        if (mayHoldFiles)
            findings.addConcern(
                Words::tr(
                    "\"%1\" is empty, and everything in its copy would be deleted. Is its disk connected?")
                    .arg(entry));
    }
}

/// With links resolved as far as there is anything: the destination may not be made yet.
QString resolved(const QString &path)
{
    const QString standardized = quillorentLibrary::standardizePath(path);
    std::error_code failure;
    const auto real = std::filesystem::weakly_canonical(standardized.toStdU16String(), failure);
    return failure ? standardized : QString::fromStdU16String(real.u16string());
}

void lookAtEntries(const SyncOrder &order, Findings &findings)
{
    const QString root = syncArguments::rootOf(order.entries);
    for (const QString &entry : syncArguments::misnamedEntries(order.entries))
        findings.addConcern(
            Words::tr("\"%1\" does not lie under the common folder \"%2\" as the list is written, and will "
                      "not be found. Synchronise it from a profile of its own.")
                .arg(entry, root));
    const QString destination = resolved(order.destination);
    for (const QString &entry : order.entries)
        if (!order.isRemote && QFileInfo(entry).isDir() &&
            quillorentLibrary::isInside(destination, resolved(entry)))
            findings.addConcern(Words::tr("The destination lies inside \"%1\", so that each run copies the "
                                          "copies of the last one. Choose another destination.")
                                    .arg(entry));
}

/// Of what is to be copied, the first that differs from another in upper and lower case only.
std::optional<QString> firstNamesake(const QStringList &entries)
{
    std::unordered_map<std::size_t, std::size_t> owners; // hashes: there may be millions of paths
    for (const QString &entry : entries) {
        FolderWalk walk(QFile::encodeName(entry).toStdString());
        while (walk.next()) {
            const QString path = QFile::decodeName(QByteArray::fromStdString(walk.path()));
            const auto [owner, isNew] = owners.try_emplace(qHash(path.toCaseFolded()), qHash(path));
            if (!isNew && owner->second != qHash(path)) return path;
        }
    }
    return std::nullopt;
}

/// Of the folder, or of the one above it that it would be made in.
bool willIgnoreCase(QString path)
{
    while (!QFileInfo::exists(path) && path.contains(u'/'))
        path.truncate(path.lastIndexOf(u'/'));
    return mayIgnoreCase(path);
}

/// Where case is ignored one of two comes over the other; and where what has come there goes from here, that
/// is lost.
void lookForNamesakes(const SyncOrder &order, Findings &findings)
{
    const bool isHere = !order.isRemote && willIgnoreCase(resolved(order.destination));
    if (!isHere && !(order.isRemote && order.removesSources)) return; // most servers know case
    const std::optional<QString> path = firstNamesake(order.entries);
    if (!path) return;
    const QString text =
        Words::tr("Beside \"%1\" there is a name that differs in upper and lower case only. The "
                  "destination may take both for one, so that only one of them arrives. Rename "
                  "one of them.")
            .arg(*path);
    isHere &&order.removesSources ? findings.addObstacle(text) : findings.addConcern(text);
}

} // namespace

void lookAtSync(const SyncOrder &order, Findings &findings)
{
    findings.addObstacle(whatIsMissing(order));
    if (!findings.obstacles.isEmpty()) return;
    findings.addObstacle(checkDestination(order));
    lookAtEntries(order, findings);
    lookForEmptySources(order, findings);
    lookForNamesakes(order, findings);
    findings.addConcern(concernAboutRecords());
}
