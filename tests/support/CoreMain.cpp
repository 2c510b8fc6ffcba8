#include "tools/Threads.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

// The program's parts expect an application to be there, as the front ends make one.
int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    const int status = RUN_ALL_TESTS();
    // A thread that is still about to return would count as leaked.
    return waitForThreads(std::chrono::seconds(60)) ? status : EXIT_FAILURE;
}
