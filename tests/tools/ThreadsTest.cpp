#include "tools/Threads.h"

#include <gtest/gtest.h>
#include <semaphore>
#include <stdexcept>

using namespace std::chrono_literals;

TEST(DetachThread, IsWaitedForAndSurvivesExceptions)
{
    std::binary_semaphore mayEnd{0};
    detachThread(u"waits"_qs, [&] { mayEnd.acquire(); });
    detachThread(u"a name far longer than the system takes"_qs, [] { throw std::runtime_error("escaped"); });
    detachThread(u"throws"_qs, [] { throw 42; });
    EXPECT_FALSE(waitForThreads(50ms)) << "one of them still waits";
    mayEnd.release();
    EXPECT_TRUE(waitForThreads(30s));
}
