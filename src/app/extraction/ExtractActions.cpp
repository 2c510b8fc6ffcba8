#include "app/QuillorentAppDelegate.h"
#include "app/Start.h"
#include "app/extraction/ExtractOrders.h"
#include "app/extraction/ExtractStart.h"
#include "extract/Candidates.h"
#include "extract/ExtractLook.h"
#include "extract/ExtractRun.h"
#include "files/Names.h"
#include "keys/SecretRules.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extraction)
};

QString noArchives(const QuillorentAppDelegate &delegate)
{
    const QStringList shown = delegate.extractFullList.strings();
    const QString leftOut = describeLeftOut(shown, shown, {});
    return leftOut.isEmpty() ? Words::tr("No archives are chosen. Add those that are to be extracted.")
                             : leftOut;
}

QString whyNoPassword(const QuillorentAppDelegate &delegate)
{
    QString password = delegate.passwordSelector();
    QString refusal = password.isEmpty() ? Words::tr("No password is given. Type one on the Password tab; "
                                                     "without a password nothing is extracted.")
                                         : whyBadPassword(password);
    wipe(password);
    return refusal;
}

/// What keeps an extraction from starting, in words that say what to do; the empty string where nothing does.
QString whatIsMissing(const QuillorentAppDelegate &delegate, const QString &missingArchives)
{
    const QString folder = delegate.extractPath.text();
    if (folder.isEmpty())
        return Words::tr("No extraction folder is chosen. Choose the folder that the contents go to.");
    // A record without a folder leaves the one of the profile before it on screen.
    if (delegate.currentRecord().string(u"extractpath"_s) != folder)
        return Words::tr("The extraction folder that is shown is not this profile's own. Choose it again.");
    if (!missingArchives.isEmpty()) return missingArchives;
    if (delegate.passCombo01.selectedIndex() == PasswordTab::Certificate && !delegate.pkeySelector())
        return Words::tr("No certificate is chosen. Choose one on the Password tab.");
    return delegate.passCombo01.selectedIndex() == PasswordTab::Certificate ? QString()
                                                                            : whyNoPassword(delegate);
}

/// What the look, the question and the work have in common.
struct Extraction {
    std::shared_ptr<ExtractOrder> order;
    FolderLock lock{};
};

void carryOut(QuillorentAppDelegate &delegate, Extraction &extraction, RunMonitor &monitor)
{
    runExtraction(
        *extraction.order, delegate, monitor, std::move(extraction.lock),
        [&](const QString &archive, const QString &reason) { showDamage(delegate, archive, reason); });
}

/// What the sheet says is done: bringing archives back, or looking into that one.
void nameTheWork(QuillorentAppDelegate &delegate, const QString &archive = {})
{
    using quillorentLibrary::lastPathComponent;
    delegate.lookedInto.set(archive);
    delegate.progress02progressLabel01.setText(
        archive.isEmpty() ? Words::tr("Testing the archives…")
                          : Words::tr("Testing \"%1\"…").arg(lastPathComponent(archive)));
    delegate.progress02progressLabel02.setText(
        archive.isEmpty() ? Words::tr("Restoring…")
                          : Words::tr("Looking into \"%1\"…").arg(lastPathComponent(archive)));
}

QString noArchiveToLookInto() { return Words::tr("No archive is chosen. Add the one that has the file."); }

RunStart prepare(QuillorentAppDelegate &delegate, bool mayOverwrite)
{
    nameTheWork(delegate);
    delegate.openFolderButton.setAlternateTitle({});
    const auto extraction =
        std::make_shared<Extraction>(Extraction{readExtractOrder(delegate.currentProfile())});
    const QString missing =
        whatIsMissing(delegate, delegate.extractList.count() == 0 ? noArchives(delegate) : QString());
    const auto look = [extraction, missing](const std::function<bool()> &) {
        if (!missing.isEmpty()) return Findings{.obstacles = {missing}};
        return lookAtExtraction(*extraction->order, extraction->lock);
    };
    const auto work = [&delegate, extraction](RunMonitor &monitor) {
        carryOut(delegate, *extraction, monitor);
    };
    const auto show = [&delegate, folder = extraction->order->folder](const QString &) {
        delegate.folderNotEmptyText01.setText(folder);
    };
    return {extractSheet(delegate), look, work, mayOverwrite, &delegate.warningPanel02, show};
}

} // namespace

RunStart preparePart(QuillorentAppDelegate &delegate, const QStringList &archives,
                     const std::vector<std::string> &chosen)
{
    nameTheWork(delegate);
    delegate.openFolderButton.setAlternateTitle({});
    const auto extraction =
        std::make_shared<Extraction>(Extraction{readExtractOrderOf(delegate.currentProfile(), archives)});
    extraction->order->chosen = chosen;
    const QString missing = whatIsMissing(delegate, archives.isEmpty() ? noArchiveToLookInto() : QString());
    const auto look = [extraction, missing](const std::function<bool()> &) {
        if (!missing.isEmpty()) return Findings{.obstacles = {missing}};
        return lookAtExtraction(*extraction->order, extraction->lock);
    };
    const auto work = [&delegate, extraction](RunMonitor &monitor) {
        carryOut(delegate, *extraction, monitor);
    };
    return {extractSheet(delegate), look, work};
}

RunStart prepareLook(QuillorentAppDelegate &delegate, const QStringList &archives)
{
    // Looked up on the run's thread: an archive may lie on a disk that takes its time.
    struct Looking {
        std::shared_ptr<ArchiveListing> listing = std::make_shared<ArchiveListing>();
        Listings::Listing known{};
    };
    nameTheWork(delegate, archives.value(0));
    const auto looking = std::make_shared<Looking>();
    const auto extraction =
        std::make_shared<Extraction>(Extraction{readExtractOrderOf(delegate.currentProfile(), archives)});
    extraction->order->listing = looking->listing;
    const QString missing = whatIsMissing(delegate, archives.isEmpty() ? noArchiveToLookInto() : QString());
    const auto look = [&delegate, looking, extraction, archives, missing](const std::function<bool()> &) {
        if (archives.size() == 1) looking->known = delegate.listings.find(archives.first());
        if (looking->known) return Findings();
        if (!missing.isEmpty()) return Findings{.obstacles = {missing}};
        return lookAtExtraction(*extraction->order, extraction->lock);
    };
    const auto work = [&delegate, looking, extraction](RunMonitor &monitor) {
        if (looking->known) {
            delegate.endRun();
            delegate.showContents(looking->known);
            return;
        }
        carryOut(delegate, *extraction, monitor);
        if (delegate.lastRecord().outcome != Outcome::Succeeded) return;
        delegate.listings.add(looking->listing);
        delegate.showContents(looking->listing);
    };
    return {extractSheet(delegate), look, work};
}

void QuillorentAppDelegate::buttonLaunch02()
{
    startRun(u"extract-run"_s, [this] { return prepare(*this, false); });
}

void QuillorentAppDelegate::buttonLaunch02b()
{
    if (warningPanel02.place() != outlets::Panel::Place::Hidden)
        answer(warningPanel02, true);
    else
        startRun(u"extract-run"_s, [this] { return prepare(*this, true); });
}

void QuillorentAppDelegate::buttonLaunch02Stop() { answer(warningPanel02, false); }

void QuillorentAppDelegate::stopProcess02b() { closeSheet(extractPanel01); }
