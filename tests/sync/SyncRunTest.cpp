#include "Stub.h"
#include "SyncSample.h"

#include <csignal>

using Change = PreviewRow::Change;

TEST(SyncRun, MakesTheFolderThatASingleFileGoesTo)
{
    SyncSample sync;
    fill(sync.folder / "src", "x=x");
    sync.list({"x"});
    sync.preview();
    EXPECT_FALSE(fs::exists(sync.folder / "dst"));
    EXPECT_EQ(sync.previewed(Change::Copy), QStringList{u"x"_s});
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst"), "x=x");
    EXPECT_TRUE(makeDestination(orderOf(u"dst=/sys/new"_s)).contains(u"can't be made"));
}

TEST(SyncRun, ComparesByDateOrByContent)
{
    SyncSample sync;
    fill(sync.folder / "src/d", "new=s older=s newer=s hidden=s");
    fill(sync.folder / "dst/d", "older=d newer=d hidden=d");
    const auto hourAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const char *old : {"dst/d/older", "src/d/newer", "src/d/hidden", "dst/d/hidden"})
        fs::last_write_time(sync.folder / old, hourAgo);
    sync.list({"d"});
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst/d"), "hidden=d new=s newer=d older=s");
    sync.order.mode = u"1"_s;
    EXPECT_EQ(sync.run(), "");
    EXPECT_EQ(filesIn(sync.folder / "dst/d"), "hidden=s new=s newer=s older=s");
}

// What is deleted where, in a first and a second run; and the preview tells of nothing else.
TEST(SyncRun, DeletesWhatTheSwitchesSay)
{
    const std::string merged = "d/a=1 d/extra=3 e/f=2 other=4";
    const std::string bare = "d/a=1 e/f=2 other=4";
    const QStringList extra{u"d/extra"_s};
    using Twice = std::vector<std::string>;
    for (const auto &[switches, sources, destinations, deleted] :
         std::vector<std::tuple<QString, std::string, Twice, std::vector<QStringList>>>{
             {{}, "d/a=1 e/f=2", {merged, merged}, {{}, {}}},
             {u"delete"_s, "d/a=1 e/f=2", {bare, bare}, {extra, {}}},
             {u"remove"_s, "", {merged, merged}, {{}, {}}},
             {u"delete remove"_s, "", {bare, "other=4"}, {extra, {u"d/a"_s, u"e/f"_s}}}}) {
        SyncSample sync;
        fill(sync.folder.path(), "src/d/a=1 src/e/f=2 dst/d/extra=3 dst/other=4");
        sync.order = orderOf(switches, sync.path("src"), sync.path("dst"));
        sync.list({"d", "e"});
        for (std::size_t run = 0; run < 2; ++run) {
            const TreeSnapshot before = snapshotTree(sync.folder / "src");
            const TreeSnapshot beforeThere = snapshotTree(sync.folder / "dst");
            sync.preview();
            EXPECT_EQ(treeDifference(before, snapshotTree(sync.folder / "src")), "");
            EXPECT_EQ(treeDifference(beforeThere, snapshotTree(sync.folder / "dst")), "");
            EXPECT_EQ(sync.previewed(Change::Delete), deleted[run]) << qPrintable(switches);
            EXPECT_EQ(sync.previewed(Change::Copy).size(), run == 0 ? 2 : 0);
            EXPECT_EQ(sync.run(), "");
            EXPECT_EQ(filesIn(sync.folder / "src"), sources) << qPrintable(switches);
            EXPECT_EQ(filesIn(sync.folder / "dst"), destinations[run]) << qPrintable(switches);
        }
    }
}

TEST(SyncRun, ExplainsWhatFails)
{
    for (const auto &[change, words] : {
             std::pair(u"add=%1/src/gone"_s, "An entry of the list is not where it was"),
             {u"dst=/sys"_s, "You may not write to the destination \"/sys\""},
             {u"dst=%1/no/such"_s, "does not exist. Connect its"},
             {u"no-excludes"_s, "does not understand its arguments"},
             {u"tool=/nowhere/rsync"_s, "Can't start \"/nowhere/rsync\""},
             {u"tool=/usr/bin/false"_s, ""}, // which says nothing
         }) {
        SyncSample sync;
        fill(sync.folder / "src", "x=x d/y=y");
        sync.order = orderOf(QString(change).replace(u"%1"_s, toQString(sync.folder.path())),
                             sync.path("src"), sync.path("dst"));
        const QString console = QString::fromStdString(sync.run());
        EXPECT_TRUE(console.contains(QString::fromLatin1(words))) << qPrintable(console);
        EXPECT_EQ(console.contains(u"\nRSync ERROR : \n") && console.endsWith(u"\n *** ERROR! *** "),
                  *words != 0);
        EXPECT_TRUE(sync.summary.startsWith(u"Failed. ")) << qPrintable(sync.summary);
        EXPECT_EQ(sync.summary.contains(u"It ended with status 1"), !*words);
    }
}

TEST(SyncRun, TellsOfAFileThatVanishesUnderWay)
{
    SyncSample sync;
    writeFile(sync.folder / "src/d/a", randomBytes(300'000));
    writeFile(sync.folder / "src/d/b", "x");
    sync.list({"d"});
    sync.order.excludes = u"--bwlimit=100"_s; // some seconds for the first file
    std::thread runner([&] { sync.run(); });
    // The first file is on its way: rsync knows all names by now.
    const fs::path there = sync.folder / "dst/d";
    EXPECT_TRUE(TestProgram::waitUntil([&] { return fs::exists(there) && !fs::is_empty(there); }));
    fs::remove(sync.folder / "src/d/b");
    EXPECT_TRUE(TestProgram::waitUntil([&] { return sync.sawGrowth.load(); }));
    runner.join();
    EXPECT_TRUE(sync.console.startsWith(u"Files disappeared")) << qPrintable(sync.console);
}

TEST(SyncRun, CancelEndsTheTool)
{
    for (const bool isPreview : {false, true}) {
        SyncSample sync;
        const Stub rsync(sync.folder / "tools", "rsync", "hang");
        sync.order.tool = toQString(rsync.path());
        std::thread runner([&] { isPreview ? sync.preview() : sync.run(); });
        const int process = rsync.processId();
        EXPECT_FALSE(sync.state.tryBeginRun()) << "two runs at once";
        sync.state.cancelByUser();
        runner.join();
        EXPECT_NE(kill(process, 0), 0) << "the tool is left running";
        EXPECT_TRUE(sync.summary.contains(u"ancelled"));
        EXPECT_TRUE(sync.state.tryBeginRun());
    }
}
