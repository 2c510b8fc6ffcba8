#include "TestProgram.h"
#include "settings/Store.h"

#include <gtest/gtest.h>

TEST(StartUp, DoesNothingWithDamagedFilesButSay)
{
    TestProgram program;
    const QString files[] = {quillorentLibrary::settingsPath(), quillorentLibrary::profilesPath()};
    for (const QString &file : files)
        writeFile(file.toStdString(), "<plist>half");
    QuillorentAppDelegate &delegate = program.delegate();
    delegate.applicationDidFinishLaunching();
    for (const QString &file : files)
        EXPECT_TRUE(delegate.settingsText01.text().contains(file)) << qPrintable(file);
    EXPECT_EQ(delegate.settingsPanel01.place(), outlets::Panel::Place::Window);
    EXPECT_FALSE(delegate.checkBox04.isOn());

    // Every control still works, and none of it reaches the files.
    delegate.addFolders({u"/a"_s});
    delegate.prefStepper01Action(u"1"_s);
    delegate.profileButton02Action();
    delegate.setterDefaultProfile();
    delegate.profileButton04Action();
    EXPECT_EQ(delegate.profilePanel02.place(), outlets::Panel::Place::Hidden);
    EXPECT_TRUE(delegate.settingsText01.text().contains(u"no profiles"));
    delegate.applicationWillTerminate();
    for (const QString &file : files)
        EXPECT_EQ(readFile(file.toStdString()), "<plist>half");
}

TEST(Quitting, SavesWhatIsChangedWhereTheSettingsSaySo)
{
    const std::string other = "<key>Other</key><dict/>";
    for (const bool autosave : {true, false})
        for (const bool isChanged : {true, false}) {
            TestProgram program;
            program.start();
            QuillorentAppDelegate &delegate = program.delegate();
            delegate.configPlist().dictionary(u"resources"_s).setSwitch(u"autosave"_s, autosave);
            delegate.saveSettings1Action();
            ASSERT_TRUE(waitForThreads(60s));
            // Another window has made a profile, and changed this one.
            const std::filesystem::path file = quillorentLibrary::profilesPath().toStdString();
            std::string text = readFile(file);
            text.replace(text.find("10000"), 5, "20000");
            writeFile(file, text.insert(text.rfind("</dict>"), other));
            if (isChanged) delegate.addFolders({u"/remember/me"_s});
            delegate.applicationWillTerminate();

            const bool isSaved = autosave && isChanged;
            EXPECT_EQ(readFile(isSaved ? file.string() + ".kept" : file.string()), text);
            EXPECT_EQ(quillorentLibrary::readProfiles() == delegate.listPlist(), isSaved);
            EXPECT_TRUE(quillorentLibrary::readProfiles().contains(u"Other"_s));
        }
}

TEST(Panel, WaitsOnAnotherThreadAndWakesForQuitting)
{
    TestProgram program;
    outlets::Panel &panel = program.delegate().progressPanel01;
    const std::function<void()> endings[] = {[&] { panel.close(); }, [&] { program.delegate().endRuns(); }};
    for (const auto &end : endings) {
        detachThread(u"asks"_s, [&] { panel.runModal(); });
        ASSERT_TRUE(TestProgram::waitUntil([&] { return panel.place() == outlets::Panel::Place::Sheet; }));
        EXPECT_FALSE(waitForThreads(20ms));
        end();
        EXPECT_TRUE(waitForThreads(30s));
    }
    panel.runModal(); // and nobody waits from now on
}
