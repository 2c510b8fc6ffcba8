#include "app/QuillorentAppDelegate.h"
#include "app/profiles/Methods.h"
#include "runs/Pauses.h"
#include "settings/Store.h"
#include "tools/Threads.h"

#include <thread>

using namespace Qt::StringLiterals;

namespace {

void show(outlets::TextField &field, const std::optional<QString> &text)
{
    if (text) field.setText(*text);
}

void showUnlessEmpty(outlets::TextField &field, const std::optional<QString> &text)
{
    if (text && !text->isEmpty()) field.setText(*text);
}

} // namespace

QString QuillorentAppDelegate::loadProfiles()
{
    listPlist.set(quillorentLibrary::readProfiles());
    refreshProfileCombo();

    const QStringList names = listPlist().keys();
    const QString last = names.isEmpty() ? QString() : names.last();
    profileCombo01.selectTitle(last);

    const QString chosen =
        configPlist().dictionary(u"resources"_s).string(u"selectedprofile"_s).value_or(QString());
    return !chosen.isEmpty() && names.contains(chosen) ? chosen : last;
}

void QuillorentAppDelegate::refreshProfileCombo() { profileCombo01.setTitles(listPlist().keys()); }

// Choosing a name applies nothing yet: that is what the button beside it is for.
void QuillorentAppDelegate::profileCombo01Action() { listTableView.reloadData(); }

void QuillorentAppDelegate::setterCurrentProfile(const QString &name)
{
    // How a run of another profile ended says nothing of this one.
    if (name != currentProfile())
        for (outlets::TextField *result : {&outputText01, &outputText02, &outputText03})
            result->setText({});
    currentProfile.set(name);
    profileCombo01.selectTitle(name);
    currentProfileTextView.setText(name);

    showSwitches();
    forgetKeychainAnswers();
    // No password typed for one profile may be seen in the next. The destination, the extraction folder and
    // the volume size stay as they are where the new record has none.
    for (outlets::TextField *field : std::initializer_list<outlets::TextField *>{
             &keychainPass, &keychainClear, &keychainOrigin, &keychainUser, &secureText01a, &secureText01b,
             &secureText02, &pkFile01, &certFile01, &syncTextDestPath, &syncTextSourcePath, &syncUser,
             &syncServer, &syncPort})
        field->setText({});

    applyRecord(currentRecord());
    passCombo01Action();
    listTableView.reloadData();
    extractTableView.reloadData();
    syncTableView.reloadData();
}

void QuillorentAppDelegate::showSwitches()
{
    updatesCheck01.setOn(configPlist().dictionary(u"updates"_s).isOn(u"automatic"_s));
    autosaveCheck01.setOn(configPlist().dictionary(u"resources"_s).isOn(u"autosave"_s));
}

void QuillorentAppDelegate::applyRecord(const plist::Dictionary &record)
{
    show(fileText01, record.string(u"path"_s));
    show(keychainUser, record.string(u"lastkeychainuser"_s));
    show(certFile01, record.string(u"lastcertfile"_s));
    if (const auto source = record.integer(u"passtype"_s)) passCombo01.selectIndex(int(*source));
    show(pkFile01, record.string(u"lastpkfile"_s));
    show(extractPath, record.string(u"extractpath"_s));
    const auto method =
        quillorentLibrary::symmetricMethods().indexOf(record.string(u"symencryption"_s).value_or(QString()));
    if (method >= 0) prefSelector01.selectIndex(int(method));
    if (const auto part = record.string(u"part"_s)) showPartSize(*part);
    checkBox04.setOn(record.isOn(u"split"_s));
    checkBox05.setOn(record.isOn(u"keepdate"_s));
    showCompression(record.isOn(u"compress"_s));

    // A record without these two reads as "not 0", unlike every other switch.
    syncSelector01.selectIndex(record.string(u"rsyncmode"_s) == u"0"_s ? 0 : 1);
    checkBoxSync1.setOn(record.isOn(u"rsyncdelete1"_s));
    checkBoxSync2.setOn(record.isOn(u"rsyncdelete2"_s));
    show(syncTextSourcePath, record.string(u"rsyncsrc"_s));
    show(syncTextDestPath, record.string(u"rsyncdst"_s));
    prefCheck02.setOn(record.string(u"emptydir"_s) != u"0"_s);

    syncCheck01.setOn(record.isOn(u"isremotesync"_s));
    syncView.setHidden(!syncCheck01.isOn());
    showUnlessEmpty(syncPort, record.string(u"remotesyncport"_s));
    showUnlessEmpty(syncServer, record.string(u"remotesyncserver"_s));
    showUnlessEmpty(syncUser, record.string(u"remotesyncuser"_s));
}

void QuillorentAppDelegate::showPartSize(const QString &size)
{
    partSize.set(size);
    prefStepper01.setValue(int(plist::Value(size).integer().value_or(0)));
    prefText01.setText(size);
}

void QuillorentAppDelegate::showCompression(bool isOn)
{
    checkBox06.setOn(isOn);
    prefCheck03.setOn(isOn);
}

void QuillorentAppDelegate::profileButton02Action()
{
    const QString chosen = profileCombo01.selectedTitle();
    if (chosen.isEmpty()) return;
    indicator02.startAnimation();
    setterCurrentProfile(chosen);
    detachThread(u"load-profile"_s, [this] {
        std::this_thread::sleep_for(pauses().profileLoaded);
        listTableView.reloadData();
        extractTableView.reloadData();
        syncTableView.reloadData();
        indicator02.stopAnimation();
    });
}
