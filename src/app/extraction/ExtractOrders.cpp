#include "app/extraction/ExtractOrders.h"

#include "app/QuillorentAppDelegate.h"
#include "app/extraction/ExtractDecisions.h"
#include "app/folders/Decisions.h"
#include "extract/ExtractRun.h"
#include "tools/RegisteredTool.h"

using namespace Qt::StringLiterals;

namespace {

QString extractionFolder(const QString &profile)
{
    return theDelegate().listPlist().dictionary(profile).string(u"extractpath"_s).value_or(QString());
}

/// All but the items.
std::shared_ptr<ExtractOrder> readOptions(const QString &profile, const QString &folder)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    auto order = std::make_shared<ExtractOrder>();
    order->profile = profile;
    order->folder = folder;
    order->archiver = registeredTool(u"RAR"_s);
    order->decoder = registeredTool(u"OpenSSL"_s);
    order->methods = quillorentLibrary::methodsOfSettings();
    order->password = Secret::fromText(delegate.passwordSelector());
    order->isCertificateChosen = delegate.passCombo01.selectedIndex() == PasswordTab::Certificate;
    order->key = delegate.pkFile01.text();
    order->certificate = delegate.certFile01.text();
    order->asksBeforeReplacing = !delegate.prefCheck02.isOn();
    return order;
}

void addItem(ExtractOrder &order, const QString &archive)
{
    const QString whole = withoutVolumePart(archive);
    order.items.append({.archive = archive,
                        .paths = extractPaths(archive, order.folder,
                                              quillorentLibrary::decideExtension(whole).value_or(QString())),
                        .command = quillorentLibrary::decideDecryption(archive).value_or(QString()),
                        .commandByName = commandOfArchive(whole, order.methods)});
}

} // namespace

RunSheet extractSheet(QuillorentAppDelegate &delegate)
{
    return {delegate.progressPanel02,
            delegate.progress02progressIndicator01,
            delegate.buttonCancel02,
            delegate.outputText02,
            &delegate.progress02progressLabel01,
            &delegate.progress02progressLabel02};
}

std::shared_ptr<ExtractOrder> readExtractOrder(const QString &profile)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    auto order = readOptions(profile, extractionFolder(profile));
    order->shown = delegate.extractFullList.strings();
    for (const QString &archive : delegate.extractList.strings())
        addItem(*order, archive);
    return order;
}

std::shared_ptr<ExtractOrder> readExtractOrderOf(const QString &profile, const QStringList &archives)
{
    auto order = readOptions(profile, extractionFolder(profile));
    order->shown = archives;
    for (const QString &archive : archives)
        addItem(*order, archive);
    return order;
}

void showDamage(QuillorentAppDelegate &delegate, const QString &archive, const QString &reason)
{
    delegate.extractPanelText01.setText(archive);
    delegate.extractReasonText01.setText(reason);
    delegate.extractPanel01.runModal();
}

void quillorentLibrary::launchExtract(const QString &profile)
{
    QuillorentAppDelegate &delegate = theDelegate();
    const auto order = readExtractOrder(profile);
    SheetMonitor monitor(delegate, extractSheet(delegate));
    if (!delegate.tryBeginRun()) return;
    runExtraction(
        *order, delegate, monitor, FolderLock::take(order->folder),
        [&](const QString &archive, const QString &reason) { showDamage(delegate, archive, reason); });
}

void quillorentLibrary::runProcess2(const ExtractJob &job)
{
    QuillorentAppDelegate &delegate = theDelegate();
    const auto order = readOptions(delegate.currentProfile(), job.folder);
    addItem(*order, job.archive);
    SheetMonitor monitor(delegate, extractSheet(delegate));
    runExtractionOfOne(*order, delegate, monitor);
}

void quillorentLibrary::stopProcess02() {}
