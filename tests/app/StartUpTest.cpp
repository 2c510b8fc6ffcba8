#include "TestProgram.h"
#include "settings/Paths.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(StartUp, GivesANewUserAProfileAndFiles)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    EXPECT_EQ(delegate.currentProfile(), u"Default profile"_qs);
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Hidden);
    EXPECT_EQ(delegate.decryptionCombo01.selectedIndex(), 4);
    EXPECT_FALSE(delegate.currentProfileTextView.isHidden());
    const plist::Dictionary made = delegate.defaultProfile();
    EXPECT_GT(made.count(), 15);
    for (const QString &key : made.keys())
        EXPECT_EQ(made.string(key), delegate.currentRecord().string(key)) << qPrintable(key);
    EXPECT_TRUE(made.array(u"folders"_qs) && made.array(u"sync"_qs));
    EXPECT_FALSE(made.array(u"sync"_qs).isSameObject(made.array(u"folders"_qs)));
    for (const char *name :
         {"com.brolvanek.Quillorent.config.plist", "com.brolvanek.Quillorent.profiles.plist"})
        EXPECT_EQ(fs::status(program.folder() / "config" / name).permissions(), fs::perms(0600)) << name;
}

TEST(StartUp, DoesNothingWithDamagedFilesButSay)
{
    TestProgram program;
    writeFile(program.folder() / "config/com.brolvanek.Quillorent.config.plist", "<plist>half");
    writeFile(program.folder() / "config/com.brolvanek.Quillorent.profiles.plist", "<plist>half");
    QuillorentAppDelegate &delegate = program.delegate();
    delegate.applicationDidFinishLaunching();
    EXPECT_FALSE(delegate.configPlist());
    EXPECT_TRUE(delegate.currentProfile().isEmpty());
    EXPECT_TRUE(delegate.profileCombo01.titles().isEmpty());
    for (const QString &path : {quillorentLibrary::settingsPath(), quillorentLibrary::profilesPath()})
        EXPECT_TRUE(delegate.consoleTextView01.text().contains(path)) << qPrintable(path);
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Window);
    EXPECT_FALSE(delegate.checkBox04.isOn());

    // Every control still works, and none of it reaches the files.
    delegate.addFolders({u"/a"_qs});
    delegate.prefStepper01Action(u"1"_qs);
    delegate.profileButton02Action();
    delegate.setterDefaultProfile();
    delegate.applicationWillTerminate();
    EXPECT_EQ(readFile(program.folder() / "config/com.brolvanek.Quillorent.profiles.plist"), "<plist>half");
}

TEST(Quitting, SavesOnlyWhereTheSettingsSaySo)
{
    for (const bool autosave : {true, false}) {
        TestProgram program;
        program.start();
        program.delegate().autosaveCheck01.setOn(autosave);
        program.delegate().autosaveCheck01Action();
        program.delegate().addFolders({u"/remember/me"_qs});
        program.delegate().applicationWillTerminate();
        const std::string saved =
            readFile(program.folder() / "config/com.brolvanek.Quillorent.profiles.plist");
        EXPECT_EQ(saved.find("/remember/me") != std::string::npos, autosave);
    }
}
