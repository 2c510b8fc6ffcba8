#include "EngineRun.h"
#include "SecretService.h"
#include "TestProgram.h"

#include "app/folders/Decisions.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keychain/Keychain.h"
#include "runs/Run.h"
#include "tools/ToolRun.h"

#include <csignal>
#include <thread>

namespace fs = std::filesystem;

namespace {

/// The program with a profile of one folder; the engines bring back what it makes.
class BackupStart : public EngineTest {
protected:
    BackupStart()
    {
        program.start();
        program.setUpBackup({toQString(docs)});
        delegate.checkBox04.setOn(false);
        keyring.start();
        setKeychain(nullptr);
        EMGenericKeychainItem::addGenericKeychainItemForService(u"com.brolvanek.Quillorent.encrypt"_s,
                                                                u"anna"_s, u"correct horse"_s);
    }

    [[nodiscard]] std::string made() const { return namesIn(program.folder() / "archives"); }

    void fetchFromKeychain(const QString &account)
    {
        delegate.passCombo01.selectIndex(PasswordTab::KeychainPassword);
        delegate.keychainUser.setText(account);
        delegate.passButton01Action();
    }

    void switchProfile()
    {
        delegate.listPlist().setValue(u"other"_s, delegate.defaultProfile());
        delegate.setterCurrentProfile(u"other"_s);
    }

    /// A tool that waits until `go` is there, once it has said that it runs.
    [[nodiscard]] QString gate(const QString &tool) const
    {
        return writeScript(folder / "gate", ": > " + here.string() + "; until [ -e " + go.string() +
                                                " ]; do sleep 0.01; done; exec " + tool.toStdString() +
                                                " \"$@\"");
    }

    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();
    SecretService keyring;
    const fs::path docs = sample("docs", "content");
    const fs::path here = folder / "here";
    const fs::path go = folder / "go";
};

} // namespace

// What is clicked, typed or answered while a stage runs comes too late for this run.
TEST_F(BackupStart, NothingReachesARunThatHasBegun)
{
    QStringList sources{toQString(docs)};
    Paths made{program.folder() / "archives/docs.rar.aes.rar"};
    for (int i = 0; i < workerLimit(); ++i) {
        const std::string name = "more" + std::to_string(i);
        sources.append(toQString(sample(name)));
        made.push_back(program.folder() / "archives" / (name + ".rar.aes.rar"));
    }
    const QString profile = delegate.currentProfile();
    for (const auto &[isFetched, tool] : {std::pair{false, realRar}, {true, realOpenSsl}}) {
        SCOPED_TRACE(tool.toStdString());
        // Where an archive is, the encoder runs before the run has begun.
        for (const fs::path &path : {here, go, out, program.folder() / "archives"})
            fs::remove_all(path);
        for (const fs::path &path : {out, program.folder() / "archives"})
            fs::create_directories(path);
        delegate.setterCurrentProfile(profile);
        delegate.currentRecord().array(u"folders"_s).clear();
        program.setUpBackup(sources);
        delegate.checkBox04.setOn(false);
        delegate.currentRecord().setValue(u"symencryption"_s, u"OpenSSL-AES");
        program.useTool(u"RAR"_s, realRar.toStdString());
        program.useTool(tool == realRar ? u"RAR"_s : u"OpenSSL"_s, gate(tool).toStdString());
        const auto fetch = [&](bool isKnown) {
            fetchFromKeychain(isKnown ? u"anna"_s : u"nobody"_s);
            return TestProgram::waitUntil([&] { return !delegate.keychainIndicator01.isAnimating(); });
        };
        ASSERT_TRUE(!isFetched || fetch(true));
        delegate.buttonLaunch01b();
        ASSERT_TRUE(TestProgram::waitUntil([&] { return fs::exists(here); }));

        ASSERT_TRUE(fetch(false)); // the answer empties the field
        delegate.secureText01a.setText({});
        program.useTool(u"RAR"_s, "/nowhere/rar");
        program.useTool(u"OpenSSL"_s, "/nowhere/openssl");
        delegate.currentRecord().setValue(u"symencryption"_s, u"OpenSSL-BF");
        delegate.prefStepper01Action(u"none"_s);
        delegate.checkBox04.setOn(true);
        delegate.currentRecord().setValue(u"path"_s, u"/nowhere");
        delegate.addFolders({u"/nowhere"_s});
        delegate.buttonLaunch01b();
        switchProfile();
        writeFile(go, "");
        program.waitForEnd();
        const QString count = QString::number(sources.size());
        EXPECT_TRUE(delegate.outputText01.text().startsWith(u"Backed up %1 of %1 "_s.arg(count)));
        extract(made);
        expectSuccess();
    }
}

TEST_F(BackupStart, AwaitsTheKeychain)
{
    for (const bool isSwitched : {true, false}) {
        keyring.freeze();
        const auto profile = delegate.currentProfile();
        fetchFromKeychain(u"anna"_s);
        delegate.buttonLaunch01b();
        EXPECT_TRUE(delegate.isRunActive());
        EXPECT_EQ(made(), "");
        if (isSwitched) switchProfile();
        keyring.thaw();
        program.waitForEnd();
        EXPECT_EQ(made(), isSwitched ? "" : "docs.rar.aes.rar");
        delegate.setterCurrentProfile(profile);
    }
    extract({program.folder() / "archives/docs.rar.aes.rar"});
    expectSuccess();

    fs::remove(program.folder() / "archives/docs.rar.aes.rar");
    fetchFromKeychain(u"anna"_s);
    delegate.keychainUser.setText(u"nobody"_s);
    delegate.buttonLaunch01b();
    ASSERT_TRUE(TestProgram::waitUntil(
        [&] { return delegate.concernsPanel01.place() != outlets::Panel::Place::Hidden; }));
    EXPECT_TRUE(delegate.concernsText01.text().contains(u"of the account \"anna\""));
    delegate.concernsPanel01Stop();
    program.waitForEnd();

    fetchFromKeychain(u"nobody"_s);
    delegate.buttonLaunch01b();
    program.waitForEnd();
    EXPECT_TRUE(program.lastWarning().contains(u"No password was fetched"))
        << qPrintable(program.lastWarning());
    EXPECT_EQ(made(), "");
}

TEST_F(BackupStart, ACancelIsNeverLost)
{
    program.useTool(u"RAR"_s, writeScript(folder / "rar", ": > " + here.string()).toStdString());
    for (int attempt = 0; attempt < 50; ++attempt) {
        delegate.buttonLaunch01();
        // A little later each time, up to where the sheet is there and the sizes are measured.
        std::this_thread::sleep_for(std::chrono::microseconds(200 * attempt));
        delegate.buttonKill01(delegate.buttonCancel01);
        program.waitForEnd();
        ASSERT_FALSE(fs::exists(here)) << attempt;
        ASSERT_TRUE(delegate.outputText01.text().startsWith(u"Cancelled"));
        ASSERT_EQ(delegate.lastRecord().outcome, Outcome::Cancelled);
        ASSERT_EQ(delegate.progressPanel01.place(), outlets::Panel::Place::Hidden);
    }
}

TEST_F(BackupStart, TellsWhichToolsOfAFailedRunStillWork)
{
    if (workerLimit() < 2) GTEST_SKIP() << "nothing runs side by side here";
    delegate.addFolders({toQString(sample("bad"))});
    const std::string pid = here.string();
    program.useTool(u"RAR"_s,
                    writeScript(folder / "rar", "case \"$*\" in *docs) echo $$ > " + pid + ".new; mv " + pid +
                                                    ".new " + pid + "; exec sleep 1000;; esac; until [ -e " +
                                                    pid + " ]; do sleep 0.01; done; echo no")
                        .toStdString());
    delegate.buttonLaunch01b();
    ASSERT_TRUE(TestProgram::waitUntil([&] { return !delegate.toolsText01.text().isEmpty(); }));
    EXPECT_EQ(delegate.toolsText01.text(), u"Still at work: docs (storing)."_s);
    EXPECT_FALSE(delegate.toolsText01.isHidden() || delegate.toolsCancel01.isHidden());
    EXPECT_EQ(delegate.progressPanel01.place(), outlets::Panel::Place::Hidden);
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Window);
    EXPECT_TRUE(delegate.isRunActive()) << "another run would write the same files";
    const int process = std::stoi(readFile(here));
    delegate.toolsCancel01Action();
    program.waitForEnd();
    EXPECT_NE(kill(process, 0), 0);
    EXPECT_EQ(toolsRunning(), 0);
    EXPECT_TRUE(delegate.toolsText01.isHidden() && delegate.toolsCancel01.isHidden());
    EXPECT_TRUE(delegate.outputText01.text().endsWith(u"RAR 1st: no"_s)) << "not \"Cancelled\"";
}

TEST_F(BackupStart, CompressesBeforeItEncryptsWhereTheProfileSaysSo)
{
    program.useTool(u"RAR"_s, writeScript(folder / "rar", "echo \"$@\"").toStdString());
    delegate.currentRecord().setValue(u"compress"_s, u"1");
    delegate.currentRecord().setValue(u"keepdate"_s, u"0");
    delegate.setterCurrentProfile(delegate.currentProfile());
    delegate.secureText01a.setText(u"correct horse"_s);
    delegate.buttonLaunch01b();
    program.waitForEnd();
    const QString said = delegate.consoleTextView01.text();
    EXPECT_TRUE(said.contains(u"a -r -ol -o+ -m3 -s  -t -idq "_s + program.path("archives") +
                              u"/docs.rar "_s + toQString(docs)))
        << qPrintable(said);
}

TEST_F(BackupStart, FollowsTheProfileAndTheSettings)
{
    using namespace quillorentLibrary;
    for (const auto &[source, method, cipher, extension] :
         {std::tuple{0, u"OpenSSL-AES"_s, std::optional(u"aes-256-cbc"_s), std::optional(u".aes"_s)},
          {-1, u"OpenSSL-BF"_s, u"bf-cbc"_s, u".bf"_s},
          {1, u"OpenSSL-3D"_s, u"des-ede3-cbc"_s, u".3d"_s},
          {2, u"OpenSSL-AES"_s, u"smime"_s, u".smime"_s},
          {0, u"unknown"_s, std::nullopt, std::nullopt}}) {
        delegate.passCombo01.selectIndex(source);
        delegate.currentRecord().setValue(u"symencryption"_s, method);
        EXPECT_EQ(decideEncryption(), cipher) << qPrintable(method);
        EXPECT_EQ(decideExtension(), extension) << qPrintable(method);
    }
}
