#include "Rar.h"
#include "Shim.h"
#include "StagedFile.h"
#include "Tree.h"

#include <csignal>
#include <regex>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// What is under the archive's names after a run that did not come to its end.
class Killed : public ArchiverTest {
protected:
    using Environment = std::map<std::string, std::string>;

    CommandResult pack(const std::string &content, const std::string &volume, Environment environment = {})
    {
        writeFile(temporary / "file", content);
        return rar({"a", "-m0", "-t", volume, "-ep", archive, temporary / "file"},
                   {.environment = std::move(environment)});
    }

    fs::path first() const
    {
        const std::vector<fs::path> volumes = volumesOf(archive);
        return volumes.empty() ? archive : volumes.front();
    }

    /// What a person finds who takes the first volume, or else the plain archive.
    std::string unpacked()
    {
        fs::remove_all(out);
        CommandResult result = rar({"e", first(), out});
        if (!result.errors.empty()) result = rar({"e", first(), out}); // it has other names now
        return result.errors.empty() ? readFile(out / "file") : result.errors;
    }

    std::size_t entries() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
    }

    const fs::path folder = temporary / "folder";
    const fs::path archive = folder / "a.rar";
    const Environment shims[2] = {withShim(), withoutNamelessFiles()};
};

} // namespace

TEST_F(Killed, anywhereItLeavesTheFormerSetOrTheNewOne)
{
    const std::string former = randomBytes(2500, 1);
    const std::string latter = randomBytes(1500, 2);
    const std::vector<std::pair<std::string, std::string>> changes = {
        {"", ""}, {"", "-v1"}, {"-v1", "-v1"}, {"-v1", "-v3"}, {"-v3", "-v1"}};
    for (const auto &[before, after] : changes)
        for (Environment shim : shims) {
            int call = 0;
            for (int status = 1; status != 0;) {
                SCOPED_TRACE(before + " " + after + ", call " + std::to_string(++call));
                fs::remove_all(folder);
                fs::create_directory(folder);
                for (const char *other : {"a.part1.rar.txt", "other.part1.rar", "apart1.rar"})
                    writeFile(folder / other, "somebody's");
                ASSERT_EQ(pack(former, before).errors, "");
                shim["SHIM_KILL_AT"] = std::to_string(call);
                status = pack(latter, after, shim).status;
                const std::string found = unpacked();
                ASSERT_TRUE(found == latter || (found == former && status != 0)) << found.substr(0, 200);
                ASSERT_EQ(pack(latter, after).errors, "");
                ASSERT_TRUE(unpacked() == latter);
                ASSERT_EQ(entries(),
                          std::max<std::size_t>(volumesOf(archive).size(), 1) + 3); // nothing hidden
            }
            EXPECT_GT(call, after.empty() ? 3 : 10);
        }
}

TEST_F(Killed, byAPowerCutEachStepIsOnTheDiskBeforeTheNext)
{
    // F and D: a file or the folder is on the disk; Link, Rename, Unlink.
    const std::vector<std::pair<std::string, std::string>> steps = {
        {"", "FLD"}, {"", "FLLRD"}, {"-v1", "F{4}L{4}FDLDR{4}DUDUD"}, {"-v1", "F{4}L{4}FDLDR{4}DUD"}};
    fs::create_directory(folder);
    for (const auto &[volume, pattern] : steps) {
        fs::remove(temporary / "log");
        ASSERT_EQ(pack(randomBytes(3000), volume, withShim({{"SHIM_LOG", temporary / "log"}})).errors, "");
        const std::string calls = readFile(temporary / "log");
        EXPECT_TRUE(std::regex_match(calls, std::regex(pattern))) << calls << " is not " << pattern;
    }
}

TEST_F(Killed, aSetThatWasPutBackMeanwhileIsNotMixedWithTheNewOne)
{
    const std::string former = randomBytes(3000, 1);
    fs::create_directory(folder);
    ASSERT_EQ(pack(former, "-v1").errors, "");
    fs::copy(folder, temporary / "kept");
    auto environment = withShim({{"SHIM_KILL_AT", "15"}}); // in the middle of the final names
    ASSERT_NE(pack(randomBytes(3000, 2), "-v1", environment).status, 0);
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
    for (const Environment &shim : shims) {
        for (const bool isPipe : {false, true}) {
            fs::remove(archive);
            if (isPipe)
                ASSERT_EQ(mkfifo(archive.c_str(), 0600), 0);
            else
                fs::create_symlink(other, archive);
            EXPECT_EQ(pack("content", "", shim).errors, "");
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(archive)));
            EXPECT_EQ(unpacked(), "content");
        }
        EXPECT_EQ(readFile(other), "somebody's");
        EXPECT_EQ(entries(), 5u);
    }
}

TEST_F(Killed, aSetOfMoreVolumesThanMayBeOpenIsWritten)
{
    const std::string content = randomBytes(100'000);
    writeFile(temporary / "file", content);
    fs::create_directory(folder);
    EXPECT_EQ(runCommand({"sh", "-c", "ulimit -n 40; exec \"$@\"", "sh", QUILLORENT_RAR, "a", "-m0", "-t",
                          "-v1", "-ep", archive, temporary / "file"})
                  .errors,
              "");
    EXPECT_TRUE(unpacked() == content);
    EXPECT_EQ(entries(), volumesOf(archive).size());
}
