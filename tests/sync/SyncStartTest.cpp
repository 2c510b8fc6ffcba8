#include "ProgramTest.h"
#include "SyncSample.h"

#include "runs/RunJournal.h"

using Place = outlets::Panel::Place;

namespace {

/// The program with a profile that synchronises "src/d" to "dst".
class SyncStart : public ProgramTest {
protected:
    SyncStart()
    {
        qputenv("TMPDIR", program.folder().c_str());
        fill(program.folder(), "src/d/a=1 src/d/b=2 src/e/c=3 dst/d/extra=4");
        delegate.addSyncEntries({program.path("src/d")});
        setDestination("dst");
    }
    ~SyncStart() override { qunsetenv("TMPDIR"); }

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
        delegate.syncServer.setText(u"nowhere"_s);
        delegate.syncCheck01.setOn(true);
        program.useTool(u"RSync"_s, "/usr/bin/false");
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

// What the switches do is known elsewhere. And what is changed under way is for the next run.
TEST_F(SyncStart, AsksBeforeItDeletesAndDoesJustWhatItShowed)
{
    setSwitches(true, true);
    ASSERT_NO_FATAL_FAILURE(launchUntil(delegate.previewPanel01));
    EXPECT_TRUE(delegate.previewText01.text().startsWith(u"Delete 1 file there, remove 2 files here?\n"));
    EXPECT_EQ(files(), untouched);
    delegate.previewPanel01Close();
    program.waitForEnd();
    EXPECT_EQ(files(), untouched) << "nobody said yes";

    ASSERT_NO_FATAL_FAILURE(launchUntil(delegate.previewPanel01));
    changeEverything();
    fill(program.folder(), "dst/d/late=5");
    delegate.previewPanel01Launch();
    ASSERT_TRUE(TestProgram::waitUntil([&] { return delegate.previewPanel01.place() == Place::Sheet; }));
    EXPECT_TRUE(delegate.previewText01.text().contains(u"more to delete by now. Delete 2 files there"));
    fs::remove(program.folder() / "dst/d/late");
    delegate.previewPanel01Launch();
    program.waitForEnd();
    EXPECT_EQ(files(), "e/c=3 -> d/a=1 d/b=2");
    EXPECT_FALSE(fs::exists(program.folder() / "elsewhere"));
}

TEST_F(SyncStart, AsksNothingWhereNothingIsDeleted)
{
    setSwitches(true, false);
    fs::remove(program.folder() / "dst/d/extra");
    int questions = 0;
    delegate.previewPanel01.observe([&] { ++questions; });
    delegate.buttonLaunch03();
    changeEverything();
    EXPECT_TRUE(TestProgram::waitUntil([&] { return delegate.lastRecord().kind == u"sync"; }));
    program.waitForEnd();
    EXPECT_EQ(questions, 0);
    EXPECT_EQ(keptRecords().size(), 1);
    EXPECT_TRUE(delegate.outputText03.text().startsWith(u"Synchronised 1 entry"));
    EXPECT_EQ(files(), "d/a=1 d/b=2 e/c=3 -> d/a=1 d/b=2");
}
