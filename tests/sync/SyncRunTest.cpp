#include "Stub.h"
#include "SyncProgram.h"

#include "tools/ToolRun.h"

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

void setTime(const fs::path &path, std::chrono::seconds ago)
{
    fs::last_write_time(path, fs::file_time_type::clock::now() - ago);
}

/// No file may grow beyond so many bytes, as on a disk that is full.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN); // the writing fails, as it would there
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    rlimit m_before{};
};

} // namespace

TEST(SyncRun, CopiesWhatBackupsMeet)
{
    SyncProgram sync;
    const fs::path source = sync.program.folder() / "src";
    makeSampleTree(source / "tree");
    const std::vector<std::string> names{"with space", "*",   "#comment",  ";",
                                         "-dash",      "[a]", "caf\u00e9", "\\"};
    for (const std::string &name : names)
        writeFile(source / name, name);
    sync.addEntries({"tree"});
    sync.addEntries(names);
    EXPECT_EQ(sync.run().toStdString(), "");
    EXPECT_EQ(treeDifference(source, sync.program.folder() / "dst", sameSecond), "");
    EXPECT_TRUE(sync.delegate.outputText03.text().startsWith(u"Synchronised 9 entries"));
    EXPECT_EQ(sync.delegate.consolePanel01.place(), outlets::Panel::Place::Hidden);
}

TEST(SyncRun, MakesTheFolderThatASingleFileGoesTo)
{
    SyncProgram sync;
    writeFile(sync.program.folder() / "src/x", "x");
    sync.addEntries({"x"});
    sync.preview();
    EXPECT_FALSE(fs::exists(sync.program.folder() / "dst"));
    EXPECT_EQ(sync.previewed(u"copied"_qs), QStringList{u"x"_qs});
    EXPECT_EQ(sync.run().toStdString(), "");
    EXPECT_EQ(sync.files("dst"), "x=x");
}

TEST(SyncRun, ComparesByDateOrByContent)
{
    SyncProgram sync;
    const fs::path folder = sync.program.folder();
    for (const char *name : {"new", "older", "newer", "hidden"})
        writeFile(folder / "src/d" / name, "src");
    for (const char *name : {"older", "newer", "hidden"})
        writeFile(folder / "dst/d" / name, "dst");
    setTime(folder / "dst/d/older", 1h);
    setTime(folder / "src/d/newer", 1h);
    fs::last_write_time(folder / "dst/d/hidden", fs::last_write_time(folder / "src/d/hidden"));
    sync.addEntries({"d"});
    EXPECT_EQ(sync.run().toStdString(), "");
    EXPECT_EQ(sync.files("dst"), "d/hidden=dst d/new=src d/newer=dst d/older=src");
    sync.setSwitches(true, false, false);
    EXPECT_EQ(sync.run().toStdString(), "");
    EXPECT_EQ(sync.files("dst"), "d/hidden=src d/new=src d/newer=src d/older=src");
}

// What is deleted where, in a first and a second run; and the preview tells of nothing else.
TEST(SyncRun, DeletesWhatTheSwitchesSay)
{
    struct Case {
        bool deletesExtra;
        bool removesSources;
        std::vector<const char *> sources;
        std::vector<const char *> destinations;
        QStringList deletedFirst;
        QStringList deletedSecond;
    };
    const char *const all = "d/a=1 e/f=2";
    const char *const merged = "d/a=1 d/extra=3 e/f=2 other=4";
    for (const Case &c : {
             Case{false, false, {all, all}, {merged, merged}, {}, {}},
             Case{true,
                  false,
                  {all, all},
                  {"d/a=1 e/f=2 other=4", "d/a=1 e/f=2 other=4"},
                  {u"d/extra"_qs},
                  {}},
             Case{false, true, {"", ""}, {merged, merged}, {}, {}},
             Case{true,
                  true,
                  {"", ""},
                  {"d/a=1 e/f=2 other=4", "other=4"},
                  {u"d/extra"_qs},
                  {u"d/a"_qs, u"e/f"_qs}},
         }) {
        SCOPED_TRACE(std::to_string(c.deletesExtra) + std::to_string(c.removesSources));
        SyncProgram sync;
        const fs::path folder = sync.program.folder();
        writeFile(folder / "src/d/a", "1");
        writeFile(folder / "src/e/f", "2");
        writeFile(folder / "dst/d/extra", "3");
        writeFile(folder / "dst/other", "4");
        sync.addEntries({"d", "e"});
        sync.setSwitches(false, c.deletesExtra, c.removesSources);
        for (std::size_t run = 0; run < 2; ++run) {
            const TreeSnapshot before = snapshotTree(folder / "src");
            const TreeSnapshot beforeThere = snapshotTree(folder / "dst");
            sync.preview();
            EXPECT_EQ(treeDifference(before, snapshotTree(folder / "src")), "");
            EXPECT_EQ(treeDifference(beforeThere, snapshotTree(folder / "dst")), "");
            EXPECT_EQ(sync.previewed(u"deleted"_qs), run == 0 ? c.deletedFirst : c.deletedSecond);
            EXPECT_EQ(sync.previewed(u"moved there"_qs).size(), c.removesSources && run == 0 ? 2 : 0);
            EXPECT_EQ(sync.run().toStdString(), "");
            EXPECT_EQ(sync.files("src"), c.sources[run]);
            EXPECT_EQ(sync.files("dst"), c.destinations[run]);
        }
    }
}

TEST(SyncRun, ExplainsWhatFails)
{
    SyncProgram sync;
    const fs::path folder = sync.program.folder();
    writeFile(folder / "src/x", "x");
    writeFile(folder / "src/big", std::string(100'000, 'b'));
    sync.addEntries({"x", "gone"});
    const QString gone = sync.run();
    EXPECT_TRUE(gone.startsWith(u"An entry of the list is not where it was")) << qPrintable(gone);
    EXPECT_TRUE(gone.contains(u"bring it back.\nRSync ERROR : \nrsync: ")) << qPrintable(gone);
    EXPECT_TRUE(gone.endsWith(u"\n *** ERROR! *** "));
    EXPECT_EQ(sync.delegate.consolePanel01.place(), outlets::Panel::Place::Window);
    EXPECT_EQ(sync.files("dst"), "x=x");

    sync.delegate.syncTableView.setSelectedRows({1});
    sync.delegate.syncButton02Action();
    sync.setDestination(u"/sys"_qs);
    EXPECT_TRUE(sync.run().startsWith(u"You may not write to the destination \"/sys\""))
        << qPrintable(sync.delegate.consoleTextView01.text());

    sync.setDestination(sync.program.path("no/dst"));
    EXPECT_TRUE(sync.run().contains(u"does not exist. Connect its disk"))
        << qPrintable(sync.delegate.consoleTextView01.text());

    sync.setDestination(sync.program.path("dst"));
    sync.addEntries({"big"});
    {
        const SizeLimit limit(50'000);
        EXPECT_TRUE(sync.run().contains(u"larger than the destination can take"))
            << qPrintable(sync.delegate.consoleTextView01.text());
    }

    sync.delegate.configPlist().dictionary(u"sync"_qs).remove(u"rsyncexcludes"_qs);
    EXPECT_TRUE(sync.run().startsWith(u"rsync does not understand its arguments"));
    sync.program.useTool(u"RSync"_qs, "/usr/bin/false");
    EXPECT_EQ(sync.run(), QString()) << "what says nothing has succeeded, as far as the console goes";
    EXPECT_TRUE(sync.delegate.outputText03.text().contains(u"ended with status 1"));
    sync.program.useTool(u"RSync"_qs, "/nowhere/rsync");
    EXPECT_TRUE(sync.run().contains(u"Can't start \"/nowhere/rsync\"")) << "no tool";
}

TEST(SyncRun, TellsOfAFileThatVanishesUnderWay)
{
    SyncProgram sync;
    const fs::path folder = sync.program.folder();
    writeFile(folder / "src/d/a", randomBytes(300'000));
    writeFile(folder / "src/d/b", "x");
    sync.addEntries({"d"});
    sync.setArgument(u"rsyncexcludes"_qs, u"--bwlimit=100"_qs); // some seconds for the first file
    sync.delegate.buttonLaunch03();
    // The first file is on its way: rsync knows all names by now.
    ASSERT_TRUE(TestProgram::waitUntil(
        [&] { return fs::exists(folder / "dst/d") && !fs::is_empty(folder / "dst/d"); }));
    fs::remove(folder / "src/d/b");
    EXPECT_TRUE(TestProgram::waitUntil([&] {
        return sync.delegate.progress03progressLabel02.text().contains(u"more at the destination: ");
    })) << qPrintable(sync.delegate.progress03progressLabel02.text());
    sync.program.waitForEnd();
    const QString console = sync.delegate.consoleTextView01.text();
    EXPECT_TRUE(console.startsWith(u"Files disappeared")) << qPrintable(console);
    EXPECT_TRUE(fs::exists(folder / "dst/d/a"));
}

TEST(SyncRun, IsRefusedWhereItWouldDoHarm)
{
    SyncProgram sync;
    writeFile(sync.program.folder() / "src/x", "x");
    writeFile(sync.program.folder() / "file", "kept");
    sync.addEntries({"x"});
    sync.setSwitches(false, true, true);
    struct Case {
        QString destination;
        QString warning;
    };
    for (const auto &[destination, warning] : {Case{sync.program.path("file"), u"is a file"_qs},
                                               Case{sync.program.path("src"), u"lie in already"_qs},
                                               Case{sync.program.path("dst/../src"), u"lie in already"_qs},
                                               Case{u"/sys/new"_qs, u"can't be made"_qs}}) {
        sync.setDestination(destination);
        sync.run();
        EXPECT_TRUE(sync.program.lastWarning().contains(warning)) << qPrintable(sync.program.lastWarning());
    }
    EXPECT_EQ(sync.files("src"), "x=x");
    EXPECT_EQ(readFile(sync.program.folder() / "file"), "kept");
}

TEST(SyncRun, CancelEndsTheTool)
{
    for (const bool isPreview : {false, true}) {
        SyncProgram sync;
        const Stub rsync(sync.program.folder() / "tools", "rsync", "hang");
        writeFile(sync.program.folder() / "src/x", "x");
        sync.addEntries({"x"});
        sync.program.useTool(u"RSync"_qs, rsync.path());
        isPreview ? sync.delegate.previewButton01Action() : sync.delegate.buttonLaunch03();
        const int process = rsync.processId();
        EXPECT_EQ(sync.delegate.progressPanel03.place(), outlets::Panel::Place::Sheet);
        ASSERT_TRUE(TestProgram::waitUntil(
            [&] { return sync.delegate.progress03progressLabel02.text().startsWith(u"Time: 0:00:0"); }));
        sync.delegate.buttonLaunch03();
        EXPECT_TRUE(sync.program.lastWarning().contains(u"still ending"));

        sync.delegate.buttonKill01(sync.delegate.buttonCancel03);
        sync.program.waitForEnd();
        EXPECT_NE(kill(process, 0), 0) << "the tool is left running";
        EXPECT_EQ(sync.delegate.progressPanel03.place(), outlets::Panel::Place::Hidden);
        EXPECT_EQ(sync.delegate.previewPanel01.place(), outlets::Panel::Place::Hidden);
        EXPECT_TRUE(sync.delegate.outputText03.text().contains(u"ancelled"));

        sync.program.useTool(u"RSync"_qs, "/usr/bin/rsync");
        EXPECT_EQ(sync.run().toStdString(), "");
        EXPECT_EQ(sync.files("dst"), "x=x");
    }
}

TEST(SyncRun, ManagesAHundredThousandFiles)
{
    constexpr int files = 100'000;
    // In memory where the system offers it: a busy disk takes minutes.
    if (fs::is_directory("/dev/shm")) qputenv("TMPDIR", "/dev/shm");
    SyncProgram sync;
    const fs::path source = sync.program.folder() / "src/many";
    for (int file = 0; file < files; ++file) {
        const fs::path folder = source / std::to_string(file / 1000);
        if (file % 1000 == 0) fs::create_directories(folder);
        std::ofstream(folder / std::to_string(file));
    }
    sync.addEntries({"many"});
    EXPECT_EQ(sync.preview().toStdString(), "");
    EXPECT_EQ(sync.previewed(u"copied"_qs).size(), files);
    EXPECT_EQ(sync.run().toStdString(), "");
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(sync.program.folder() / "dst"), {}),
              files + files / 1000 + 1);
}

TEST(SyncTab, WritesThrough)
{
    SyncProgram sync;
    QuillorentAppDelegate &delegate = sync.delegate;
    const auto kept = [&](const char *key) {
        return delegate.currentRecord().string(QString::fromLatin1(key)).value_or(u"none"_qs);
    };
    const QString before = kept("rsyncsrc");
    sync.addEntries({"a", "b", "a"});
    const outlets::TableDataSource &rows = *delegate.syncTableView.dataSource();
    EXPECT_EQ(rows.numberOfRows(), 3) << "a path may stand twice";
    delegate.syncTableView.setSelectedRows({0});
    delegate.syncButton02Action();
    EXPECT_EQ(rows.numberOfRows(), 2);
    EXPECT_EQ(rows.objectValue(u"c10"_qs, 1), sync.program.path("src/a"));
    EXPECT_EQ(rows.objectValue(u"c20"_qs, 1), QString());

    delegate.openPanel = [](const outlets::OpenPanel &panel) {
        EXPECT_TRUE(panel.canChooseFiles != panel.canCreateDirectories && panel.canChooseDirectories);
        return std::nullopt;
    };
    delegate.syncButton01Action();
    delegate.syncButtoDestAction();
    delegate.syncButtoSrcAction();
    EXPECT_EQ(rows.numberOfRows(), 2);
    EXPECT_EQ(kept("rsyncdst"), sync.program.path("dst"));
    EXPECT_EQ(kept("rsyncsrc"), before);

    delegate.syncSelector01.selectIndex(-1);
    delegate.syncSelector01Action();
    EXPECT_EQ(kept("rsyncmode"), u"0"_qs) << "no choice keeps nothing";
}
