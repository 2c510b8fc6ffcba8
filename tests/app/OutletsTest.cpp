#include "TestProgram.h"
#include "tools/Threads.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(Outlets, TellOnlyOfChanges)
{
    outlets::Registry registry;
    outlets::TextField field(registry, u"field"_qs);
    outlets::ProgressIndicator sign(registry, u"sign"_qs);
    int changes = 0;
    field.observe([&] { changes += field.text().isEmpty() ? 100 : 1; }); // reads it: the lock must be free
    field.setText(u"a"_qs);
    field.setText(u"a"_qs);
    field.setHidden(true);
    EXPECT_EQ(changes, 2);

    sign.startAnimation();
    sign.startAnimation();
    sign.stopAnimation();
    EXPECT_TRUE(sign.isAnimating()) << "the other one still needs it";
    sign.stopAnimation();
    EXPECT_FALSE(sign.isAnimating());
}

TEST(Outlets, ChooserForgetsATitleThatIsGone)
{
    outlets::Registry registry;
    outlets::Chooser chooser(registry, u"chooser"_qs);
    chooser.setTitles({u"a"_qs, u"b"_qs});
    chooser.selectTitle(u"b"_qs);
    chooser.setTitles({u"b"_qs, u"c"_qs});
    EXPECT_EQ(chooser.selectedTitle(), u"b"_qs);
    chooser.setTitles({u"c"_qs});
    EXPECT_EQ(chooser.selectedTitle(), QString());
}

TEST(Panel, WaitsOnAnotherThreadAndWakesForQuitting)
{
    TestProgram program;
    outlets::Panel &panel = program.delegate().progressPanel01;
    const std::function<void()> endings[] = {[&] { panel.close(); }, [&] { program.delegate().endRuns(); }};
    for (const auto &end : endings) {
        detachThread(u"asks"_qs, [&] { panel.runModal(); });
        ASSERT_TRUE(TestProgram::waitUntil([&] { return panel.place() == outlets::Panel::Place::Sheet; }));
        EXPECT_FALSE(waitForThreads(20ms));
        end();
        EXPECT_TRUE(waitForThreads(30s));
    }
    panel.runModal(); // and nobody waits from now on
}
