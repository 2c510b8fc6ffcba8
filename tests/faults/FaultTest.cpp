#include "FaultHome.h"

#include <atomic>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace {

using Kind = FaultHome::Kind;

const std::vector<Stage> &stagesOf(Kind kind)
{
    static const std::vector<Stage> backup{{"first pass", "rar", "-m0", "docs.rar"},
                                           {"encoder", "openssl", "-encrypt", "docs.rar.smime"},
                                           {"second pass", "rar", "-m5", "docs.rar.smime.rar"}};
    static const std::vector<Stage> extraction{{"unpacking", "rar", "e", "docs.rar.smime"},
                                               {"decoding", "openssl", "-decrypt", "docs.rar"},
                                               {"restoring", "rar", "x", ""}};
    return kind == Kind::Backup ? backup : extraction;
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

/// Some at a time, each with a home of its own: the runs mostly wait.
void inParallel(std::size_t count, const std::function<std::unique_ptr<FaultHome>()> &make,
                const std::function<void(FaultHome &, std::size_t)> &work)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < std::min<std::size_t>(4, count); ++i)
        threads.emplace_back([&] {
            const std::unique_ptr<FaultHome> home = make();
            for (std::size_t row = next++; row < count; row = next++)
                work(*home, row);
        });
    for (std::thread &thread : threads)
        thread.join();
}

void strike(Kind kind, bool splits, const std::vector<Stage> &stages, const std::vector<Fault> &table)
{
    inParallel(
        stages.size() * table.size(), [&] { return std::make_unique<FaultHome>(kind, splits); },
        [&](FaultHome &home, std::size_t row) {
            const Stage &stage = stages[row % stages.size()];
            const Fault &fault = table[row / stages.size()];
            SCOPED_TRACE((splits ? "volumes, " : "") + stage.name + ": " + fault.name);
            EXPECT_TRUE(home.survives(stage, fault));
        });
}

/// Kills at every change of names in turn, until one is asked for that never comes.
void killAtEachChange(Kind kind, const Stage &stage, int last, Ends ends)
{
    inParallel(
        std::size_t(last), [&] { return std::make_unique<FaultHome>(kind, true); },
        [&](FaultHome &home, std::size_t row) {
            const std::string moment = "change " + std::to_string(row + 1);
            SCOPED_TRACE(stage.name + ", " + moment);
            home.survives(stage, {moment, moment, signalled("kill", SIGKILL), ends});
        });
}

} // namespace

TEST(Backup, LosesNothing) { strike(Kind::Backup, false, stagesOf(Kind::Backup), faults()); }

TEST(Backup, LosesNoVolumes)
{
    Stage last = stagesOf(Kind::Backup).back();
    last.product = "docs.rar.smime.part1.rar";
    strike(Kind::Backup, true, {last}, faults());
}

TEST(Extraction, LosesNothing) { strike(Kind::Extraction, false, stagesOf(Kind::Extraction), faults()); }

TEST(Extraction, LosesNoVolumes)
{
    strike(Kind::Extraction, true, {stagesOf(Kind::Extraction).front()}, faults());
}

TEST(Backup, IsKilledAtEveryChange)
{
    killAtEachChange(Kind::Backup, {"program", "", "backup", "docs.rar"}, 40, Ends::Killed);
    killAtEachChange(Kind::Backup, stagesOf(Kind::Backup).back(), 20, Ends::Any);
}

TEST(Extraction, IsKilledAtEveryChange)
{
    killAtEachChange(Kind::Extraction, {"program", "", "extract", "docs.rar"}, 24, Ends::Killed);
}

TEST(Disk, IsFullAtEachStage)
{
    for (const Kind kind : {Kind::Backup, Kind::Extraction}) {
        FaultHome home(kind, false);
        if (!home.mountSmallDisk()) GTEST_SKIP() << "file systems can't be mounted here";
        for (const Stage &stage : stagesOf(kind)) {
            SCOPED_TRACE(stage.name);
            home.survives(stage, {"full disk", "start", "fill\n@FOLDER", Ends::Fails});
        }
    }
}

TEST(Permission, GoesAtEachStage)
{
    for (const Kind kind : {Kind::Backup, Kind::Extraction}) {
        FaultHome home(kind, false);
        home.becomeOrdinaryUser();
        for (const Stage &stage : stagesOf(kind)) {
            SCOPED_TRACE(stage.name);
            home.survives(stage, {"permission", "start", "mode\n500\n@FOLDER", Ends::Fails});
        }
    }
}
