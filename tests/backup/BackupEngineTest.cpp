#include "EngineRun.h"

#include "runs/Run.h"

namespace fs = std::filesystem;

namespace {

class BackupEngine : public EngineTest {
protected:
    /// A tool that does so where `mark` is among its arguments, and becomes the real one elsewhere.
    [[nodiscard]] QString fake(const QString &real, const std::string &mark, const std::string &body) const
    {
        return writeScript(folder / "tools" / mark, "real=" + real.toStdString() + "\ncase \"$*\" in *" +
                                                        mark + "*) " + body +
                                                        ";; *) exec $real \"$@\";; esac");
    }
};

// Each an argument of one stage alone.
const std::string first = "-m0", encoder = "-salt", second = "-m5";

} // namespace

// Each with an archive of an earlier run, which must still be there afterwards, and the next run goes well.
TEST_F(BackupEngine, SaysWhichStageFailed)
{
    const std::string stored = "\n   RAR 1st OK - SOURCE\n";
    const fs::path source = sample("docs");
    backUp({source});
    expectSuccess();
    const std::string former = readFile(archives / "docs.rar.aes.rar");
    struct Case {
        std::string stage, body; ///< what the tool does there; none: it is missing
        std::string console;     ///< all but its beginning and its end
        QString reason;
    };
    for (const auto &[stage, body, console, reason] : std::vector<Case>{
             {first, "printf 'warning: odd\nand more'", "\n   RAR 1st ERROR - SOURCE\nwarning: odd\nand more",
              u"RAR 1st: warning: odd"_s},
             {first, "printf 'caf\\351'", "\n   RAR 1st ERROR - SOURCE\n", u"not readable"_s},
             {first, "",
              "\n   RAR 1st ERROR - SOURCE\nCan't start \"/nowhere/tool\": No such file or directory. Choose "
              "the tool's path on the Tools tab.\n",
              u"No such file"_s},
             {encoder, "echo bad magic >&2", stored + "\n   Encoder ERROR - SOURCE",
              u"docs.rar\" is left and is not encrypted"_s},
             {second, "echo oh", stored + "\n   Encoder OK - SOURCE\n   RAR 2nd ERROR - SOURCE",
              u"RAR 2nd: oh"_s},
             // Silence lets the later stages run, and the console stay empty; but nobody is told that all is
             // well.
             {first, "exit 1", stored + "\n   Encoder ERROR - SOURCE", u"Encoder: openssl: cannot open"_s},
             {first, "$real \"$@\"; exit 1", "", u"RAR 1st: the tool ended with status 1"_s},
             {encoder, "$real \"$@\"; exit 1", "", u"Encoder: the tool ended with status 1"_s},
             {second, "exit 0", "", u"RAR 2nd: the tool said nothing, and did not make"_s},
             {second, "$real \"$@\"; exit 1", "", u"RAR 2nd: the tool ended with status 1"_s},
         }) {
        SCOPED_TRACE(reason.toStdString() + " | " + console);
        BackupOrder order = backupOrder({source});
        QString &tool = stage == encoder ? order.encoder : order.archiver;
        tool = body.empty() ? u"/nowhere/tool"_s : fake(tool, stage, body);
        run(std::move(order));
        const std::string shown = monitor->console.replace(text(source), u"SOURCE"_s).toStdString();
        const bool isSilent = console.empty();
        const std::string whole = "\nSTART processing fileSOURCE" + console + "\n *** ERROR! *** SOURCE";
        EXPECT_EQ(shown, isSilent ? "" : whole);
        EXPECT_EQ(monitor->state.foldersDone(), isSilent ? 1 : 0);
        EXPECT_EQ(monitor->record.outcome, Outcome::Failed);
        EXPECT_EQ(monitor->record.items.first().outcome, Outcome::Failed);
        EXPECT_TRUE(monitor->record.summary.startsWith(u"Failed: "_s)) << summary();
        EXPECT_TRUE(monitor->record.summary.contains(reason)) << summary();
        EXPECT_EQ(readFile(archives / "docs.rar.aes.rar"), former) << namesIn(archives);
    }
    backUp({source});
    expectSuccess();
    EXPECT_EQ(namesIn(archives), "docs.rar.aes.rar") << "what failed runs left is known and goes";
}

TEST_F(BackupEngine, AFailureStopsTheOthers)
{
    Paths sources;
    for (int i = 0; i < 4 * workerLimit(); ++i)
        sources.push_back(sample("folder" + std::to_string(i)));
    BackupOrder order = backupOrder(sources);
    order.archiver = fake(realRar, first, "echo no");
    run(std::move(order));
    EXPECT_LE(monitor->console.count(u"START processing"_s), workerLimit());

    backUp(sources);
    expectSuccess();
    EXPECT_EQ(monitor->state.foldersDone(), double(sources.size()));
    EXPECT_TRUE(monitor->most > 0 && monitor->most <= workerLimit()) << monitor->most;
}

TEST_F(BackupEngine, CountsEachEntryOnceAndTellsThemApart)
{
    const fs::path one = sample("one/docs", "first");
    const fs::path two = sample("two/docs", "second");
    const fs::path pipe = folder / "pipe";
    const std::string link = std::string(200, 'n');
    fs::create_directory_symlink(two, folder / link);
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    backUp({one, two, one, folder / "gone", pipe, folder / link / ""});
    EXPECT_EQ(monitor->state.foldersToDo(), 6);
    EXPECT_EQ(monitor->state.foldersDone(), 4);
    EXPECT_EQ(namesIn(archives), "docs-0.rar.aes.rar\ndocs-1.rar.aes.rar\n" + link + ".rar.aes.rar");
    EXPECT_EQ(monitor->console, QString());
    QList<Outcome> outcomes;
    for (const ItemRecord &item : monitor->record.items)
        outcomes.append(item.outcome);
    using enum Outcome;
    EXPECT_EQ(outcomes, (QList{Succeeded, Succeeded, Succeeded, Skipped, Skipped, Succeeded}));
    EXPECT_EQ(monitor->record.outcome, Failed);
    for (const char *word : {"Backed up 4 of 6", "gone", "pipe"})
        EXPECT_NE(summary().find(word), std::string::npos) << summary();
    extract({archives / "docs-0.rar.aes.rar", archives / "docs-1.rar.aes.rar",
             archives / (link + ".rar.aes.rar")});
    EXPECT_EQ(readFile(extracted(one) / "file") + readFile(extracted(two) / "file"), "firstsecond");
    EXPECT_EQ(readFile(extracted(folder / link) / "file"), "second") << "the slash means the folder";
}

// In a folder that others may write to, nothing is written through what they put there.
TEST_F(BackupEngine, WritesThroughNothingThatWasPlanted)
{
    const fs::path source = sample("docs");
    const fs::path victim = folder / "victim";
    const std::string stored = archives / "docs.rar";
    const std::string encrypted = stored + ".aes";
    const std::string moved = folder / "moved";
    const std::string link = "ln -s " + victim.string() + " ";
    const std::string copy = "cp " + victim.string() + " ";
    const char *const aside = "docs.rar.aes.rar\nkept-docs.rar.aes";
    struct Case {
        std::string rar;      ///< done while the first pass ends
        std::string openssl;  ///< done while the encoder ends
        std::string sentence; ///< of the failure; empty: the archive is made
        std::string left{};   ///< in the folder, afterwards; empty: is open
    };
    for (const Case &c : std::vector<Case>{
             {link + encrypted, "", "", aside},
             {"mkfifo " + encrypted, "", "", aside},
             {copy + encrypted, "", "", aside},
             {"", link + encrypted + ".rar", "", "docs.rar.aes.rar"},
             {"", "mv " + stored + " " + moved + "; " + copy + stored, "", "docs.rar\ndocs.rar.aes.rar"},
             {"mkdir " + encrypted, "", "docs.rar.aes\" is a folder"},
             {"rm " + stored + "; " + link + stored, "", "docs.rar\" has been replaced by a link"},
             {"rm " + stored + "; mkfifo " + stored, "", "docs.rar\" has been replaced by a pipe"},
             {"", "rm " + encrypted + "; " + link + encrypted, "aes\" has been replaced by a link"},
         }) {
        SCOPED_TRACE(c.rar + c.openssl);
        fs::remove_all(archives);
        fs::create_directories(archives);
        writeFile(victim, "the user's own");
        BackupOrder order = backupOrder({source});
        order.archiver = fake(realRar, first, "$real \"$@\"; " + c.rar);
        order.encoder = fake(realOpenSsl, encoder, "$real \"$@\"; " + c.openssl);
        run(std::move(order));
        EXPECT_EQ(readFile(victim), "the user's own");
        EXPECT_EQ(monitor->record.outcome == Outcome::Succeeded, c.sentence.empty()) << summary();
        EXPECT_NE(summary().find(c.sentence), std::string::npos) << summary();
        EXPECT_TRUE(c.left.empty() || namesIn(archives) == c.left) << namesIn(archives);
    }
}
