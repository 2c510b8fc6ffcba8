#include "Rar.h"
#include "StagedFile.h"

#include <csignal>
#include <regex>

namespace {

/// What is under the archive's names after a run that did not come to its end.
class Killed : public ArchiverTest {
protected:
    CommandResult pack(const std::string &content, const std::string &volume, Environment environment = {})
    {
        writeFile(temporary / "file", content);
        return rar({"a", "-m0", "-t", volume, "-ep", archive, temporary / "file"},
                   {.environment = std::move(environment)});
    }

    /// What a person finds who takes the first volume, or else the plain archive.
    std::string unpacked()
    {
        fs::remove_all(out);
        CommandResult result;
        for (int attempt = 0; attempt < 2; ++attempt) { // the first one may give it other names
            result = rar({"e", volumesOf(archive).front(), out});
            if (result.errors.empty()) return readFile(out / "file");
        }
        return result.errors;
    }

    static std::string killAtChange(int number)
    {
        return std::string(QUILLORENT_RAR) + "\na\nchange " + std::to_string(number) + "\nkill\n9";
    }

    const fs::path folder = temporary / "folder";
    const fs::path archive = folder / "a.rar";
};

} // namespace

TEST_F(Killed, anywhereItLeavesTheFormerSetOrTheNewOne)
{
    const std::string former = randomBytes(2500, 1);
    const std::string latter = randomBytes(1500, 2);
    const std::vector<std::pair<std::string, std::string>> changes = {
        {"", ""}, {"", "-v1"}, {"-v1", "-v1"}, {"-v1", "-v3"}, {"-v3", "-v1"}};
    for (const auto &[before, after] : changes)
        for (Environment environment : fileSystems) {
            int call = 0;
            for (int status = 1; status != 0;) {
                SCOPED_TRACE(before + " " + after + ", call " + std::to_string(++call));
                fs::remove_all(folder);
                fs::create_directory(folder);
                for (const char *other : {"a.part1.rar.txt", "other.part1.rar", "apart1.rar"})
                    writeFile(folder / other, "somebody's");
                ASSERT_EQ(pack(former, before).errors, "");
                environment["QUILLORENT_TRIPWIRE"] = killAtChange(call);
                status = pack(latter, after, environment).status;
                const std::string found = unpacked();
                ASSERT_TRUE(found == latter || (found == former && status != 0)) << found.substr(0, 200);
                ASSERT_EQ(pack(latter, after).errors, "");
                ASSERT_TRUE(unpacked() == latter);
                ASSERT_EQ(entriesIn(folder), volumesOf(archive).size() + 3); // nothing hidden
            }
            EXPECT_GT(call, after.empty() ? 3 : 10);
        }
}

TEST_F(Killed, byAPowerCutEachStepIsOnTheDiskBeforeTheNext)
{
    const std::vector<std::pair<std::string, std::string>> steps = {
        {"", "snD"}, {"", "snnnD"}, {"-v1", "s{4}n{4}sDnDn{4}DgDgD"}, {"-v1", "s{4}n{4}sDnDn{4}DgD"}};
    fs::create_directory(folder);
    for (const auto &[volume, pattern] : steps) {
        fs::remove(temporary / "log");
        const Environment logged = withTripwire({{"QUILLORENT_TRIPWIRE_LOG", temporary / "log"}});
        ASSERT_EQ(pack(randomBytes(3000), volume, logged).errors, "");
        const std::string calls = stepsOf(temporary / "log", folder);
        EXPECT_TRUE(std::regex_match(calls, std::regex(pattern))) << calls << " is not " << pattern;
    }
}

TEST_F(Killed, aSetThatWasPutBackMeanwhileIsNotMixedWithTheNewOne)
{
    const std::string former = randomBytes(3000, 1);
    fs::create_directory(folder);
    ASSERT_EQ(pack(former, "-v1").errors, "");
    fs::copy(folder, temporary / "kept");
    const Environment middleOfNaming = withTripwire({{"QUILLORENT_TRIPWIRE", killAtChange(15)}});
    ASSERT_NE(pack(randomBytes(3000, 2), "-v1", middleOfNaming).status, 0);
    for (const auto &kept : fs::directory_iterator(temporary / "kept")) {
        fs::remove(folder / kept.path().filename());
        fs::rename(kept.path(), folder / kept.path().filename());
    }
    EXPECT_TRUE(unpacked() == former);
}

TEST_F(Killed, whatWaitsUnderItsNamesIsNeitherOpenedNorLost)
{
    const fs::path other = temporary / "other";
    writeFile(other, "somebody's");
    fs::create_directory(folder);
    const base::PassingNames names(".rar", "a");
    ASSERT_EQ(mkfifo((folder / names.name(0)).c_str(), 0600), 0);
    fs::create_symlink(other, folder / names.name(1));
    fs::create_hard_link(other, folder / names.name(2));
    fs::create_symlink(other, folder / names.special("set"));
    for (const Environment &environment : fileSystems) {
        for (const std::string making : {"mkfifo", "ln -s ../other"}) {
            fs::remove(archive);
            ASSERT_EQ(runCommand({"sh", "-c", making + " folder/a.rar"}, {.folder = temporary.path()}).status,
                      0);
            EXPECT_EQ(pack("content", "", environment).errors, "");
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(archive)));
            EXPECT_EQ(unpacked(), "content");
        }
        EXPECT_EQ(readFile(other), "somebody's");
        EXPECT_EQ(entriesIn(folder), 5u);
    }
}

TEST_F(Killed, byASignalItLeavesNothingUnfinishedOrTheNextRunRemovesIt)
{
    writeFile(temporary / "small", "");
    writeFile(temporary / "endless", "");
    fs::resize_file(temporary / "endless", 1ull << 36); // far more than is written before the signal
    const std::string script =
        "env --default-signal \"$@\" & for i in $(seq 999); do "
        "grep -q 'wchar: 1' /proc/$!/io && break; sleep .01; done; kill -$0 $!; wait $!";
    for (const Environment &environment : fileSystems)
        for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
            fs::create_directory(folder);
            const CommandResult ended =
                runCommand({"sh", "-c", script, std::to_string(signal), QUILLORENT_RAR, "a", "-m0",
                            "-v100000", archive, temporary / "endless"},
                           {.environment = environment});
            EXPECT_EQ(ended.status, 128 + signal) << ended.errors;
            EXPECT_EQ(fs::is_empty(folder), environment == fileSystems[0] || signal != SIGKILL);
            EXPECT_EQ(rar({"a", archive, temporary / "small"}).errors, "");
            EXPECT_EQ(entriesIn(folder), 1u);
            fs::remove_all(folder);
        }
}
