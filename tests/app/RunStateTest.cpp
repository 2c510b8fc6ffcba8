#include "runs/RunState.h"

#include <gtest/gtest.h>
#include <thread>

TEST(RunState, LosesNoUpdate)
{
    RunState state;
    constexpr int times = 20'000;
    const auto work = [&] {
        for (int i = 0; i < times; ++i) {
            state.addToDo(2);
            state.addDone(1);
            state.beginItem(u"/same"_qs);
            state.setStage(u"/same"_qs, u"working"_qs);
            state.endItem(u"/same"_qs);
        }
    };
    std::thread one(work);
    std::thread two(work);
    one.join();
    two.join();
    EXPECT_EQ(state.foldersToDo(), 2 * times);
    EXPECT_EQ(state.sizeToDo(), 4 * times);
    EXPECT_EQ(state.foldersDone(), 2 * times);
    EXPECT_EQ(state.sizeDone(), 2 * times);
    EXPECT_TRUE(state.threadsRunning().isEmpty());
    for (int i = 0; i < 2; ++i)
        state.beginItem(u"/same"_qs);
    state.endItem(u"/same"_qs);
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
