#include "sync/SyncLook.h"

#include "files/Names.h"
#include "files/Paths.h"
#include "runs/Looks.h"
#include "sync/SyncArguments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <filesystem>

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

} // namespace

void lookAtSync(const SyncOrder &order, Findings &findings)
{
    findings.addObstacle(whatIsMissing(order));
    if (!findings.obstacles.isEmpty()) return;
    findings.addObstacle(checkDestination(order));
    lookAtEntries(order, findings);
    lookForEmptySources(order, findings);
    findings.addConcern(concernAboutRecords());
}
