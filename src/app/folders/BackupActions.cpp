#include "app/QuillorentAppDelegate.h"
#include "app/Start.h"
#include "app/folders/BackupLaunch.h"
#include "app/folders/BackupOrders.h"
#include "backup/BackupLook.h"
#include "backup/BackupRun.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(folders)
};

/// The keychain's field keeps what it holds when a fetch fails, and then it is of another account.
QString whatIsOdd(const QuillorentAppDelegate &delegate)
{
    const QString origin = delegate.keychainOrigin.text();
    const QString account = delegate.keychainUser.text();
    if (delegate.passCombo01.selectedIndex() != PasswordTab::KeychainPassword) return {};
    if (origin.isEmpty() || origin == account) return {};
    return Words::tr("The password is that of the account \"%1\", and the account that is chosen is \"%2\". "
                     "Fetch its password on the Password tab, or choose the other account again.")
        .arg(origin, account);
}

/// What the look, the question and the work have in common.
struct Backup {
    std::shared_ptr<BackupOrder> order;
    FolderLock lock{};
};

RunStart prepare(QuillorentAppDelegate &delegate, bool mayOverwrite)
{
    const auto backup = std::make_shared<Backup>(Backup{readBackupOrder(delegate.currentProfile())});
    const auto look = [backup, odd = whatIsOdd(delegate)](const std::function<bool()> &goesOn) {
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
    startRun(u"backup-run"_s, [this] { return prepare(*this, false); });
}

void QuillorentAppDelegate::buttonLaunch01b()
{
    if (warningPanel03.place() != outlets::Panel::Place::Hidden)
        answer(warningPanel03, true);
    else
        startRun(u"backup-run"_s, [this] { return prepare(*this, true); });
}

void QuillorentAppDelegate::buttonLaunch01Stop() { answer(warningPanel03, false); }

void QuillorentAppDelegate::buttonKill01(outlets::Button &sender)
{
    cancelByUser();
    sender.setTitle(QString::fromUtf8(QT_TRANSLATE_NOOP("outlets", "Wait...")));
}

void QuillorentAppDelegate::killer()
{
    const QString output = runTool(u"/usr/bin/killall"_s, {u"-9"_s, u"rar"_s}).text();
    consoleTextView01.append(output.isEmpty() ? u"\nkillall OK - "_s : u"\nkillall ERROR : \n"_s + output);
}
