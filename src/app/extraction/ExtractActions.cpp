#include "app/QuillorentAppDelegate.h"
#include "app/Start.h"
#include "app/extraction/ExtractOrders.h"
#include "extract/Candidates.h"
#include "extract/ExtractLook.h"
#include "extract/ExtractRun.h"
#include "keys/SecretRules.h"

namespace {

QString noArchives(const QuillorentAppDelegate &delegate)
{
    const QStringList shown = delegate.extractFullList.strings();
    const QString leftOut = describeLeftOut(shown, shown, {});
    return leftOut.isEmpty() ? u"No archives are chosen. Add those that are to be extracted."_qs : leftOut;
}

QString whyNoPassword(const QuillorentAppDelegate &delegate)
{
    QString password = delegate.passwordSelector();
    QString refusal = password.isEmpty()
                          ? u"No password is given. Type one on the Password tab; without a password nothing "
                            "is extracted."_qs
                          : whyBadPassword(password);
    wipe(password);
    return refusal;
}

/// What keeps an extraction from starting, in words that say what to do; the empty string where nothing does.
QString whatIsMissing(const QuillorentAppDelegate &delegate)
{
    const QString folder = delegate.extractPath.text();
    if (folder.isEmpty())
        return u"No extraction folder is chosen. Choose the folder that the contents go to."_qs;
    // A record without a folder leaves the one of the profile before it on screen.
    if (delegate.currentRecord().string(u"extractpath"_qs) != folder)
        return u"The extraction folder that is shown is not this profile's own. Choose it again."_qs;
    if (delegate.extractList.count() == 0) return noArchives(delegate);
    if (delegate.passCombo01.selectedIndex() == PasswordTab::Certificate && !delegate.pkeySelector())
        return u"No certificate is chosen. Choose one on the Password tab."_qs;
    return delegate.passCombo01.selectedIndex() == PasswordTab::Certificate ? QString()
                                                                            : whyNoPassword(delegate);
}

/// What the look, the question and the work have in common.
struct Extraction {
    std::shared_ptr<ExtractOrder> order;
    FolderLock lock{};
};

RunStart prepare(QuillorentAppDelegate &delegate, bool mayOverwrite)
{
    delegate.openFolderButton.setAlternateTitle({});
    const auto extraction =
        std::make_shared<Extraction>(Extraction{readExtractOrder(delegate.currentProfile())});
    const auto look = [extraction, missing = whatIsMissing(delegate)](const std::function<bool()> &) {
        if (!missing.isEmpty()) return Findings{.obstacles = {missing}};
        return lookAtExtraction(*extraction->order, extraction->lock);
    };
    const auto work = [&delegate, extraction](RunMonitor &monitor) {
        runExtraction(
            *extraction->order, delegate, monitor, std::move(extraction->lock),
            [&](const QString &archive, const QString &reason) { showDamage(delegate, archive, reason); });
    };
    const auto show = [&delegate, folder = extraction->order->folder](const QString &) {
        delegate.folderNotEmptyText01.setText(folder);
    };
    return {extractSheet(delegate), look, work, mayOverwrite, &delegate.warningPanel02, show};
}

} // namespace

void QuillorentAppDelegate::buttonLaunch02()
{
    startRun(u"extract-run"_qs, [this] { return prepare(*this, false); });
}

void QuillorentAppDelegate::buttonLaunch02b()
{
    if (warningPanel02.place() != outlets::Panel::Place::Hidden)
        answer(warningPanel02, true);
    else
        startRun(u"extract-run"_qs, [this] { return prepare(*this, true); });
}

void QuillorentAppDelegate::buttonLaunch02Stop() { answer(warningPanel02, false); }

void QuillorentAppDelegate::stopProcess02b() { closeSheet(extractPanel01); }
