#include "ArchiveWriter.h"
#include "Commands.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::size_t entriesIn(const fs::path &folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

} // namespace

TEST(CommandLine, refusesWhatItDoesNotKnow)
{
    const CommandResult help = rar({"-h"});
    EXPECT_NE(help.status, 0);
    EXPECT_TRUE(help.errors.starts_with("\nERROR: Unknown option: h\n")) << help.errors;
    EXPECT_NE(help.errors.find("-idq"), std::string::npos);
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {""},
                                                         {"a"},
                                                         {"a", "x.rar"},
                                                         {"b", "x.rar", "y"},
                                                         {"t"},
                                                         {"t", "x.rar", "y"},
                                                         {"x", "x.rar", "y", "z"},
                                                         {"a", "-v", "x.rar", "y"},
                                                         {"a", "-v0", "x.rar", "y"},
                                                         {"a", "-v1k", "x.rar", "y"},
                                                         {"a", "-v-1", "x.rar", "y"},
                                                         {"a", "-m3", "x.rar", "y"}};
    TemporaryFolder temporary;
    for (const std::vector<std::string> &arguments : wrong) {
        const CommandResult result =
            rar(arguments, {.folder = temporary.path(), .environment = {}, .input = {}});
        EXPECT_NE(result.status, 0);
        EXPECT_TRUE(result.errors.starts_with("\nERROR: ")) << result.errors;
        EXPECT_EQ(entriesIn(temporary.path()), 0u);
    }
}

TEST(CommandLine, namesInTheArchive)
{
    TemporaryFolder temporary;
    writeFile(temporary / "a/b/file", "1");
    const CommandOptions inside{.folder = temporary / "a", .environment = {}, .input = {}};
    const std::string absolute = (temporary / "a/b/file").relative_path();
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{temporary / "a/b/file"}, absolute + "\n"},
        {{"b/file"}, "b/file\n"},
        {{"./b//file"}, "b/file\n"},
        {{"../a/b/file"}, "a/b/file\n"},
        {{"b/"}, "b/file\nb\n"},
        {{"-ep", "b/file"}, "file\n"},
        {{"-ep", temporary / "a/b/file"}, "file\n"},
        {{"b/file", "", "b/file"}, "b/file\nb/file\n"}};
    for (const auto &[arguments, names] : cases) {
        std::vector<std::string> all = {"", "a", "-m0", "-idq", "../x.rar"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        ASSERT_EQ(rar(all, inside).errors, "");
        EXPECT_EQ(runCommand({"bsdtar", "-tf", temporary / "x.rar"}).output, names);
    }
}

TEST(CommandLine, timeOfTheNewestEntry)
{
    TemporaryFolder temporary;
    for (const std::int64_t seconds : {1'000'000'000, 1'200'000'000, 1'100'000'000}) {
        const fs::path file = temporary / "source" / std::to_string(seconds);
        writeFile(file, "dated");
        const timespec times[2] = {{seconds, 7}, {seconds, 7}};
        ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    }
    ASSERT_EQ(rar({"a", "-tl", "-t", temporary / "a.rar", temporary / "source"}).errors, "");
    ASSERT_EQ(rar({"a", "", "-t", temporary / "b.rar", temporary / "source"}).errors, "");
    ASSERT_EQ(rar({"a", "-tl", "-v1", temporary / "set.rar", "-r", QUILLORENT_RAR, "-m0", "-v500"}).errors,
              "");
    const TreeSnapshot tree = snapshotTree(temporary.path());
    EXPECT_EQ(tree.at("a.rar").seconds, 1'200'000'000);
    EXPECT_EQ(tree.at("a.rar").nanoseconds, 7);
    EXPECT_GT(tree.at("b.rar").seconds, 1'500'000'000);
    ASSERT_TRUE(tree.contains("set.part1.rar") || tree.contains("set.part01.rar"));
    const auto program = fs::last_write_time(QUILLORENT_RAR);
    for (const fs::path &volume : volumesOf(temporary / "set.rar"))
        EXPECT_EQ(fs::last_write_time(volume), program);
}

TEST(CommandLine, missingSourcesLeaveNoArchiveAndTheOldOneInPlace)
{
    TemporaryFolder temporary;
    writeFile(temporary / "a.rar", "the old one");
    writeFile(temporary / "there", "1");
    const CommandResult result = rar({"a", "-r", "-ol", "-o+", "-m0", "-t", "-idq", temporary / "a.rar",
                                      temporary / "one", temporary / "there", temporary / "two"});
    EXPECT_NE(result.status, 0);
    EXPECT_EQ(result.errors, "\nCannot open " + (temporary / "one").string() +
                                 ": No such file or directory\n" + "\nCannot open " +
                                 (temporary / "two").string() + ": No such file or directory\n");
    EXPECT_EQ(readFile(temporary / "a.rar"), "the old one");
    EXPECT_EQ(entriesIn(temporary.path()), 2u);

    const CommandResult nowhere = rar({"a", temporary / "no folder/a.rar", temporary / "there"});
    EXPECT_NE(nowhere.status, 0);
    EXPECT_NE(nowhere.errors.find("No such file or directory"), std::string::npos);
}

// In a process of its own, which stops being root where it was: root can read every file.
TEST(CommandLineDeathTest, everyUnreadableFileIsNamed)
{
    TemporaryFolder temporary;
    for (const char *name : {"letter", "secret", "hidden/deeper"})
        writeFile(temporary / "source" / name, name);
    fs::permissions(temporary / "source/secret", fs::perms::none);
    fs::permissions(temporary / "source/hidden", fs::perms::none);
    fs::permissions(temporary.path(), fs::perms::all);
    fs::permissions(temporary / "source", fs::perms::all);

    const auto archiveAsNobody = [&] {
        constexpr unsigned nobody = 65534;
        if (getuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(1);
        archiver::Arguments arguments;
        arguments.command = archiver::Arguments::Command::Add;
        arguments.archive = temporary / "a.rar";
        arguments.names = {temporary / "source"};
        archiver::Diagnostics diagnostics;
        archiver::runCommand(arguments, diagnostics);
        _exit(diagnostics.silent() ? 0 : 3);
    };
    EXPECT_EXIT(
        archiveAsNobody(), testing::ExitedWithCode(3),
        "Cannot open .*source/hidden: Permission denied\n\nCannot open .*source/secret: Permission denied");
    EXPECT_FALSE(fs::exists(temporary / "a.rar")) << "an archive without them looks like a whole one";
}

TEST(CommandLine, noConfigurationIsRead)
{
    TemporaryFolder temporary;
    writeFile(temporary / ".rarrc", "switches=-idp -ep -x*\n");
    writeFile(temporary / "source/file", "1");
    const CommandOptions options{
        .folder = temporary.path(),
        .environment = {{"HOME", temporary.path()}, {"RAR", "-x*"}, {"RARINISWITCHES", "-x*"}},
        .input = {}};
    EXPECT_EQ(rar({"a", "a.rar", "source"}, options).errors, "");
    EXPECT_EQ(runCommand({"bsdtar", "-tf", temporary / "a.rar"}).output, "source/file\nsource\n");
}

TEST(CommandLine, aFullDiskIsReportedAndCleanedUp)
{
    TemporaryFolder temporary;
    writeFile(temporary / "source/file", randomBytes(3'000'000));
    ASSERT_EQ(addTree(temporary / "whole.rar", temporary / "source").errors, "");
    const auto limited = [](std::vector<std::string> arguments) {
        // Beyond the limit writing fails, as on a full disk: the signal that would come with it is ignored.
        arguments.insert(arguments.begin(),
                         {"sh", "-c", "trap '' XFSZ; ulimit -f 1000; exec \"$@\"", "sh", QUILLORENT_RAR});
        return runCommand(arguments);
    };
    const CommandResult added = limited({"a", "-m0", "-t", temporary / "a.rar", temporary / "source"});
    EXPECT_NE(added.status, 0);
    EXPECT_EQ(added.errors, "\nCannot write " + (temporary / "a.rar").string() + ": File too large\n");
    const CommandResult extracted = limited({"e", temporary / "whole.rar", temporary / "out"});
    EXPECT_NE(extracted.status, 0);
    EXPECT_NE(extracted.errors.find("file: File too large\n"), std::string::npos) << extracted.errors;
    EXPECT_EQ(entriesIn(temporary.path()), 3u);
    EXPECT_TRUE(fs::is_empty(temporary / "out"));
}

TEST(CommandLine, aFileThatShrinksIsReported)
{
    TemporaryFolder temporary;
    writeFile(temporary / "file", base64Text(1'000'000));
    for (const auto packing :
         {archiver::ArchiveWriter::Packing::Store, archiver::ArchiveWriter::Packing::Pack}) {
        std::string messages;
        archiver::Diagnostics diagnostics(messages);
        archiver::OutputVolumes output(temporary / "a.rar", std::nullopt, diagnostics);
        archiver::ArchiveWriter writer(output, packing, diagnostics);
        const int file = open((temporary / "file").c_str(), O_RDONLY);
        struct stat status {};
        ASSERT_EQ(fstat(file, &status), 0);
        status.st_size += 1; // what it had a moment ago
        EXPECT_TRUE(output.begin() && writer.addFile(file, status, "file", "PATH/file"));
        close(file);
        EXPECT_EQ(messages, "\nPATH/file became shorter while it was read\n");
    }
    EXPECT_EQ(entriesIn(temporary.path()), 1u);
}

TEST(CommandLine, terminationLeavesNothingUnfinished)
{
    TemporaryFolder temporary;
    fs::create_directory(temporary / "to");
    writeFile(temporary / "endless", "");
    fs::resize_file(temporary / "endless", 1ull << 36); // far more than is written before the signal
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const pid_t child = fork();
        if (child == 0) {
            const std::string archive = temporary / "to/a.rar";
            const std::string source = temporary / "endless";
            execl(QUILLORENT_RAR, "rar", "a", "-m0", "-v100000", archive.c_str(), source.c_str(), nullptr);
            _exit(127);
        }
        while (entriesIn(temporary / "to") < 2)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        kill(child, signal);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
        EXPECT_EQ(entriesIn(temporary / "to"), 0u);
    }
}
