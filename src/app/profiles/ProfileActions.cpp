#include "app/QuillorentAppDelegate.h"
#include "files/Paths.h"
#include "settings/Store.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

// Nothing here is written to disk before the profiles are saved.

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(profiles)
};

/// Why a profile can't be called so; empty where it can.
QString whyNotNamed(const QuillorentAppDelegate &delegate, const QString &name)
{
    if (name.trimmed().isEmpty()) return Words::tr("A profile needs a name, and none was typed.");
    if (delegate.noRepeatedProfileName(name)) return {};
    return Words::tr("There is a profile \"%1\" already. Choose another name.").arg(name);
}

} // namespace

bool QuillorentAppDelegate::noRepeatedProfileName(const QString &name) const
{
    return !listPlist().contains(name);
}

bool QuillorentAppDelegate::canHaveProfiles()
{
    if (listPlist()) return true;
    tellOfFiles({Words::tr("There can be no profiles, for their file can't be read:\n%1\nRepair it, or move "
                           "it away, and start the program again.")
                     .arg(quillorentLibrary::whyProfilesAreUnread())});
    return false;
}

bool QuillorentAppDelegate::acceptName(const QString &name, outlets::Panel &sheet)
{
    const QString reason = whyNotNamed(*this, name);
    if (reason.isEmpty()) return true;
    closeSheet(sheet);
    warningText04.setText(reason);
    warningPanel04.runModal();
    return false;
}

void QuillorentAppDelegate::showProfile(const QString &name)
{
    refreshProfileCombo();
    profileCombo01.selectTitle(name);
    profileButton02Action();
}

void QuillorentAppDelegate::panelNoname() { closeSheet(warningPanel04); }

// Rename

void QuillorentAppDelegate::profileButton03Action()
{
    if (!canHaveProfiles()) return;
    panel01text01.setText(profileCombo01.selectedTitle());
    profilePanel01.runModal();
    panel01text02.setText({});
}

void QuillorentAppDelegate::panel01ok()
{
    const QString former = panel01text01.text();
    const QString name = panel01text02.text();
    if (!acceptName(name, profilePanel01)) return;
    listPlist().setValue(name, listPlist().dictionary(former));
    showProfile(name);
    listPlist().remove(former);
    // The profile that opens at start-up stays the one, under its new name.
    const plist::Dictionary resources = configPlist().dictionary(u"resources"_s);
    if (resources.string(u"selectedprofile"_s) == former) resources.setValue(u"selectedprofile"_s, name);
    showProfile(name);
    closeSheet(profilePanel01);
}

void QuillorentAppDelegate::profileButton03ActionEnd() { closeSheet(profilePanel01); }

// New

void QuillorentAppDelegate::profileButton04Action()
{
    if (!canHaveProfiles()) return;
    panel02text01.setText({});
    mustDos01.setOn(false);
    profilePanel02.runModal();
}

void QuillorentAppDelegate::panel02ok()
{
    const QString name = panel02text01.text();
    if (!acceptName(name, profilePanel02)) return;
    const plist::Dictionary record = quillorentLibrary::dictionaryByDeepCopy(defaultProfile());
    listPlist().setValue(name, record);
    if (mustDos01.isOn())
        record.array(u"folders"_s)
            .append(quillorentLibrary::translatePath(configPlist().array(u"mustdo"_s).strings()));
    closeSheet(profilePanel02);
    passCombo01.selectIndex(TypedPassword);
    showProfile(name);
}

void QuillorentAppDelegate::profileButton04ActionEnd() { closeSheet(profilePanel02); }

// Duplicate

void QuillorentAppDelegate::profileButton06Action()
{
    if (!canHaveProfiles()) return;
    panel03text01.setText(profileCombo01.selectedTitle());
    profilePanel03.runModal();
    panel03text02.setText({});
}

void QuillorentAppDelegate::panel03ok()
{
    const QString name = panel03text02.text();
    if (!acceptName(name, profilePanel03)) return;
    // The very same record, until the profiles are saved and read again.
    listPlist().setValue(name, listPlist().dictionary(panel03text01.text()));
    showProfile(name);
    showProfile(name);
    closeSheet(profilePanel03);
}

void QuillorentAppDelegate::profileButton06ActionEnd() { closeSheet(profilePanel03); }

// Delete

void QuillorentAppDelegate::profileButton07Action()
{
    if (listPlist().count() < 2) return; // the last one stays
    panel04text01.setText(profileCombo01.selectedTitle());
    profilePanel04.runModal();
}

void QuillorentAppDelegate::panel04ok()
{
    const QString name = panel04text01.text();
    listPlist().remove(name);
    refreshProfileCombo();
    if (name == currentProfile())
        profileCombo01.selectIndex(0);
    else
        profileCombo01.selectTitle(currentProfile());
    profileButton02Action();
    closeSheet(profilePanel04);
}

void QuillorentAppDelegate::profileButton07ActionEnd() { closeSheet(profilePanel04); }
