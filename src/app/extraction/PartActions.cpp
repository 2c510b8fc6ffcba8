#include "app/QuillorentAppDelegate.h"
#include "app/extraction/ExtractStart.h"
#include "files/ArchiveFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extraction)
};

/// The one of the list that is selected, or the only one that there is.
QStringList archiveToLookInto(const QuillorentAppDelegate &delegate)
{
    const QStringList shown = delegate.extractFullList.strings();
    QStringList archives;
    for (const int row : delegate.extractTableView.selectedRows())
        if (row < shown.size()) archives.append(shown[row]);
    const QStringList extracted = delegate.extractList.strings();
    if (archives.isEmpty()) return extracted;
    // A later volume stands for its set.
    for (QString &archive : archives)
        if (!extracted.contains(archive))
            for (const QString &other : extracted)
                if (withoutVolumePart(other) == withoutVolumePart(archive)) archive = other;
    archives.removeDuplicates();
    return archives;
}

} // namespace

void QuillorentAppDelegate::takeRestoredFolder()
{
    const QString folder = QDir::home().filePath(u"Restored"_s);
    if (!QDir().mkpath(folder)) {
        warn(Words::tr("The folder \"%1\" can't be made. Choose another one.").arg(folder));
        return;
    }
    extractPath.setText(folder);
    currentRecord().setValue(u"extractpath"_s, folder);
}

void QuillorentAppDelegate::contentsButton01Action() { lookInto(archiveToLookInto(*this)); }

void QuillorentAppDelegate::lookInto(const QStringList &archives)
{
    startRun(u"extract-look"_s, [this, archives] { return prepareLook(*this, archives); });
}

void QuillorentAppDelegate::restoreChosen(const QStringList &archives, const std::vector<std::string> &chosen)
{
    startRun(u"extract-run"_s, [this, archives, chosen] { return preparePart(*this, archives, chosen); });
}

void QuillorentAppDelegate::showContents(const Listings::Listing &listing)
{
    shownListing.set(listing);
    chosenPaths.set({});
    contentsPanel01.beginSheet();
}

void QuillorentAppDelegate::contentsPanel01Restore()
{
    const Listings::Listing listing = shownListing();
    const std::vector<std::string> chosen = chosenPaths();
    if (!listing || chosen.empty()) return;
    closeSheet(contentsPanel01);
    restoreChosen({listing->archive}, chosen);
}

void QuillorentAppDelegate::contentsPanel01Close() { closeSheet(contentsPanel01); }
