#include "Rar.h"
#include "Shim.h"
#include "Tree.h"

#include <chrono>
#include <csignal>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::size_t entriesIn(const fs::path &folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

using CommandLine = ArchiverTest;

} // namespace

TEST_F(CommandLine, refusesWhatItDoesNotKnow)
{
    const CommandResult help = rar({"-h"});
    EXPECT_NE(help.status, 0);
    EXPECT_TRUE(help.errors.starts_with("\nERROR: Unknown option: h\n")) << help.errors;
    EXPECT_NE(help.errors.find("-idq"), std::string::npos);
    for (const std::string line :
         {"", "a", "a x.rar", "b x.rar y", "t", "t x.rar y", "lb x.rar y", "x x.rar y z", "a -v x.rar y",
          "a -v0 x.rar y", "a -v1k x.rar y", "a -v-1 x.rar y", "a -m3 x.rar y"}) {
        std::istringstream words(line);
        const std::vector<std::string> arguments(std::istream_iterator<std::string>(words), {});
        const CommandResult result = rar(arguments, {.folder = temporary.path()});
        EXPECT_NE(result.status, 0) << line;
        EXPECT_TRUE(result.errors.starts_with("\nERROR: ")) << result.errors;
        EXPECT_EQ(entriesIn(temporary.path()), 0u);
    }
}

TEST_F(CommandLine, namesInTheArchive)
{
    writeFile(temporary / "a/b/file", "1");
    writeFile(temporary / "a/*", "not a wildcard");
    const std::string absolute = temporary / "a/b/file";
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{absolute}, absolute.substr(1) + "\n"},
        {{"./b//file"}, "b/file\n"},
        {{"../a/b/file"}, "a/b/file\n"},
        {{"b/"}, "b/file\nb\n"},
        {{"*"}, "*\n"},
        {{"-ep", "b/file"}, "file\n"},
        {{"-ep", absolute}, "file\n"},
        {{"b/file", "", "b/file"}, "b/file\nb/file\n"}};
    for (const auto &[arguments, names] : cases) {
        std::vector<std::string> all = {"", "a", "-m0", "-idq", "../a.rar"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        ASSERT_EQ(rar(all, {.folder = temporary / "a"}).errors, "");
        EXPECT_EQ(runCommand({"bsdtar", "-tf", archive}).output, names);
    }
}

TEST_F(CommandLine, listsTheNameOfEachEntryOnce)
{
    writeFile(source / "a", base64Text(3000));
    writeFile(source / "caf\xE9\t*", base64Text(3000));
    fs::create_symlink("nowhere", source / "link");
    ASSERT_EQ(rar({"a", "-ol", "-m0", "-v1", "../a.rar", "../source"}, {.folder = source}).errors, "");
    const std::vector<fs::path> volumes = volumesOf(archive);
    ASSERT_GT(volumes.size(), 5u);
    const std::string names = "source/a\nsource/caf\xE9\t*\nsource/link\nsource\n";
    const CommandResult listed = rar({"lb", "-idq", volumes.front()});
    EXPECT_EQ(listed.output, names);
    EXPECT_EQ(listed.errors, "");

    EXPECT_EQ(runCommand({"sh", "-c", "exec \"$@\" >/dev/full", "sh", QUILLORENT_RAR, "lb", volumes.front()})
                  .errors,
              "\nCannot write the list: No space left on device\n");
    fs::remove(volumes[2]);
    const CommandResult broken = rar({"lb", volumes.front()});
    EXPECT_EQ(broken.errors, "\nCannot find volume " + volumes[2].string() + "\n");
    EXPECT_EQ(broken.output, "source/a\n");
}

TEST_F(CommandLine, timeOfTheNewestEntry)
{
    for (const std::int64_t seconds : {1'000'000'000, 1'200'000'000, 1'100'000'000})
        writeDated(source / std::to_string(seconds), seconds, 7);
    ASSERT_EQ(rar({"a", "-tl", "-t", archive, source}).errors, "");
    ASSERT_EQ(rar({"a", "", "-t", temporary / "b.rar", source}).errors, "");
    ASSERT_EQ(rar({"a", "-tl", "-m0", temporary / "set.rar", QUILLORENT_RAR, "-v500"}).errors, "");
    const TreeSnapshot tree = snapshotTree(temporary.path());
    EXPECT_EQ(tree.at("a.rar").seconds, 1'200'000'000);
    EXPECT_EQ(tree.at("a.rar").nanoseconds, 7);
    EXPECT_GT(tree.at("b.rar").seconds, 1'500'000'000);
    const std::vector<fs::path> volumes = volumesOf(temporary / "set.rar");
    EXPECT_GT(volumes.size(), 1u);
    for (const fs::path &volume : volumes)
        EXPECT_EQ(fs::last_write_time(volume), fs::last_write_time(QUILLORENT_RAR));
}

TEST_F(CommandLine, sourcesThatCannotBeArchivedLeaveTheOldArchiveInPlace)
{
    writeFile(archive, "the old one");
    writeFile(temporary / "there", "1");
    ASSERT_EQ(mkfifo((temporary / "pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", temporary / "link");
    writeFile(temporary / "huge", "");
    fs::resize_file(temporary / "huge", 1ull << 42);
    const std::size_t entries = entriesIn(temporary.path());
    const std::string noFile = ", and archives hold files, folders and links only";
    const std::vector<std::pair<std::string, std::string>> sourcesAndReasons = {
        {"missing", "Cannot open missing: No such file or directory"},
        {"pipe", "Cannot add pipe: it is a named pipe" + noFile},
        {"link", "Cannot add link: it is a named pipe" + noFile},
        {"/dev/null", "Cannot add /dev/null: it is a device" + noFile},
        {"huge", "Cannot add huge: it has 4 TiB or more, and archives hold smaller files only"}};
    for (const auto &[name, reason] : sourcesAndReasons) {
        EXPECT_EQ(failure(rar({"a", "-r", "-o+", "-m0", "-t", archive, name, "there", name},
                              {.folder = temporary.path()})),
                  "\n" + reason + "\n\n" + reason + "\n");
        EXPECT_EQ(readFile(archive), "the old one");
        EXPECT_EQ(entriesIn(temporary.path()), entries);
    }
    const CommandResult nowhere = rar({"a", temporary / "no folder/a.rar", temporary / "there"});
    EXPECT_NE(nowhere.status, 0);
    EXPECT_NE(nowhere.errors.find("No such file or directory"), std::string::npos);
}

TEST_F(CommandLine, whatPermissionsForbidIsNamed)
{
    for (const char *name : {"letter", "secret", "hidden/deeper"})
        writeFile(source / name, name);
    fs::create_directory(out);
    ASSERT_EQ(addTree(temporary / "whole.rar", source / "letter").errors, "");
    fs::permissions(temporary / "whole.rar", fs::perms::all);
    for (const fs::path &closed : {source / "secret", source / "hidden"})
        fs::permissions(closed, fs::perms::none);
    fs::permissions(out, fs::perms{0555});
    std::vector<std::string> start = asOrdinaryUser(temporary.path(), QUILLORENT_RAR);
    const std::string denied = ": Permission denied\n";
    const std::vector<std::pair<std::vector<std::string>, std::string>> commandsAndMessages = {
        {{"a", archive, source},
         "\nCannot open " + (source / "hidden").string() + denied + "\nCannot open " +
             (source / "secret").string() + denied},
        {{"a", out / "a.rar", source / "letter"}, "\nCannot create " + (out / "a.rar").string() + denied},
        {{"e", temporary / "whole.rar", out},
         "\nCannot create " + (source / "letter").string().substr(1) + denied}};
    for (const auto &[arguments, message] : commandsAndMessages) {
        std::vector<std::string> command = start;
        command.insert(command.end(), arguments.begin(), arguments.end());
        EXPECT_EQ(failure(runCommand(command)), message);
        EXPECT_FALSE(fs::exists(archive)) << "an archive without them looks like a whole one";
    }
    fs::permissions(source / "hidden", fs::perms::all);
}

TEST_F(CommandLine, aFullDiskIsReportedAndCleanedUp)
{
    writeFile(source / "file", randomBytes(3'000'000));
    ASSERT_EQ(addTree(temporary / "whole.rar", source).errors, "");
    const auto limited = [](std::vector<std::string> arguments) {
        // Beyond the limit writing fails, as on a full disk: the signal that would come with it is ignored.
        arguments.insert(arguments.begin(),
                         {"sh", "-c", "trap '' XFSZ; ulimit -f 1000; exec \"$@\"", "sh", QUILLORENT_RAR});
        return runCommand(arguments);
    };
    EXPECT_EQ(failure(limited({"a", "-m0", "-t", archive, source})),
              "\nCannot write " + archive.string() + ": File too large\n");
    const CommandResult unpacked = limited({"e", temporary / "whole.rar", out});
    EXPECT_NE(unpacked.status, 0);
    EXPECT_NE(unpacked.errors.find("file: File too large\n"), std::string::npos) << unpacked.errors;
    EXPECT_EQ(entriesIn(temporary.path()), 3u);
    EXPECT_TRUE(fs::is_empty(out));
}

TEST_F(CommandLine, endingItLeavesNothingUnfinishedOrTheNextRunRemovesIt)
{
    const fs::path to = temporary / "to";
    writeFile(temporary / "small", "");
    writeFile(temporary / "endless", "");
    fs::resize_file(temporary / "endless", 1ull << 36); // far more than is written before the signal
    for (const bool nameless : {true, false})
        for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
            fs::create_directory(to);
            const pid_t child = fork();
            if (child == 0) {
                for (const auto &[name, value] : nameless ? withShim() : withoutNamelessFiles())
                    setenv(name.c_str(), value.c_str(), 1);
                execl(QUILLORENT_RAR, "rar", "a", "-m0", "-v100000", (to / "a.rar").c_str(),
                      (temporary / "endless").c_str(), nullptr);
                _exit(127);
            }
            while (readFile("/proc/" + std::to_string(child) + "/io").find("\nwchar: 1") == std::string::npos)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            kill(child, signal);
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
            EXPECT_EQ(fs::is_empty(to), nameless || signal != SIGKILL);
            EXPECT_EQ(rar({"a", to / "a.rar", temporary / "small"}).errors, "");
            EXPECT_EQ(entriesIn(to), 1u);
            fs::remove_all(to);
        }
}
