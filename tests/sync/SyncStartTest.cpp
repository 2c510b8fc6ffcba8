#include "SyncSample.h"

#include "runs/RunJournal.h"

using Place = outlets::Panel::Place;

namespace {

/// The program with a profile that synchronises "src/d" to "dst".
struct SyncStart {
    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();

    SyncStart()
    {
        qputenv("TMPDIR", program.folder().c_str());
        program.start();
        fill(program.folder(), "src/d/a=1 src/d/b=2 src/e/c=3 dst/d/extra=4");
        delegate.addSyncEntries({program.path("src/d")});
        setDestination("dst");
    }
    ~SyncStart() { qunsetenv("TMPDIR"); }
    SyncStart(const SyncStart &) = delete;
    SyncStart &operator=(const SyncStart &) = delete;

    void setDestination(const std::string &name) const
    {
        delegate.syncTextDestPath.setText(program.path(name));
        delegate.syncTextDestPathAction();
    }
    void setSwitches(bool deletesExtra, bool removesSources) const
    {
        delegate.checkBoxSync1.setOn(deletesExtra);
        delegate.checkBoxSync1Action();
        delegate.checkBoxSync2.setOn(removesSources);
        delegate.checkBoxSync2Action();
    }
    /// All that an order is read from, so that what reads it again shows.
    void changeEverything()
    {
        delegate.addSyncEntries({program.path("src/e")});
        setDestination("elsewhere");
        setSwitches(!delegate.checkBoxSync1.isOn(), !delegate.checkBoxSync2.isOn());
        delegate.syncServer.setText(u"nowhere"_qs);
        delegate.syncCheck01.setOn(true);
        program.useTool(u"RSync"_qs, "/usr/bin/false");
    }
    void launchUntil(const outlets::Panel &panel) const
    {
        delegate.buttonLaunch03();
        ASSERT_TRUE(TestProgram::waitUntil([&] { return panel.place() == Place::Sheet; }));
    }
    [[nodiscard]] std::string files() const
    {
        return filesIn(program.folder() / "src") + " -> " + filesIn(program.folder() / "dst");
    }
};

const std::string untouched = "d/a=1 d/b=2 e/c=3 -> d/extra=4";

} // namespace

TEST(SyncStart, AsksBeforeItDeletesAndDoesJustWhatItShowed)
{
    for (const auto &[deletesExtra, removesSources, question, filesAfter] :
         {std::tuple(true, false, "Delete 1 file there?\n", "d/a=1 d/b=2 e/c=3 -> d/a=1 d/b=2"),
          {false, true, "Remove 2 files here?\n", "e/c=3 -> d/a=1 d/b=2 d/extra=4"},
          {true, true, "Delete 1 file there, remove 2 here?\n", "e/c=3 -> d/a=1 d/b=2"}}) {
        SyncStart sync;
        sync.setSwitches(deletesExtra, removesSources);
        ASSERT_NO_FATAL_FAILURE(sync.launchUntil(sync.delegate.previewPanel01));
        EXPECT_TRUE(sync.delegate.previewText01.text().startsWith(QString::fromLatin1(question)));
        EXPECT_EQ(sync.files(), untouched);
        sync.delegate.previewPanel01Close();
        sync.program.waitForEnd();
        EXPECT_EQ(sync.files(), untouched) << "nobody said yes";

        ASSERT_NO_FATAL_FAILURE(sync.launchUntil(sync.delegate.previewPanel01));
        sync.changeEverything();
        sync.delegate.previewPanel01Launch();
        sync.program.waitForEnd();
        EXPECT_EQ(sync.files(), filesAfter);
        EXPECT_FALSE(std::filesystem::exists(sync.program.folder() / "elsewhere"));
    }
}

// Where nothing is deleted there is nothing to ask. And what is changed under way is for the next run.
TEST(SyncStart, StartsAtOnceAndReadsNothingAgain)
{
    for (const bool hasSwitch : {false, true}) {
        SyncStart sync;
        sync.setSwitches(hasSwitch, false);
        if (hasSwitch) std::filesystem::remove(sync.program.folder() / "dst/d/extra");
        int questions = 0;
        sync.delegate.previewPanel01.observe([&] { ++questions; });
        sync.delegate.buttonLaunch03();
        sync.changeEverything();
        EXPECT_TRUE(TestProgram::waitUntil([&] { return sync.delegate.lastRecord().kind == u"sync"; }));
        sync.program.waitForEnd();
        EXPECT_EQ(questions, 0);
        EXPECT_EQ(keptRecords().size(), 1);
        EXPECT_TRUE(sync.delegate.outputText03.text().startsWith(u"Synchronised 1 entry"))
            << qPrintable(sync.delegate.outputText03.text());
        EXPECT_EQ(sync.files(), hasSwitch ? "d/a=1 d/b=2 e/c=3 -> d/a=1 d/b=2"
                                          : "d/a=1 d/b=2 e/c=3 -> d/a=1 d/b=2 d/extra=4");
    }
}

TEST(SyncStart, AConcernIsAskedBeforeAnythingRuns)
{
    SyncStart sync;
    sync.delegate.addSyncEntries({sync.program.path("src2/x")});
    ASSERT_NO_FATAL_FAILURE(sync.launchUntil(sync.delegate.concernsPanel01));
    EXPECT_TRUE(sync.delegate.concernsText01.text().contains(u"src2/x\" does not lie under"));
    sync.delegate.concernsPanel01Stop();
    sync.program.waitForEnd();
    EXPECT_EQ(sync.files(), untouched);
    EXPECT_EQ(sync.delegate.progressPanel03.place(), Place::Hidden);

    ASSERT_NO_FATAL_FAILURE(sync.launchUntil(sync.delegate.concernsPanel01));
    sync.delegate.concernsPanel01GoOn();
    sync.program.waitForEnd();
    EXPECT_EQ(sync.files(), "d/a=1 d/b=2 e/c=3 -> d/a=1 d/b=2 d/extra=4");
    EXPECT_TRUE(sync.delegate.outputText03.text().startsWith(u"Failed.")) << "an entry was not found";
}
