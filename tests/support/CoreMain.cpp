#include <QCoreApplication>
#include <gtest/gtest.h>

// The program's parts expect an application to be there, as the front ends make one.
int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
