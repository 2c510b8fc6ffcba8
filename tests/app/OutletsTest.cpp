#include "TestProgram.h"
#include "tools/Threads.h"

#include <QTimer>
#include <gtest/gtest.h>
#include <semaphore>

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
    chooser.selectTitle(u"x"_qs);
    EXPECT_EQ(chooser.selectedTitle(), QString());
}

TEST(Panel, WaitsOnTheMainThreadInAnEventLoop)
{
    TestProgram program;
    outlets::Panel &panel = program.delegate().warningPanel03;
    bool looped = false;
    QTimer::singleShot(0, [&] {
        looped = panel.place() == outlets::Panel::Place::Sheet;
        program.delegate().buttonLaunch01Stop();
    });
    panel.runModal();
    EXPECT_TRUE(looped);
    EXPECT_EQ(panel.place(), outlets::Panel::Place::Hidden);
}

TEST(Panel, WaitsOnAnotherThreadAndWakesForQuitting)
{
    TestProgram program;
    outlets::Panel &panel = program.delegate().progressPanel01;
    std::counting_semaphore<2> answered{0};
    const auto ask = [&] {
        panel.runModal();
        answered.release();
    };

    detachThread(u"asks"_qs, ask);
    ASSERT_TRUE(TestProgram::waitUntil([&] { return panel.place() == outlets::Panel::Place::Sheet; }));
    EXPECT_FALSE(answered.try_acquire_for(20ms));
    panel.close();
    EXPECT_TRUE(answered.try_acquire_for(30s));

    detachThread(u"asks"_qs, ask);
    ASSERT_TRUE(TestProgram::waitUntil([&] { return panel.place() == outlets::Panel::Place::Sheet; }));
    program.delegate().endRuns();
    EXPECT_TRUE(answered.try_acquire_for(30s));
    panel.runModal(); // and nobody waits from now on
}

// An answer may come between the moment that a panel shows and the moment that the waiting begins.
TEST(Panel, TakesAnAnswerThatComesAtOnce)
{
    TestProgram program;
    program.delegate().warn(u"text"_qs);
    EXPECT_EQ(program.lastWarning(), u"text"_qs);
    EXPECT_EQ(program.delegate().warningPanel01.place(), outlets::Panel::Place::Hidden);
}
