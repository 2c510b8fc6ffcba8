#include "Command.h"
#include "Credentials.h"
#include "Stub.h"
#include "TestProgram.h"
#include "Tree.h"

#include <gtest/gtest.h>
#include <set>

namespace fs = std::filesystem;

namespace {

const std::string libexec = QUILLORENT_LIBEXEC;

/// The names in a folder.
std::set<std::string> namesIn(const fs::path &folder)
{
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

void run(const std::vector<std::string> &arguments)
{
    const CommandResult result = runCommand(arguments);
    ASSERT_EQ(result.status, 0) << arguments.front() << ": " << result.output << result.errors;
}

/// Opens a final archive (or the first of its volumes) as someone would who never had this program.
void openWithStockTools(const fs::path &archive, const fs::path &into,
                        const std::vector<std::string> &decrypt)
{
    fs::create_directories(into / "outer");
    run({"unar", "-quiet", "-no-directory", "-output-directory", (into / "outer").string(),
         archive.string()});
    ASSERT_EQ(namesIn(into / "outer").size(), 1U);
    const fs::path encrypted = into / "outer" / *namesIn(into / "outer").begin();

    std::vector<std::string> command{"openssl"};
    command.insert(command.end(), decrypt.begin(), decrypt.end());
    command.insert(command.end(), {"-in", encrypted.string(), "-out", (into / "inner.rar").string()});
    run(command);
    fs::create_directories(into / "tree");
    run({"bsdtar", "-xpf", (into / "inner.rar").string(), "-C", (into / "tree").string()});
}

const std::vector<std::string> byPassword{"aes-256-cbc", "-d",  "-a",     "-pbkdf2", "-iter",
                                          "600000",      "-md", "sha256", "-pass",   "pass:correct horse"};

/// What the reader at hand can't give back: it drops the fractions of seconds.
const TreeComparison stockReader{.nanoseconds = false, .linkTimes = false};

} // namespace

TEST(BackupRun, OpensAgainWithStockToolsOnly)
{
    struct Case {
        const char *name;
        bool split;
        std::size_t size;
        const char *archive;
    };
    for (const Case &c : {Case{"whole", false, 100'000, "tree.rar.aes.rar"},
                          Case{"split", true, 2'000'000, "tree.rar.aes.part01.rar"}}) {
        SCOPED_TRACE(c.name);
        TestProgram program;
        program.start();
        const fs::path tree = program.folder() / "tree";
        fs::create_directories(tree);
        writeFile(tree / "a file", randomBytes(c.size));
        writeFile(tree / "deeper/line\nbreak", "x");
        fs::create_directories(tree / "empty folder");
        fs::create_symlink("/nowhere/at all", tree / "dangling");
        program.setUpBackup({toQString(tree)});
        program.delegate().checkBox04.setOn(c.split);
        program.delegate().prefStepper01Action(u"200"_qs);
        program.backUp();

        EXPECT_EQ(program.delegate().consoleTextView01.text(), QString());
        EXPECT_EQ(program.delegate().foldersDone(), 1);
        const fs::path archives = program.folder() / "archives";
        EXPECT_EQ(namesIn(archives).size() > 2, c.split);
        ASSERT_TRUE(namesIn(archives).contains(c.archive)) << *namesIn(archives).begin();
        for (const std::string &name : namesIn(archives))
            EXPECT_EQ(fs::status(archives / name).permissions(), fs::perms(0600)) << name;

        const fs::path opened = program.folder() / "opened";
        openWithStockTools(archives / c.archive, opened, byPassword);
        EXPECT_EQ(treeDifference(tree, opened / "tree" / tree.relative_path(), stockReader), "");
    }
}

TEST(BackupRun, BringsBackOddTrees)
{
    TestProgram program;
    program.start();
    const fs::path tree = program.folder() / "odd tree";
    makeSampleTree(tree);
    program.setUpBackup({toQString(tree)});
    program.backUp();
    ASSERT_EQ(program.delegate().consoleTextView01.text(), QString());

    const fs::path opened = program.folder() / "opened";
    openWithStockTools(program.folder() / "archives/odd tree.rar.aes.rar", opened, byPassword);
    // Stock readers know nothing of names that are not UTF-8, so the last step is our archiver's.
    fs::create_directories(opened / "ours");
    run({libexec + "/rar", "x", "-o+", "-idq", (opened / "inner.rar").string(), (opened / "ours").string()});
    EXPECT_EQ(treeDifference(tree, opened / "ours" / tree.relative_path()), "");
}

TEST(BackupRun, EncryptsForACertificate)
{
    TestProgram program;
    program.start();
    writeFile(program.folder() / "docs/letter", "for your eyes only");
    const auto [certificate, key] = makeCredentials(program.folder(), "anna");

    program.setUpBackup({program.path("docs")});
    program.delegate().certFile01.setText(toQString(certificate));
    program.delegate().passCombo01.selectIndex(PasswordTab::Certificate);
    program.backUp();
    EXPECT_EQ(program.delegate().consoleTextView01.text(), QString());

    const fs::path opened = program.folder() / "opened";
    openWithStockTools(
        program.folder() / "archives/docs.rar.smime.rar", opened,
        {"smime", "-decrypt", "-binary", "-inkey", key.string(), "-recip", certificate.string()});
    EXPECT_EQ(readFile(opened / "tree" / (program.folder() / "docs/letter").relative_path()),
              "for your eyes only");
}

TEST(BackupRun, RunsItsToolsWithExactlyTheseArguments)
{
    TestProgram program;
    program.start();
    const Stub rar(program.folder() / "tools", "rar", "relay " + libexec + "/rar");
    const Stub openssl(program.folder() / "tools", "openssl", "relay " + libexec + "/openssl");
    program.useTool(u"RAR"_qs, rar.path());
    program.useTool(u"OpenSSL"_qs, openssl.path());
    writeFile(program.folder() / "my docs/file", "x");
    program.setUpBackup({program.path("my docs")}, u"pass word"_qs);
    program.backUp();
    program.delegate().checkBox04.setOn(false);
    program.delegate().checkBox05.setOn(false);
    program.delegate().currentRecord().setValue(u"symencryption"_qs, u"OpenSSL-3D");
    program.backUp();
    EXPECT_EQ(program.delegate().consoleTextView01.text(), QString());

    using Arguments = std::vector<std::string>;
    const std::string source = (program.folder() / "my docs").string();
    const std::string stored = (program.folder() / "archives/my docs.rar").string();
    EXPECT_EQ(
        rar.recordedArguments(),
        (std::vector<Arguments>{
            {"a", "-r", "-ol", "-o+", "-m0", "-tl", "-t", "-idq", stored, source},
            {"a", "-m5", "-o+", "-t", "-idq", "-tl", "-v10000", "-ep", stored + ".aes.rar", stored + ".aes"},
            {"a", "-r", "-ol", "-o+", "-m0", "", "-t", "-idq", stored, source},
            {"a", "-m5", "-o+", "-t", "-idq", "", "", "-ep", stored + ".3d.rar", stored + ".3d"}}));
    EXPECT_EQ(openssl.recordedArguments(),
              (std::vector<Arguments>{{"aes-256-cbc", "-a", "-salt", "-in", stored, "-out", stored + ".aes",
                                       "-pass", "pass:pass word"},
                                      {"des-ede3-cbc", "-a", "-salt", "-in", stored, "-out", stored + ".3d",
                                       "-pass", "pass:pass word"}}));
}

TEST(BackupRun, TellsFoldersOfOneNameApart)
{
    TestProgram program;
    program.start();
    writeFile(program.folder() / "one/docs/file", "first");
    writeFile(program.folder() / "two/docs/file", "second");
    writeFile(program.folder() / "single", "third");
    program.setUpBackup({program.path("one/docs"), program.path("two/docs"), program.path("single")});
    program.delegate().checkBox04.setOn(false);
    program.backUp();
    EXPECT_EQ(program.delegate().foldersDone(), 3);
    EXPECT_EQ(program.delegate().sizeDone(), program.delegate().sizeToDo());
    EXPECT_EQ(namesIn(program.folder() / "archives"),
              (std::set<std::string>{"docs-0.rar.aes.rar", "docs-1.rar.aes.rar", "single.rar.aes.rar"}));
}

TEST(BackupRun, SkipsWhatIsGoneAndSaysSo)
{
    TestProgram program;
    program.start();
    writeFile(program.folder() / "here/file", "x");
    program.setUpBackup({program.path("gone"), program.path("here")});
    program.backUp();
    EXPECT_EQ(program.delegate().foldersToDo(), 2);
    EXPECT_EQ(program.delegate().foldersDone(), 1);
    EXPECT_EQ(program.delegate().consoleTextView01.text(), QString());
    EXPECT_TRUE(program.delegate().outputText01.text().contains(program.path("gone")));
}

TEST(BackupRun, NeverHasMoreWorkersThanProcessors)
{
    TestProgram program;
    program.start();
    const qsizetype processors = sysconf(_SC_NPROCESSORS_CONF);
    QStringList folders;
    for (int i = 0; i < 3 * processors + 2; ++i) {
        writeFile(program.folder() / ("folder" + std::to_string(i)) / "file", "x");
        folders.append(program.path("folder" + std::to_string(i)));
    }
    program.setUpBackup(folders);
    qsizetype most = 0;
    program.delegate().buttonLaunch01b();
    ASSERT_TRUE(TestProgram::waitUntil([&] {
        most = std::max(most, program.delegate().threadsRunning().size());
        return !program.delegate().isRunActive();
    }));
    EXPECT_EQ(program.delegate().foldersDone(), folders.size());
    EXPECT_LE(most, processors);
    EXPECT_GT(most, 0);
}
