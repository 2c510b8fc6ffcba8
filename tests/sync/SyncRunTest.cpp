#include "Stub.h"
#include "SyncSample.h"

#include <csignal>

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Change = PreviewRow::Change;

namespace {

void setTime(const fs::path &path, std::chrono::seconds ago)
{
    fs::last_write_time(path, fs::file_time_type::clock::now() - ago);
}

} // namespace

TEST(SyncRun, CopiesWhatBackupsMeet)
{
    SyncSample sync;
    makeSampleTree(sync.folder / "src/tree");
    std::vector<std::string> names{"with space", "*", "#comment", ";", "-dash", "[a]", "caf\u00e9", "\\"};
    for (const std::string &name : names)
        writeFile(sync.folder / "src" / name, name);
    names.emplace_back("tree");
    sync.list(names);
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(treeDifference(sync.folder / "src", sync.folder / "dst", sameSecond), "");
    EXPECT_TRUE(sync.summary.startsWith(u"Synchronised 9 entries"));
}

TEST(SyncRun, MakesTheFolderThatASingleFileGoesTo)
{
    SyncSample sync;
    writeFile(sync.folder / "src/x", "x");
    sync.list({"x"});
    sync.preview();
    EXPECT_FALSE(fs::exists(sync.folder / "dst"));
    EXPECT_EQ(sync.previewed(Change::Copy), QStringList{u"x"_qs});
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst"), "x=x");
    sync.order.destination = u"/sys/new"_qs;
    EXPECT_TRUE(makeDestination(sync.order).contains(u"can't be made"));
}

TEST(SyncRun, ComparesByDateOrByContent)
{
    SyncSample sync;
    for (const char *name : {"new", "older", "newer", "hidden"})
        writeFile(sync.folder / "src/d" / name, "src");
    for (const char *name : {"older", "newer", "hidden"})
        writeFile(sync.folder / "dst/d" / name, "dst");
    setTime(sync.folder / "dst/d/older", 1h);
    setTime(sync.folder / "src/d/newer", 1h);
    fs::last_write_time(sync.folder / "dst/d/hidden", fs::last_write_time(sync.folder / "src/d/hidden"));
    sync.list({"d"});
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst"), "d/hidden=dst d/new=src d/newer=dst d/older=src");
    sync.order.mode = u"1"_qs;
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst"), "d/hidden=src d/new=src d/newer=src d/older=src");
}

// What is deleted where, in a first and a second run; and the preview tells of nothing else.
TEST(SyncRun, DeletesWhatTheSwitchesSay)
{
    struct Case {
        bool deletesExtra;
        bool removesSources;
        std::string sources;
        std::vector<std::string> destinations;
        std::vector<QStringList> deleted;
    };
    const std::string all = "d/a=1 e/f=2";
    const std::string merged = "d/a=1 d/extra=3 e/f=2 other=4";
    const std::string bare = "d/a=1 e/f=2 other=4";
    const QStringList extra{u"d/extra"_qs};
    for (const Case &c :
         {Case{false, false, all, {merged, merged}, {{}, {}}},
          Case{true, false, all, {bare, bare}, {extra, {}}},
          Case{false, true, "", {merged, merged}, {{}, {}}},
          Case{true, true, "", {bare, "other=4"}, {extra, QStringList{u"d/a"_qs, u"e/f"_qs}}}}) {
        SCOPED_TRACE(std::to_string(c.deletesExtra) + std::to_string(c.removesSources));
        SyncSample sync;
        writeFile(sync.folder / "src/d/a", "1");
        writeFile(sync.folder / "src/e/f", "2");
        writeFile(sync.folder / "dst/d/extra", "3");
        writeFile(sync.folder / "dst/other", "4");
        sync.list({"d", "e"});
        sync.order.deletesExtra = c.deletesExtra;
        sync.order.removesSources = c.removesSources;
        for (std::size_t run = 0; run < 2; ++run) {
            const TreeSnapshot before = snapshotTree(sync.folder / "src");
            const TreeSnapshot beforeThere = snapshotTree(sync.folder / "dst");
            sync.preview();
            EXPECT_EQ(treeDifference(before, snapshotTree(sync.folder / "src")), "");
            EXPECT_EQ(treeDifference(beforeThere, snapshotTree(sync.folder / "dst")), "");
            EXPECT_EQ(sync.previewed(Change::Delete), c.deleted[run]);
            EXPECT_EQ(sync.previewed(Change::Copy).size(), run == 0 ? 2 : 0);
            EXPECT_EQ(sync.run(), "");
            EXPECT_EQ(filesIn(sync.folder / "src"), c.sources);
            EXPECT_EQ(filesIn(sync.folder / "dst"), c.destinations[run]);
        }
    }
}

TEST(SyncRun, ExplainsWhatFails)
{
    struct Case {
        std::function<void(SyncOrder &)> spoil;
        QString words; ///< on the console, or in the summary where the tool said nothing
    };
    for (const Case &c : {
             Case{[](SyncOrder &o) { o.entries[0] += u"-gone"_qs; },
                  u"An entry of the list is not where it was"_qs},
             Case{[](SyncOrder &o) { o.destination = u"/sys"_qs; },
                  u"You may not write to the destination \"/sys\""_qs},
             Case{[](SyncOrder &o) { o.destination += u"/no/such"_qs; }, u"does not exist. Connect its"_qs},
             Case{[](SyncOrder &o) { o.excludes.reset(); }, u"does not understand its arguments"_qs},
             Case{[](SyncOrder &o) { o.tool = u"/usr/bin/false"_qs; }, u"It ended with status 1"_qs},
             Case{[](SyncOrder &o) { o.tool = u"/nowhere/rsync"_qs; }, u"Can't start \"/nowhere/rsync\""_qs},
         }) {
        SyncSample sync;
        writeFile(sync.folder / "src/x", "x");
        sync.list({"x"});
        c.spoil(sync.order);
        const QString console = QString::fromStdString(sync.run());
        EXPECT_TRUE(sync.summary.startsWith(u"Failed. ")) << qPrintable(sync.summary);
        EXPECT_TRUE((console + sync.summary).contains(c.words)) << qPrintable(console + sync.summary);
        EXPECT_EQ(console.isEmpty(), sync.order.tool == u"/usr/bin/false"_qs);
        EXPECT_EQ(console.contains(u"\nRSync ERROR : \n") && console.endsWith(u"\n *** ERROR! *** "),
                  !console.isEmpty());
    }
}

TEST(SyncRun, TellsOfAFileThatVanishesUnderWay)
{
    SyncSample sync;
    writeFile(sync.folder / "src/d/a", randomBytes(300'000));
    writeFile(sync.folder / "src/d/b", "x");
    sync.list({"d"});
    sync.order.excludes = u"--bwlimit=100"_qs; // some seconds for the first file
    std::thread runner([&] { sync.run(); });
    // The first file is on its way: rsync knows all names by now.
    const fs::path there = sync.folder / "dst/d";
    EXPECT_TRUE(TestProgram::waitUntil([&] { return fs::exists(there) && !fs::is_empty(there); }));
    fs::remove(sync.folder / "src/d/b");
    EXPECT_TRUE(TestProgram::waitUntil([&] { return sync.sawGrowth.load(); }));
    runner.join();
    EXPECT_TRUE(sync.console.startsWith(u"Files disappeared")) << qPrintable(sync.console);
    EXPECT_TRUE(fs::exists(there / "a"));
}

TEST(SyncRun, CancelEndsTheTool)
{
    for (const bool isPreview : {false, true}) {
        SyncSample sync;
        const Stub rsync(sync.folder / "tools", "rsync", "hang");
        writeFile(sync.folder / "src/x", "x");
        sync.list({"x"});
        sync.order.tool = toQString(rsync.path());
        std::thread runner([&] { isPreview ? sync.preview() : sync.run(); });
        const int process = rsync.processId();
        EXPECT_FALSE(sync.state.tryBeginRun()) << "two runs at once";
        sync.state.cancelByUser();
        runner.join();
        EXPECT_NE(kill(process, 0), 0) << "the tool is left running";
        EXPECT_TRUE(sync.summary.contains(u"ancelled"));

        sync.order.tool = u"/usr/bin/rsync"_qs;
        EXPECT_EQ(sync.run(), "");
        EXPECT_EQ(filesIn(sync.folder / "dst"), "x=x");
    }
}
