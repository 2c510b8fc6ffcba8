// Making, naming, saving and opening profiles.

#include "FullDisk.h"
#include "ProgramTest.h"
#include "Tree.h"
#include "plist/File.h"
#include "settings/Paths.h"
#include "tools/Threads.h"

#include <QTimer>

using namespace std::chrono_literals;

namespace {

using C = QuillorentAppDelegate;

/// One of the sheets that ask for a name.
struct Sheet {
    std::function<void(C &)> open;
    outlets::Panel C::*panel;
    outlets::TextField C::*field;
    std::function<void(C &)> ok;
};

const Sheet renaming{&C::profileButton03Action, &C::profilePanel01, &C::panel01text02, &C::panel01ok};
const Sheet making{&C::profileButton04Action, &C::profilePanel02, &C::panel02text01, &C::panel02ok};
const Sheet duplicating{&C::profileButton06Action, &C::profilePanel03, &C::panel03text02, &C::panel03ok};
const Sheet deleting{&C::profileButton07Action, &C::profilePanel04, &C::panel04text01, &C::panel04ok};

class Profiles : public ProgramTest {
protected:
    Profiles()
    {
        // Read at once, as nobody is there to close it.
        delegate.warningPanel04.observe([this] {
            if (delegate.warningPanel04.place() == outlets::Panel::Place::Hidden) return;
            refusal = delegate.warningText04.text();
            delegate.panelNoname();
        });
        delegate.savePanel01.observe([this] {
            if (delegate.savePanel01.place() == outlets::Panel::Place::Hidden) return;
            told.append(delegate.saveText01.text());
            delegate.savePanel01Close();
        });
    }

    /// Opens the sheet, and answers it.
    void use(const Sheet &sheet, const std::function<void()> &answer)
    {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            shown = (delegate.*sheet.panel).place() == outlets::Panel::Place::Sheet;
            answer();
        });
        sheet.open(delegate);
        EXPECT_TRUE(shown);
        EXPECT_EQ((delegate.*sheet.panel).place(), outlets::Panel::Place::Hidden);
        EXPECT_TRUE(waitForThreads(60s));
    }
    void confirm(const Sheet &sheet, const QString &name)
    {
        use(sheet, [&] {
            (delegate.*sheet.field).setText(name);
            sheet.ok(delegate);
        });
    }
    plist::Dictionary record(const QString &profile) const
    {
        return delegate.listPlist().dictionary(profile);
    }
    QString startUpProfile() const
    {
        return delegate.setting(u"resources"_qs, u"selectedprofile"_qs).value_or(QString());
    }

    const QString first = delegate.currentProfile();
    QString refusal;
    QStringList told;
};

} // namespace

TEST_F(Profiles, AreMadeRenamedDuplicatedAndDeleted)
{
    std::filesystem::create_directories(program.folder() / "home/Pictures");
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    use(making, [&] {
        EXPECT_FALSE(delegate.mustDos01.isOn());
        delegate.mustDos01.setOn(true);
        delegate.panel02text01.setText(u"Second"_qs);
        delegate.panel02ok();
    });
    EXPECT_EQ(delegate.currentProfile(), u"Second"_qs);
    EXPECT_EQ(delegate.passCombo01.selectedIndex(), PasswordTab::TypedPassword);
    EXPECT_EQ(record(u"Second"_qs).array(u"folders"_qs).strings(),
              QStringList{program.path("home/Pictures")});
    EXPECT_EQ(delegate.defaultProfile().array(u"folders"_qs).count(), 0) << "the copy is not deep";

    delegate.setterDefaultProfile();
    const plist::Dictionary second = record(u"Second"_qs);
    confirm(renaming, u"Renamed"_qs);
    EXPECT_EQ(delegate.listPlist().keys(), (QStringList{first, u"Renamed"_qs}));
    EXPECT_EQ(delegate.profileCombo01.titles(), delegate.listPlist().keys());
    EXPECT_TRUE(record(u"Renamed"_qs).isSameObject(second));
    EXPECT_EQ(delegate.panel01text01.text(), u"Second"_qs);
    EXPECT_EQ(startUpProfile(), u"Renamed"_qs) << "the next start opens another profile";

    confirm(duplicating, u"Twin"_qs);
    EXPECT_EQ(delegate.currentProfile(), u"Twin"_qs);
    EXPECT_TRUE(record(u"Twin"_qs).isSameObject(second)) << "one record until it is saved and read again";
    EXPECT_EQ(startUpProfile(), u"Renamed"_qs);
    confirm(renaming, u"Sibling"_qs);
    EXPECT_EQ(startUpProfile(), u"Renamed"_qs) << "another profile was renamed";

    // The chooser may show another profile than the one in use; that one stays in use.
    delegate.profileCombo01.selectTitle(u"Renamed"_qs);
    use(deleting, [&] { delegate.profileButton07ActionEnd(); });
    EXPECT_EQ(delegate.listPlist().count(), 3);
    use(deleting, [&] { delegate.panel04ok(); });
    EXPECT_EQ(delegate.listPlist().keys(), (QStringList{first, u"Sibling"_qs}));
    EXPECT_EQ(delegate.currentProfile(), u"Sibling"_qs);
    use(deleting, [&] { delegate.panel04ok(); });
    EXPECT_EQ(delegate.currentProfile(), first);
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), first);
    delegate.profileButton07Action(); // the last one stays
    EXPECT_EQ(delegate.profilePanel04.place(), outlets::Panel::Place::Hidden);
    EXPECT_EQ(delegate.listPlist().keys(), QStringList{first});
}

TEST_F(Profiles, NamesThatAreEmptyOrTakenAreRefused)
{
    const plist::Dictionary before = delegate.listPlist().deepCopy();
    for (const Sheet &sheet : {renaming, making, duplicating})
        for (const auto &[name, reason] : {std::pair{QString(), u"none was typed"_qs},
                                           {u" \t"_qs, u"none was typed"_qs},
                                           {first, u"already"_qs}}) {
            refusal.clear();
            confirm(sheet, name);
            EXPECT_TRUE(refusal.contains(reason)) << refusal.toStdString();
            EXPECT_TRUE(delegate.listPlist() == before);
        }
    EXPECT_TRUE(delegate.noRepeatedProfileName(first.toUpper()));
}

TEST_F(Profiles, TheSelectedOneOpensAtStartUpOrTheLast)
{
    for (const QString &name : {u"b"_qs, u"a"_qs})
        delegate.listPlist().setValue(name, plist::Dictionary::make());
    delegate.setterCurrentProfile(u"b"_qs);
    delegate.setterDefaultProfile();
    EXPECT_TRUE(delegate.indicator02.isAnimating() && delegate.indicator03.isAnimating());
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_FALSE(delegate.indicator02.isAnimating() || delegate.indicator03.isAnimating());
    EXPECT_TRUE(plist::readFile(quillorentLibrary::settingsPath()).dictionary == delegate.configPlist());
    EXPECT_EQ(delegate.loadProfiles(), u"b"_qs) << "both files were written";

    delegate.configPlist().dictionary(u"resources"_qs).setValue(u"selectedprofile"_qs, u"gone"_qs);
    EXPECT_EQ(delegate.loadProfiles(), u"a"_qs) << "the last one in the file's order";
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), u"a"_qs);
    EXPECT_EQ(delegate.profileCombo01.titles(), (QStringList{first, u"b"_qs, u"a"_qs}));

    delegate.profileButton02Action();
    EXPECT_EQ(delegate.currentProfile(), u"a"_qs);
    delegate.setterCurrentProfile(u"b"_qs);
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), u"b"_qs);
}

TEST_F(Profiles, WhatCanNotBeSavedIsToldAndTheOldFilesStay)
{
    const std::filesystem::path config = program.folder() / "config";
    const FullDisk disk(config);
    if (!disk.isThere()) GTEST_SKIP() << "file systems can't be mounted here, the disk was not full";
    const QStringList both{quillorentLibrary::profilesPath(), quillorentLibrary::settingsPath()};
    const TreeSnapshot before = snapshotTree(config);
    delegate.configPlist().dictionary(u"resources"_qs).setSwitch(u"autosave"_qs, true);
    delegate.addFolders({QString(10'000, u'x')});
    delegate.configPlist().setValue(u"new"_qs, u"");
    struct Save {
        std::function<void(C &)> action;
        QStringList told;
    };
    for (const Save &save : {Save{&C::profileButton01Action, {both[0]}},
                             Save{&C::saveSettings1Action, {both[1]}}, Save{&C::setterDefaultProfile, both},
                             Save{[](C &c) {
                                      c.profileButton01Action();
                                      c.saveSettings1Action();
                                  },
                                  both},
                             Save{&C::applicationWillTerminate, {}}}) {
        told.clear();
        save.action(delegate);
        ASSERT_TRUE(waitForThreads(60s));
        for (const QString &path : both)
            EXPECT_EQ(told.join(u' ').count(path), save.told.count(path)) << told.join(u' ').toStdString();
        EXPECT_EQ(treeDifference(before, snapshotTree(config), {.root = false}), "");
    }
}
