#include "app/folders/BackupOrders.h"

#include "app/QuillorentAppDelegate.h"
#include "app/SheetMonitor.h"
#include "app/folders/BackupLaunch.h"
#include "app/folders/Decisions.h"
#include "backup/BackupRun.h"
#include "files/Names.h"
#include "tools/RegisteredTool.h"

using namespace Qt::StringLiterals;

namespace {

/// All but the items.
std::shared_ptr<BackupOrder> readOptions(const QString &profile, const QString &destination)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    auto order = std::make_shared<BackupOrder>();
    order->profile = profile;
    order->destination = destination;
    order->archiver = registeredTool(u"RAR"_s);
    order->encoder = registeredTool(u"OpenSSL"_s);
    order->archiveExtension = delegate.setting(u"extensions"_s, u"RAR"_s).value_or(QString());
    order->methodExtension = quillorentLibrary::decideExtension().value_or(QString());
    order->method = quillorentLibrary::decideMethod().value_or(QString());
    order->cipher = quillorentLibrary::decideEncryption().value_or(QString());
    order->byCertificate = delegate.passCombo01.selectedIndex() == PasswordTab::Certificate;
    if (order->byCertificate)
        order->certificate = delegate.passwordSelector();
    else
        order->password = Secret::fromText(delegate.passwordSelector());
    order->awaitsKeychain = delegate.passCombo01.selectedIndex() == PasswordTab::KeychainPassword;
    if (delegate.asksTwice && delegate.passCombo01.selectedIndex() <= PasswordTab::TypedPassword)
        order->repetition = Secret::fromText(delegate.secureText02.text());
    order->compresses = delegate.checkBox06.isOn();
    order->keepDate = quillorentLibrary::decideKeepDate();
    order->split = quillorentLibrary::decideSplit();
    order->volumeSize = delegate.partSize();
    order->datesEncrypted = delegate.checkBox03.isOn();
    order->asksBeforeReplacing = !delegate.prefCheck02.isOn();
    return order;
}

void addItem(BackupOrder &order, const QString &source, const QString &baseName)
{
    order.items.append(
        backupItem(source, order.destination, baseName, order.archiveExtension, order.methodExtension));
}

} // namespace

std::shared_ptr<BackupOrder> readBackupOrder(const QString &profile)
{
    const plist::Dictionary record = theDelegate().listPlist().dictionary(profile);
    const QString destination = record.string(u"path"_s).value_or(QString());
    auto order = readOptions(profile, destination);
    // A record without a destination leaves the one of the profile before it on screen.
    const QString shown = theDelegate().fileText01.text();
    order->showsOtherDestination = !shown.isEmpty() && shown != destination;
    const QStringList folders = record.array(u"folders"_s).strings();
    for (const QString &folder : folders)
        addItem(*order, folder, quillorentLibrary::nameRepeated(folder, folders));
    return order;
}

void quillorentLibrary::launchBackup(const QString &profile)
{
    QuillorentAppDelegate &delegate = theDelegate();
    const auto order = readBackupOrder(profile);
    SheetMonitor monitor(delegate, backupSheet(delegate));
    if (delegate.tryBeginRun()) runBackup(*order, delegate, monitor, FolderLock::take(order->destination));
}

void quillorentLibrary::runProcess1(const BackupJob &job)
{
    QuillorentAppDelegate &delegate = theDelegate();
    const auto order = readOptions(delegate.currentProfile(), job.destination);
    addItem(*order, job.source, job.baseName);
    SheetMonitor monitor(delegate, backupSheet(delegate));
    runBackupOfOne(*order, delegate, monitor);
}

void quillorentLibrary::stopProcess01() {}
