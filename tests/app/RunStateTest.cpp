#include "TemporaryFolder.h"

#include "runs/RunProgress.h"
#include "tools/ToolRun.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

TEST(RunState, LosesNoUpdate)
{
    RunState state;
    constexpr int times = 20'000;
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 2; ++thread)
            threads.emplace_back([&] {
                for (int i = 0; i < times; ++i) {
                    state.addToDo(2);
                    state.addDone(1);
                    state.beginItem(u"/same"_s);
                    state.setStage(u"/same"_s, u"working"_s);
                    if (i > 0) state.endItem(u"/same"_s);
                }
            });
    }
    EXPECT_EQ(state.foldersToDo() + state.foldersDone(), 4 * times);
    EXPECT_EQ(state.sizeToDo(), 4 * times);
    EXPECT_EQ(state.sizeDone(), 2 * times);
    state.endItem(u"/same"_s); // one of the two that are left
    EXPECT_EQ(state.threadsRunning(), QStringList{u"/same"_s});
}

TEST(RunState, KeepsTheFlagUpWhileQuitting)
{
    RunState state;
    state.cancelByUser();
    EXPECT_TRUE(state.tryBeginRun());
    state.setCancelFlag(false);
    EXPECT_FALSE(state.cancelFlag());
    EXPECT_FALSE(state.isCancelledByUser());

    state.endRun();
    state.cancelForQuitting();
    EXPECT_TRUE(state.tryBeginRun());
    state.setCancelFlag(false);
    EXPECT_TRUE(state.cancelFlag());
    EXPECT_TRUE(state.isCancelledByUser());
}

TEST(RunProgress, FollowsWhatToolsReadAndNeverGoesBack)
{
    const TemporaryFolder folder;
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    RunState state;
    RunProgress progress(state);
    for (const bool isHidden : {false, true}) {
        ASSERT_TRUE(state.tryBeginRun());
        EXPECT_EQ(progress.look().done(), 0) << "it is another run's";
        state.planItem(u"/a"_s, 1000);
        state.planItem(u"/b"_s, 3000);
        state.beginItem(u"/b"_s);
        state.setStage(u"/b"_s, u"storing"_s, {.share = 0.4, .bytes = 1e6});
        std::jthread tool([&] {
            static_cast<void>(runTool(u"/bin/cat"_s, {QString::fromStdString(pipe)}, -1,
                                      [&](int id) { state.setTool(u"/b"_s, id); }));
            state.setTool(u"/b"_s, -1);
        });
        std::ofstream input(pipe, std::ios::binary);
        input << std::string(500'000, 'x') << std::flush;
        while (progress.look().items[1].done < 0.2)
            std::this_thread::sleep_for(1ms);
        EXPECT_NEAR(progress.look().bytesDone, 600, 30);
        input.close();
        tool.join();
        EXPECT_EQ(progress.look().bytesDone, 1200);

        state.setStage(u"/b"_s, u"encrypting"_s, {.share = 0.6, .bytes = 1e6});
        EXPECT_EQ(progress.look().bytesDone, 1200);
        state.setTool(u"/b"_s, isHidden ? 999'999'999 : getpid());
        const double later = progress.look(std::chrono::steady_clock::now() + 1h).bytesDone;
        EXPECT_TRUE(later > 1200 && later < 3000) << later;
        state.setTool(u"/b"_s, 0);
        EXPECT_EQ(progress.look().bytesDone, later);
        state.endItem(u"/b"_s);
        EXPECT_EQ(progress.look().bytesDone, 3000);
        state.endRun();
    }
}

TEST(Pace, SaysNothingThatItCanNotKnow)
{
    const Pace::Time start{1h};
    Pace pace;
    double done = 0;
    const auto go = [&](int from, int to, double perSecond) {
        for (int tenth = from * 10; tenth < to * 10; ++tenth)
            pace.note(start + tenth * 100ms, done += perSecond / 10);
    };
    go(0, 2, 100);
    EXPECT_FALSE(pace.perSecond());
    go(2, 8, 100);
    EXPECT_NEAR(pace.perSecond().value_or(0), 100, 1);
    EXPECT_FALSE(pace.left(2000)) << "too early";
    go(8, 12, 100);
    EXPECT_NEAR(double(pace.left(2200).value_or(0s).count()), 10, 1);
    go(12, 25, 10);
    EXPECT_FALSE(pace.left(10'000)) << "nobody knows how it goes on";
    go(25, 70, 0);
    EXPECT_FALSE(pace.perSecond()) << "nothing moves";
}
