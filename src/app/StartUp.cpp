#include "app/QuillorentAppDelegate.h"
#include "app/profiles/SavedFile.h"
#include "app/tools/Compliance.h"
#include "keychain/Keychain.h"
#include "settings/Store.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(app)
};

plist::Dictionary makeDefaultProfile()
{
    auto record = plist::Dictionary::make();
    record.setValue(u"folders"_s, plist::Array::make());
    record.setValue(u"path"_s, u"");
    record.setValue(u"password"_s, u"");
    record.setValue(u"passtype"_s, PasswordTab::TypedPassword);
    record.setValue(u"encryption"_s, u"");
    record.setValue(u"symencryption"_s, u"OpenSSL-AES");
    record.setValue(u"asymencryption"_s, u"OpenSSL-SMIME");
    record.setValue(u"lastkeychainuser"_s, u"");
    record.setValue(u"lastcertfile"_s, u"");
    record.setValue(u"lastpkfile"_s, u"");
    record.setValue(u"extractpath"_s, u"");
    record.setSwitch(u"split"_s, true);
    record.setValue(u"part"_s, u"10000");
    record.setSwitch(u"keepdate"_s, true);
    record.setSwitch(u"emptydir"_s, false);
    record.setValue(u"sync"_s, plist::Array::make());
    record.setValue(u"rsyncmode"_s, u"0");
    record.setSwitch(u"rsyncdelete1"_s, false);
    record.setSwitch(u"rsyncdelete2"_s, false);
    record.setSwitch(u"isremotesync"_s, false);
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
    detachThread(u"left-in-clear"_s, [this] { showLeftInClear(); });

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
    if (configPlist().dictionary(u"resources"_s).isOn(u"autosave"_s) && !m_leavesUnsaved) {
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
