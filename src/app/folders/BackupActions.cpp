#include "app/QuillorentAppDelegate.h"
#include "app/Start.h"
#include "app/folders/BackupLaunch.h"
#include "app/folders/BackupOrders.h"
#include "backup/BackupLook.h"
#include "backup/BackupRun.h"
#include "tools/ToolRun.h"

namespace {

bool holdsNoPassword(const QuillorentAppDelegate &delegate)
{
    QString password = delegate.passwordSelector();
    const bool isEmpty = password.isEmpty();
    wipe(password);
    return isEmpty;
}

/// The keychain's field keeps what it holds when a fetch fails, and then it is of another account.
QString whatIsOdd(const QuillorentAppDelegate &delegate)
{
    const QString origin = delegate.keychainOrigin.text();
    const QString account = delegate.keychainUser.text();
    if (delegate.passCombo01.selectedIndex() != PasswordTab::KeychainPassword) return {};
    if (origin.isEmpty() || origin == account) return {};
    return u"The password is that of the account \"%1\", and the account that is chosen is \"%2\". Fetch its "
           "password on the Password tab, or choose the other account again."_qs.arg(origin, account);
}

/// What keeps a backup from starting, in words that say what to do; the empty string where nothing does.
QString whatIsMissing(const QuillorentAppDelegate &delegate)
{
    const plist::Dictionary record = delegate.currentRecord();
    const QString destination = delegate.fileText01.text();
    if (destination.isEmpty())
        return u"No destination is chosen. Choose the folder that the archives go to."_qs;
    // A record without a destination leaves the one of the profile before it on screen.
    if (record.string(u"path"_qs) != destination)
        return u"The destination that is shown is not this profile's own. Choose it again."_qs;
    if (delegate.passCombo01.selectedIndex() == PasswordTab::KeychainPassword && holdsNoPassword(delegate))
        return u"No password was fetched from the keychain. See the Password tab; without a password nothing is backed up."_qs;
    if (record.array(u"folders"_qs).count() == 0)
        return u"The profile has no folders. Add those that are to be backed up."_qs;
    return {};
}

/// What the look, the question and the work have in common.
struct Backup {
    std::shared_ptr<BackupOrder> order;
    FolderLock lock{};
};

RunStart prepare(QuillorentAppDelegate &delegate, bool mayOverwrite)
{
    const auto backup = std::make_shared<Backup>(Backup{readBackupOrder(delegate.currentProfile())});
    const auto look = [backup, missing = whatIsMissing(delegate),
                       odd = whatIsOdd(delegate)](const std::function<bool()> &goesOn) {
        if (!missing.isEmpty()) return Findings{.obstacles = {missing}};
        Findings findings = lookAtBackup(*backup->order, backup->lock, goesOn);
        findings.addConcern(odd);
        return findings;
    };
    const auto work = [&delegate, backup](RunMonitor &monitor) {
        runBackup(*backup->order, delegate, monitor, std::move(backup->lock));
    };
    const auto show = [&delegate, folder = backup->order->destination](const QString &overwrites) {
        delegate.folderNotEmptyText02.setText(folder);
        delegate.overwritesText02.setText(overwrites);
    };
    return {backupSheet(delegate), look, work, mayOverwrite, &delegate.warningPanel03, show};
}

} // namespace

RunSheet backupSheet(QuillorentAppDelegate &delegate)
{
    return {delegate.progressPanel01, delegate.view01progressIndicator01, delegate.buttonCancel01,
            delegate.outputText01,    &delegate.view01progressLabel02,    &delegate.view01progressLabel01};
}

void QuillorentAppDelegate::buttonLaunch01()
{
    startRun(u"backup-run"_qs, [this] { return prepare(*this, false); });
}

void QuillorentAppDelegate::buttonLaunch01b()
{
    if (warningPanel03.place() != outlets::Panel::Place::Hidden)
        answer(warningPanel03, true);
    else
        startRun(u"backup-run"_qs, [this] { return prepare(*this, true); });
}

void QuillorentAppDelegate::buttonLaunch01Stop() { answer(warningPanel03, false); }

void QuillorentAppDelegate::buttonKill01(outlets::Button &sender)
{
    cancelByUser();
    sender.setTitle(u"Wait..."_qs);
}

void QuillorentAppDelegate::killer()
{
    const QString output = runTool(u"/usr/bin/killall"_qs, {u"-9"_qs, u"rar"_qs}).text();
    consoleTextView01.append(output.isEmpty() ? u"\nkillall OK - "_qs : u"\nkillall ERROR : \n"_qs + output);
}
