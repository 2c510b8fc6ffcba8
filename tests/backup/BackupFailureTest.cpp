#include "Stub.h"
#include "TestProgram.h"
#include "runs/Pauses.h"
#include "tools/ToolRun.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string libexec = QUILLORENT_LIBEXEC;

/// A profile with one small folder, whose tools are stubs that become the real ones until they are told
/// otherwise.
struct StubbedBackup {
    TestProgram program;
    Stub rar;
    Stub openssl;

    StubbedBackup()
        : rar(program.folder() / "tools", "rar", "relay " + libexec + "/rar")
        , openssl(program.folder() / "tools", "openssl", "relay " + libexec + "/openssl")
    {
        program.start();
        program.useTool(u"RAR"_qs, rar.path());
        program.useTool(u"OpenSSL"_qs, openssl.path());
        writeFile(program.folder() / "docs/file", "x");
        program.setUpBackup({program.path("docs")});
        program.delegate().checkBox04.setOn(false);
    }

    [[nodiscard]] bool archiveExists(const char *name) const
    {
        return fs::exists(program.folder() / "archives" / name);
    }
};

/// The console's text, with the source's path as "SOURCE".
QString console(TestProgram &program)
{
    return program.delegate().consoleTextView01.text().replace(program.path("docs"), u"SOURCE"_qs);
}

} // namespace

TEST(BackupFailure, PutsTheStageLogOnTheConsole)
{
    struct Case {
        const char *tool;
        const char *behaviour;
        QString console;
        QString reason;
    };
    const QString start = u"\nSTART processing fileSOURCE"_qs;
    const QString end = u"\n *** ERROR! *** SOURCE"_qs;
    const QString stored = u"\n   RAR 1st OK - SOURCE\n"_qs;
    for (const Case &c : {
             Case{"rar", "print warning: odd\nand more",
                  start + u"\n   RAR 1st ERROR - SOURCE\nwarning: odd\nand more"_qs + end,
                  u"warning: odd"_qs},
             Case{"rar", "complain oh", start + u"\n   RAR 1st ERROR - SOURCE\noh"_qs + end, u"oh"_qs},
             Case{"rar", "bad-bytes", start + u"\n   RAR 1st ERROR - SOURCE\n"_qs + end, u"not readable"_qs},
             Case{"openssl", "print bad magic", start + stored + u"\n   Encoder ERROR - SOURCE"_qs + end,
                  u"bad magic"_qs},
             Case{"openssl", "crash", start + stored + u"\n   Encoder ERROR - SOURCE"_qs + end,
                  u"signal 9"_qs},
         }) {
        SCOPED_TRACE(c.behaviour);
        StubbedBackup backup;
        (c.tool == std::string("rar") ? backup.rar : backup.openssl).behave(c.behaviour);
        backup.program.backUp();
        EXPECT_EQ(console(backup.program), c.console);
        EXPECT_EQ(backup.program.delegate().consolePanel01.place(), outlets::Panel::Place::Window);
        EXPECT_TRUE(backup.program.delegate().outputText01.text().contains(c.reason))
            << qPrintable(backup.program.delegate().outputText01.text());
        EXPECT_EQ(backup.program.delegate().foldersDone(), 0);
        EXPECT_FALSE(backup.archiveExists("docs.rar.aes.rar"));
        EXPECT_EQ(backup.program.delegate().outputText01.text().contains(u"not encrypted"_qs),
                  backup.archiveExists("docs.rar"));
    }
}

TEST(BackupFailure, NamesAToolThatIsMissing)
{
    for (const QString &tool : {u"RAR"_qs, u"OpenSSL"_qs}) {
        StubbedBackup backup;
        backup.program.useTool(tool, "/nowhere/tool");
        backup.program.backUp();
        EXPECT_TRUE(console(backup.program).contains(u"\"/nowhere/tool\": No such file"_qs))
            << qPrintable(console(backup.program));
        EXPECT_TRUE(console(backup.program).endsWith(u"\n *** ERROR! *** SOURCE"_qs));
    }
}

// The encrypted file is all that there is of a backup whose last stage fails.
TEST(BackupFailure, KeepsTheIntermediateOfTheFailedStage)
{
    StubbedBackup backup;
    backup.program.useTool(u"OpenSSL"_qs, libexec + "/openssl");
    backup.program.backUp();
    ASSERT_TRUE(backup.archiveExists("docs.rar.aes.rar"));

    // The second pass is refused by a folder in the place of the archive.
    fs::remove(backup.program.folder() / "archives/docs.rar.aes.rar");
    fs::create_directories(backup.program.folder() / "archives/docs.rar.aes.rar/full");
    backup.program.backUp();
    EXPECT_TRUE(console(backup.program).contains(u"\n   RAR 2nd ERROR - SOURCE"_qs))
        << qPrintable(console(backup.program));
    EXPECT_TRUE(backup.archiveExists("docs.rar.aes"));
}

TEST(BackupFailure, StopsTheOtherFolders)
{
    StubbedBackup backup;
    QStringList folders;
    for (int i = 0; i < 20; ++i) {
        writeFile(backup.program.folder() / ("more" + std::to_string(i)) / "file", "x");
        folders.append(backup.program.path("more" + std::to_string(i)));
    }
    backup.program.delegate().addFolders(folders);
    backup.rar.behave("print no");
    backup.program.backUp();
    EXPECT_EQ(backup.program.delegate().foldersDone(), 0);
    EXPECT_LT(backup.program.delegate().consoleTextView01.text().count(u"START processing"_qs), 21);
}

TEST(BackupCancel, EndsTheRunInEachStage)
{
    struct Case {
        std::string tool;
        std::string stageMark; ///< an argument that the tool gets in that stage alone
        const char *left;      ///< what a person still has of the backup
    };
    for (const auto &[tool, stageMark, left] :
         {Case{"rar", "-m0", "docs.rar.aes.rar"}, Case{"openssl", "-salt", "docs.rar.aes.rar"},
          Case{"rar", "-m5", "docs.rar.aes"}}) {
        SCOPED_TRACE(stageMark);
        StubbedBackup backup;
        backup.program.backUp();
        ASSERT_TRUE(backup.archiveExists("docs.rar.aes.rar"));

        const Stub &hanging = tool == "rar" ? backup.rar : backup.openssl;
        hanging.behave("hang-at " + stageMark + " " + libexec + "/" + tool);
        QuillorentAppDelegate &delegate = backup.program.delegate();
        delegate.buttonLaunch01b();
        const int process = hanging.processId();
        delegate.buttonKill01(delegate.buttonCancel01);
        EXPECT_EQ(delegate.buttonCancel01.title(), u"Wait..."_qs);
        backup.program.waitForEnd();

        EXPECT_EQ(delegate.progressPanel01.place(), outlets::Panel::Place::Hidden);
        EXPECT_TRUE(delegate.cancelFlag());
        EXPECT_EQ(toolsRunning(), 0);
        EXPECT_NE(kill(process, 0), 0) << "the tool is left running";
        EXPECT_TRUE(backup.archiveExists(left));

        // The next run begins anew.
        hanging.behave("relay " + libexec + "/" + tool);
        backup.program.backUp();
        EXPECT_EQ(delegate.foldersDone(), 1);
    }
}

TEST(BackupCancel, WhileMeasuringStartsNothing)
{
    StubbedBackup backup;
    QuillorentAppDelegate &delegate = backup.program.delegate();
    pauses().beforeMeasuring = std::chrono::seconds(1); // time enough to press the button
    delegate.buttonLaunch01b();
    ASSERT_TRUE(TestProgram::waitUntil(
        [&] { return delegate.progressPanel01.place() == outlets::Panel::Place::Sheet; }));
    delegate.buttonKill01(delegate.buttonCancel01);
    backup.program.waitForEnd();
    EXPECT_TRUE(fs::is_empty(backup.program.folder() / "archives"));
}

TEST(BackupQuitting, LeavesNoToolAndNoThread)
{
    StubbedBackup backup;
    backup.openssl.behave("hang");
    backup.program.delegate().buttonLaunch01b();
    const int process = backup.openssl.processId();
    backup.program.delegate().applicationWillTerminate();
    EXPECT_NE(kill(process, 0), 0);
    EXPECT_EQ(toolsRunning(), 0);
    EXPECT_FALSE(backup.program.delegate().isRunActive());
}

TEST(BackupStart, SaysWhatIsMissing)
{
    struct Case {
        const char *name;
        std::function<void(TestProgram &)> spoil;
        QString text;
    };
    for (const Case &c : {
             Case{"destination", [](TestProgram &p) { p.delegate().fileText01.setText({}); },
                  u"No destination"_qs},
             Case{"gone", [](TestProgram &p) { fs::remove_all(p.folder() / "archives"); },
                  u"does not exist"_qs},
             Case{"other", [](TestProgram &p) { p.delegate().currentRecord().remove(u"path"_qs); },
                  u"not this profile's own"_qs},
             Case{"password", [](TestProgram &p) { p.delegate().secureText01a.setText({}); },
                  u"No password"_qs},
             Case{"certificate",
                  [](TestProgram &p) { p.delegate().passCombo01.selectIndex(PasswordTab::Certificate); },
                  u"No certificate"_qs},
             Case{"folders",
                  [](TestProgram &p) { p.delegate().currentRecord().array(u"folders"_qs).clear(); },
                  u"no folders"_qs},
         }) {
        StubbedBackup backup;
        QuillorentAppDelegate &delegate = backup.program.delegate();
        c.spoil(backup.program);
        delegate.buttonLaunch01();
        const QString warning = backup.program.lastWarning();
        EXPECT_TRUE(warning.contains(c.text)) << c.name << ": " << qPrintable(warning);
        EXPECT_FALSE(delegate.isRunActive()) << c.name;
    }
}

TEST(BackupStart, AsksBeforeItWritesBesideOtherFiles)
{
    StubbedBackup backup;
    QuillorentAppDelegate &delegate = backup.program.delegate();
    writeFile(backup.program.folder() / "archives/holiday.jpg", "x");
    bool asked = false;
    bool goOn = false;
    delegate.warningPanel03.observe([&] {
        if (delegate.warningPanel03.place() == outlets::Panel::Place::Hidden) return;
        asked = true;
        EXPECT_EQ(delegate.folderNotEmptyText02.text(), backup.program.path("archives"));
        if (goOn)
            delegate.buttonLaunch01b();
        else
            delegate.buttonLaunch01Stop();
    });
    delegate.buttonLaunch01();
    EXPECT_TRUE(asked);
    EXPECT_FALSE(delegate.isRunActive());
    EXPECT_FALSE(backup.archiveExists("docs.rar.aes.rar"));

    goOn = true;
    delegate.buttonLaunch01();
    backup.program.waitForEnd();
    EXPECT_TRUE(backup.archiveExists("docs.rar.aes.rar"));
    EXPECT_TRUE(backup.archiveExists("holiday.jpg"));
}
