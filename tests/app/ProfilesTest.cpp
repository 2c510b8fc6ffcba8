// Opening and saving profiles.

#include "ProgramTest.h"
#include "Tree.h"
#include "plist/File.h"
#include "settings/Paths.h"

#include <QScopeGuard>
#include <fstream>
#include <sys/mount.h>

namespace {

class Profiles : public ProgramTest {};

} // namespace

TEST_F(Profiles, TheSelectedOneOpensAtStartUpOrTheLast)
{
    const QString first = delegate.currentProfile();
    for (const QString &name : {u"b"_s, u"a"_s})
        delegate.listPlist().setValue(name, plist::Dictionary::make());
    delegate.setterCurrentProfile(u"b"_s);
    delegate.setterDefaultProfile();
    delegate.setterDefaultProfile(); // beside the first
    EXPECT_TRUE(delegate.indicator02.isAnimating() && delegate.indicator03.isAnimating());
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_FALSE(delegate.indicator02.isAnimating() || delegate.indicator03.isAnimating());
    EXPECT_TRUE(plist::readFile(quillorentLibrary::settingsPath()).dictionary == delegate.configPlist());
    EXPECT_EQ(delegate.loadProfiles(), u"b"_s) << "both files were written";

    delegate.configPlist().dictionary(u"resources"_s).setValue(u"selectedprofile"_s, u"gone"_s);
    EXPECT_EQ(delegate.loadProfiles(), u"a"_s) << "the last one in the file's order";
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), u"a"_s);
    EXPECT_EQ(delegate.profileCombo01.titles(), (QStringList{first, u"b"_s, u"a"_s}));
}

TEST(Saving, LeavesTheOldFilesOnAFullDiskAndTellsOfBoth)
{
    TestProgram program;
    const auto config = program.folder() / "config";
    if (mount("none", config.c_str(), "tmpfs", 0, "size=256k") != 0) GTEST_SKIP() << "no disk can be mounted";
    const auto unmount = qScopeGuard([&] { umount2(config.c_str(), MNT_DETACH); });
    program.start();
    std::ofstream filler(config / "filler");
    while (filler << std::string(4096, 'x') << std::flush) {
    }
    const TreeSnapshot before = snapshotTree(config);
    QuillorentAppDelegate &delegate = program.delegate();
    delegate.addFolders({QString(10'000, u'x')});
    delegate.configPlist().setValue(u"new"_s, u"");
    QString told;
    delegate.savePanel01.observe([&] {
        if (delegate.savePanel01.place() == outlets::Panel::Place::Hidden) return;
        told += delegate.saveText01.text();
        delegate.savePanel01Close();
    });
    const auto expectOldFiles = [&](int tells) {
        ASSERT_TRUE(waitForThreads(60s));
        for (const QString &path : {quillorentLibrary::profilesPath(), quillorentLibrary::settingsPath()})
            EXPECT_EQ(told.count(path), tells) << told.toStdString();
        EXPECT_EQ(treeDifference(before, snapshotTree(config), {.root = false}), "");
    };
    delegate.profileButton01Action();
    delegate.saveSettings1Action();
    expectOldFiles(1);
    delegate.setterDefaultProfile();
    expectOldFiles(2);
    delegate.savePanel01.endWaiting(); // nobody is asked any more
    delegate.applicationWillTerminate();
    expectOldFiles(2);
}
