#include "FaultHome.h"
#include "Parallel.h"
#include "ProgramHome.h"

#include <atomic>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace {

using Kind = FaultHome::Kind;

const std::vector<Stage> &stagesOf(Kind kind)
{
    static const std::vector<Stage> backup{{"first pass", "rar", "-m0", "docs.rar"},
                                           {"encoder", "openssl-inner", "-encrypt", "docs.rar.smime"},
                                           {"second pass", "rar", "-m5", "docs.rar.smime.rar"}};
    static const std::vector<Stage> extraction{{"unpacking", "rar", "e", "docs.rar.smime"},
                                               {"decoding", "openssl-inner", "-decrypt", "docs.rar"},
                                               {"restoring", "rar", "x", ""}};
    // Where it works nobody can tell beforehand; what it brings back has its place.
    static const std::vector<Stage> part{
        {"unpacking", "rar", "e", ""}, {"decoding", "openssl-inner", "-decrypt", ""}, extraction[2]};
    return kind == Kind::Backup ? backup : kind == Kind::Part ? part : extraction;
}

std::string signalled(const std::string &deed, int signal) { return deed + "\n" + std::to_string(signal); }

const std::vector<Fault> &faults()
{
    static const std::vector<Fault> all{
        {"program killed, tool lives on", "start", signalled("parent", SIGKILL), Ends::Killed},
        {"program killed between stages", "end", signalled("parent", SIGKILL), Ends::Killed},
        {"program terminated", "start", signalled("parent", SIGTERM), Ends::Cancelled},
        {"program interrupted", "start", signalled("parent", SIGINT), Ends::Cancelled},
        {"tool killed", "start", signalled("kill", SIGKILL), Ends::Fails},
        {"tool terminated", "end", signalled("kill", SIGTERM), Ends::Fails},
        {"tool interrupted", "start", signalled("kill", SIGINT), Ends::Fails},
        {"tool crashes in the middle", "start", "limit\n5000", Ends::Fails},
        {"write error", "start", "full\n5000", Ends::Fails},
        {"write error that goes away", "start", "gap\n5000", Ends::Fails},
        {"status 1 and no word", "start", "exit\n1", Ends::Fails},
        {"status 1 and no word, work done", "end", "exit\n1", Ends::Fails},
        {"status 0 and no product", "start", "exit\n0", Ends::Fails},
        {"hangs until it is cancelled", "start", signalled("hang", SIGTERM), Ends::Cancelled},
        {"noise", "start", "say\nI am a tool", Ends::Fails},
        {"name taken by a folder", "start", "folder\n@PRODUCT", Ends::Any},
        {"name taken by a FIFO", "start", "fifo\n@PRODUCT", Ends::Any},
        {"name taken by a link", "start", "link\n@PRODUCT\n@VICTIM", Ends::Any},
    };
    return all;
}

// Each row is a run of several processes, whose threads do the same in all of them: to the thread sanitizer,
// which is slow, some tell as much as all. No multiple of a number of stages, so that each of them has its
// turn.
#ifdef __SANITIZE_THREAD__
constexpr std::size_t eachOf = 5;
#else
constexpr std::size_t eachOf = 1;
#endif

using Prepare = std::function<bool(FaultHome &)>;

void strike(
    Kind kind, bool splits, const std::vector<Stage> &stages, const std::vector<Fault> &table,
    const Prepare &prepare = [](FaultHome &) { return true; })
{
    const auto make = [&] {
        auto home = std::make_unique<FaultHome>(kind, splits);
        return prepare(*home) ? std::move(home) : nullptr;
    };
    inParallel(stages.size() * table.size(), make, [&](FaultHome &home, std::size_t row) {
        if (row % eachOf != 0) return;
        const Stage &stage = stages[row % stages.size()];
        const Fault &fault = table[row / stages.size()];
        SCOPED_TRACE((splits ? "volumes, " : "") + stage.name + ": " + fault.name);
        EXPECT_TRUE(home.survives(stage, fault) || fault.ends == Ends::Any) << "nothing was hit";
    });
}

/// Kills before every change of names, until there are no more.
void killAtEachChange(Kind kind, const Stage &stage, Ends ends)
{
    std::atomic<bool> isOver = false;
    const auto make = [&] { return std::make_unique<FaultHome>(kind, true); };
    inParallel(80, make, [&](FaultHome &home, std::size_t row) {
        if (isOver || row % eachOf != 0) return;
        const std::string moment = "change " + std::to_string(row + 1);
        SCOPED_TRACE(stage.name + ", " + moment);
        if (!home.survives(stage, {moment, moment, signalled("kill", SIGKILL), ends})) isOver = true;
    });
    EXPECT_TRUE(isOver);
}

} // namespace

TEST(Backup, LosesNothing) { strike(Kind::Backup, false, stagesOf(Kind::Backup), faults()); }

TEST(Extraction, LosesNothing) { strike(Kind::Extraction, false, stagesOf(Kind::Extraction), faults()); }

TEST(Part, LosesNothing) { strike(Kind::Part, false, stagesOf(Kind::Part), faults()); }

TEST(Volumes, AreNotLost)
{
    Stage last = stagesOf(Kind::Backup).back();
    last.product = "docs.rar.smime.part1.rar";
    strike(Kind::Backup, true, {{"first pass", "rar", "-m3", "docs.rar"}, last}, faults());
    strike(Kind::Extraction, true, {stagesOf(Kind::Extraction).front()}, faults());
}

TEST(Backup, IsKilledAtEveryChange)
{
    killAtEachChange(Kind::Backup, {"program", "", "backup", "docs.rar"}, Ends::Killed);
}

TEST(Backup, LosesItsArchiverAtEveryChange)
{
    killAtEachChange(Kind::Backup, stagesOf(Kind::Backup).back(), Ends::Any);
}

TEST(Extraction, IsKilledAtEveryChange)
{
    killAtEachChange(Kind::Extraction, {"program", "", "extract", "docs.rar"}, Ends::Killed);
}

TEST(Part, IsKilledAtEveryChange)
{
    killAtEachChange(Kind::Part, {"program", "", "extract", ""}, Ends::Killed);
}

TEST(Disk, IsFullAtEachStage)
{
    for (const Kind kind : {Kind::Backup, Kind::Extraction, Kind::Part}) {
        std::atomic<bool> isAllowed = true;
        strike(kind, false, stagesOf(kind), {{"full disk", "start", "fill\n@FOLDER", Ends::Fails}},
               [&](FaultHome &home) { return isAllowed = home.mountSmallDisk(); });
        if (!isAllowed) GTEST_SKIP() << "file systems can't be mounted here, the disk was not full";
    }
}

TEST(Permission, GoesAtEachStage)
{
    for (const Kind kind : {Kind::Backup, Kind::Extraction, Kind::Part})
        strike(kind, false, stagesOf(kind), {{"permission", "start", "mode\n500\n@FOLDER", Ends::Fails}},
               [](FaultHome &home) {
                   home.becomeOrdinaryUser();
                   return true;
               });
}

// There rights are nobody's, links can't be made, and "a" is "A".
TEST(DiskOfOtherSystems, LosesNothingInSilenceAndKeepsNothingInClear)
{
    ProgramHome home(QUILLORENT_RUN);
    home.encryptForCertificate();
    for (const std::string name : {"A", "a", "\u00c9", "\u00e9", "sub/x"})
        writeFile(home / "docs" / name, name);
    ASSERT_EQ(home.backUp().status, 0);
    const std::string archive = home.text("archives/docs.rar.smime.rar");
    std::filesystem::create_symlink("A", home / "docs/link");
    ASSERT_EQ(home.backUp({"--yes"}).status, 0);
    FaultHome::layTripwire(home, {});
    home.environment["QUILLORENT_OTHER_SYSTEMS"] = home.text("out");

    const CommandResult whole = home.extract({archive});
    EXPECT_EQ(whole.status, 1);
    for (const std::string said : {"3 files of", "/docs/link: links can't be made", "All others are there"})
        EXPECT_TRUE(contains(whole.errors, said)) << whole.errors;
    const std::filesystem::path place = home / "out" / home.path().relative_path() / "docs";
    EXPECT_EQ(namesIn(place), (std::vector<std::string>{"A", "file", "sub", "\u00c9"}));
    for (const std::string name : {"A", "\u00c9", "sub/x"})
        EXPECT_EQ(readFile(place / name), name);
    const CommandResult listed = home.run({"list", "Mine", "--to", home.text("out"), "--", archive});
    EXPECT_TRUE(contains(listed.errors, "can't be unpacked")) << listed.errors;
    for (const std::string &name : namesIn(home / "out"))
        EXPECT_FALSE(name.starts_with(".")) << name << " is not encrypted, and stayed";

    for (const std::string key : {"rsyncdst", "path"}) {
        home.record[key] = home.text("out/" + key); // empty: what is there would tell
        std::filesystem::create_directory(home.record[key]);
    }
    home.record["rsyncdelete2"] = "1";
    EXPECT_TRUE(contains(home.run({"sync", "Mine", "--yes"}).errors, "differs in upper and lower case only"));
    EXPECT_EQ(readFile(home / "docs/A") + readFile(home / "docs/a"), "Aa");
    home.folders = {home.text("docs"), home.text("other/DOCS")};
    writeFile(home / "other/DOCS/file", "other");
    EXPECT_TRUE(contains(home.backUp({"--yes"}).errors, "would both need the file"));
}

TEST(Settings, StayWhereTheirMergeCanNotBeWritten)
{
    for (const std::string deed : {"late", "full\n500"}) {
        ProgramHome home(QUILLORENT_RUN);
        const std::string version = "<key>version</key>\n\t<string>";
        home.changeSettings(version + "1", version + "0");
        home.writeProfile();
        const auto files = [&] { return readFile(home.settings()) + readFile(home.profiles()); };
        const std::string before = files();
        FaultHome::layTripwire(home, QUILLORENT_RUN "\nprofiles\nstart\n" + deed);
        const CommandResult listed = home.run({"profiles"});
        EXPECT_EQ(listed.output, "  Default profile\n* Mine\n") << listed.errors;
        EXPECT_TRUE(contains(listed.errors, "can't be written")) << listed.errors;
        EXPECT_EQ(files(), before);
        EXPECT_EQ(namesIn(home / "config").size(), 2U) << "a part of it lies there";
    }
}

// A file system may write names before contents: what is not safe when its predecessor goes can be lost with
// it.
TEST(PowerCut, FindsTheSuccessorOfWhatIsGone)
{
    for (const bool splits : {false, true}) {
        FaultHome home(Kind::Backup, splits);
        std::set<std::string> safe;
        std::map<std::string, std::string> named;
        std::vector<std::string> gone;
        for (const std::string &line : home.orderOfChanges()) {
            std::istringstream words(line);
            std::string event, inode, path;
            words >> event >> inode >> path;
            if (event == "safe") safe.insert(inode);
            if (event == "named") named[path] = inode;
            if (event != "gone") continue;
            gone.push_back(path);
            // Of a set, any volume may be the first to go: all that has come into its place has to be there.
            const std::string successor = path == "docs.rar"            ? "docs.rar.smime"
                                          : path == "docs.rar.smime"    ? "docs.rar.smime."
                                          : path.starts_with("former-") ? "docs.rar.smime."
                                                                        : "";
            std::size_t found = 0;
            for (const auto &[name, file] : named) {
                if (name != successor && !(successor.ends_with('.') && name.starts_with(successor))) continue;
                ++found;
                EXPECT_TRUE(safe.contains(file)) << path << " is gone before " << name << " is safe";
            }
            EXPECT_TRUE(found > 0 || successor.empty()) << path << " has no successor yet";
        }
        EXPECT_GE(gone.size(), 3U) << "the two in between, and the former archive";
    }
}
