#include "app/QuillorentAppDelegate.h"
#include "backup/BackupRun.h"
#include "files/Paths.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

namespace {

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
    if (delegate.passwordSelector().isEmpty()) {
        if (delegate.passCombo01.selectedIndex() == PasswordTab::Certificate)
            return u"No certificate is chosen. Choose one on the Passwords tab."_qs;
        if (delegate.passCombo01.selectedIndex() == PasswordTab::KeychainPassword)
            return u"No password was fetched from the keychain. See the Passwords tab; without a password nothing is backed up."_qs;
        return u"No password is given. Type one on the Passwords tab; without a password nothing is backed up."_qs;
    }
    if (record.array(u"folders"_qs).count() == 0)
        return u"The profile has no folders. Add those that are to be backed up."_qs;
    if (delegate.isRunActive()) return u"The last run is still ending its tools. Try again in a moment."_qs;
    return {};
}

QString destinationMissing(const QString &destination)
{
    if (destination.isEmpty())
        return u"No destination is chosen. Choose the folder that the archives go to."_qs;
    return u"The destination \"%1\" does not exist or is no folder. Connect its disk, or choose another one."_qs
        .arg(destination);
}

} // namespace

void QuillorentAppDelegate::buttonLaunch01()
{
    const QString destination = fileText01.text();
    if (!quillorentLibrary::folderExists(destination)) {
        warn(destinationMissing(destination));
        return;
    }
    if (quillorentLibrary::folderIsEmpty(destination)) {
        buttonLaunch01b();
        return;
    }
    folderNotEmptyText02.setText(destination);
    warningPanel03.runModal();
}

void QuillorentAppDelegate::buttonLaunch01b()
{
    buttonLaunch01Stop();
    const QString missing = whatIsMissing(*this);
    if (!missing.isEmpty()) {
        warn(missing);
        return;
    }
    // Set before the thread exists: a second press must find the run.
    beginRun();
    detachThread(u"backup-run"_qs,
                 [profile = currentProfile()] { quillorentLibrary::launchBackup(profile); });
}

void QuillorentAppDelegate::buttonLaunch01Stop()
{
    warningPanel03.close();
    window.orderFront();
}

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
