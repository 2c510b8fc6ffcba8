#include "runs/RunState.h"

#include <gtest/gtest.h>
#include <thread>

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
                    state.beginItem(u"/same"_qs);
                    state.setStage(u"/same"_qs, u"working"_qs);
                    if (i > 0) state.endItem(u"/same"_qs);
                }
            });
    }
    EXPECT_EQ(state.foldersToDo() + state.foldersDone(), 4 * times);
    EXPECT_EQ(state.sizeToDo(), 4 * times);
    EXPECT_EQ(state.sizeDone(), 2 * times);
    state.endItem(u"/same"_qs); // one of the two that are left
    EXPECT_EQ(state.threadsRunning(), QStringList{u"/same"_qs});
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
