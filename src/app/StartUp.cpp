#include "app/QuillorentAppDelegate.h"
#include "app/profiles/SavedFile.h"
#include "app/tools/Compliance.h"
#include "keychain/Keychain.h"
#include "settings/Store.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(app)
};

plist::Dictionary makeDefaultProfile()
{
    auto record = plist::Dictionary::make();
    record.setValue(u"folders"_qs, plist::Array::make());
    record.setValue(u"path"_qs, u"");
    record.setValue(u"password"_qs, u"");
    record.setValue(u"passtype"_qs, PasswordTab::TypedPassword);
    record.setValue(u"encryption"_qs, u"");
    record.setValue(u"symencryption"_qs, u"OpenSSL-AES");
    record.setValue(u"asymencryption"_qs, u"OpenSSL-SMIME");
    record.setValue(u"lastkeychainuser"_qs, u"");
    record.setValue(u"lastcertfile"_qs, u"");
    record.setValue(u"lastpkfile"_qs, u"");
    record.setValue(u"extractpath"_qs, u"");
    record.setSwitch(u"split"_qs, true);
    record.setValue(u"part"_qs, u"10000");
    record.setSwitch(u"keepdate"_qs, true);
    record.setSwitch(u"emptydir"_qs, false);
    record.setValue(u"sync"_qs, plist::Array::make());
    record.setValue(u"rsyncmode"_qs, u"0");
    record.setSwitch(u"rsyncdelete1"_qs, false);
    record.setSwitch(u"rsyncdelete2"_qs, false);
    record.setSwitch(u"isremotesync"_qs, false);
    return record;
}

/// What a person must know of a file that gave no dictionary.
QString describeUnreadable(const QString &what, const QString &reason)
{
    return Words::tr("The %1 can't be read:\n%2\nTheir file stays as it is. Repair it, or move it away: the "
                     "next start makes a new one.")
        .arg(what, reason);
}

} // namespace

void QuillorentAppDelegate::applicationDidFinishLaunching()
{
    configPlist.set(quillorentLibrary::readSettings());
    setterCurrentProfile(loadProfiles());

    // Verifying starts every tool once; the window does not wait for that.
    if (verifiesTools) quillorentLibrary::updateCompliance();

    setThreadsRunning({});
    currentProfileTextView.setHidden(false);
    extractList.clear();
    extractFullList.clear();
    decryptionCombo01.selectIndex(automaticDecryption);
    defaultProfile.set(makeDefaultProfile());
    checkForUpdatesAtStart();
    detachThread(u"left-in-clear"_qs, [this] { showLeftInClear(); });

    QStringList notices = quillorentLibrary::takeNotices();
    if (!configPlist())
        notices.append(describeUnreadable(Words::tr("settings"), quillorentLibrary::whySettingsAreUnread()));
    if (!listPlist())
        notices.append(describeUnreadable(Words::tr("profiles"), quillorentLibrary::whyProfilesAreUnread()));
    tellOfFiles(notices);
}

void QuillorentAppDelegate::applicationWillTerminate()
{
    m_endsUnasked = true;
    if (configPlist().dictionary(u"resources"_qs).isOn(u"autosave"_qs) && !m_leavesUnsaved) {
        if (isUnsaved(profilesToSave())) profileButton01Action();
        if (isUnsaved(settingsToSave())) saveSettings1Action();
    }

    endRuns();
}

void QuillorentAppDelegate::endRuns()
{
    // Whoever waits for an answer goes on without one, and whoever works skips the rest.
    cancelForQuitting();
    for (outlets::Outlet *outlet : outlets())
        if (auto *panel = dynamic_cast<outlets::Panel *>(outlet)) panel->endWaiting();

    // A worker between two looks at the flag may start one more tool, or ask the keychain; so until all
    // threads have ended.
    do {
        endTools();
        keychain()->giveUp();
    } while (!waitForThreads(200ms));
}
