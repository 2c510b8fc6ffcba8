#include "EngineRun.h"

#include "runs/Aftermath.h"

#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Repair : public EngineTest {
protected:
    /// The record that a backup of `docs` leaves when it is killed while it packs.
    void writeKilledRecord(const QList<Aside> &former)
    {
        const QDateTime packingSince = QDateTime::currentDateTimeUtc();
        RunJournal({.kind = u"backup"_s,
                    .folder = text(archives),
                    .began = packingSince,
                    .items = {{.path = text(docs),
                               .between = {text(archives / "docs.rar"), text(archives / "docs.rar.aes")},
                               .clear = text(archives / "docs.rar"),
                               .former = former,
                               .final = {text(archives / "docs.rar.aes.rar")},
                               .packingSince = packingSince}}})
            .begin();
    }

    const fs::path docs = sample("docs");
    const QString final = text(archives / "docs.rar.aes.rar");
};

std::map<std::string, std::string> contents(const fs::path &folder)
{
    std::map<std::string, std::string> files;
    for (const auto &entry : fs::directory_iterator(folder))
        files[entry.path().filename()] = readFile(entry.path());
    return files;
}

} // namespace

// Whatever moment it was killed at, the former set or the new one is whole, for whoever comes first.
TEST_F(Repair, FindsTheFormerArchiveOrTheNewOneWhole)
{
    for (const int volume : {0, 100}) {
        for (const char *kind : {"old", "new"}) {
            writeFile(docs / "file", randomBytes(250'000, kind == std::string("new")));
            backUp({docs}, volume);
            expectSuccess();
            fs::remove_all(folder / kind);
            fs::rename(archives, folder / kind);
            fs::create_directories(archives);
        }
        // What lies at the name and at the other name of the first file, and of the others: (o)ld, (n)ew,
        // none.
        for (const std::string moment :
             {"o-o-", "ooo-", "oooo", "-ooo", "-o-o", "no-o", "nono", "n-no", "o--o"})
            for (const bool byBackup : {true, false}) {
                if (!volume && moment == "no-o") continue;
                SCOPED_TRACE(moment + (volume ? " split" : " whole") +
                             (byBackup ? " backup" : " extraction"));
                for (const fs::path &path : {archives, folder / "state"})
                    fs::remove_all(path);
                fs::copy(folder / "old", archives);
                const QList<Aside> plan = *planAside(filesOfArchive(final), u"former"_s);
                writeKilledRecord(plan);
                for (const Aside &aside : plan) {
                    const fs::path from = aside.from.toStdString();
                    const std::string state = moment.substr(aside == plan.first() ? 0 : 2, 2);
                    if (state[1] == 'o') fs::create_hard_link(from, aside.to.toStdString());
                    if (state[0] != 'o') fs::remove(from);
                    if (state[0] == 'n') fs::copy_file(folder / "new" / from.filename(), from);
                }
                FolderLock lock;
                BackupOrder backup = backupOrder({docs}, volume);
                ExtractOrder extraction = extractOrder({(final).toStdString()});
                const Findings found = byBackup ? lookAtBackup(backup, lock, [] { return true; })
                                                : lookAtExtraction(extraction, lock);
                EXPECT_TRUE(found.obstacles.isEmpty());
                EXPECT_TRUE(contents(archives) == contents(folder / (moment[2] == 'n' ? "new" : "old")))
                    << namesIn(archives);
            }
    }
}

TEST_F(Repair, OldRecordsGoUnlessTheyAreNeeded)
{
    backUp({docs});
    writeFile(archives / "left", "x");
    for (int i = 0; i < 210; ++i) {
        RunRecord record{.kind = u"backup"_s, .folder = text(archives)};
        record.began = QDateTime::fromSecsSinceEpoch(1'000'000 + i).toUTC();
        if (i != 3) record.ended = record.began;
        if (i == 4) record.items = {{.path = u"x"_s, .left = {{text(archives / "left"), true}}}};
        RunJournal(record).begin();
    }
    writeFile(fs::path(recordsFolder().toStdString()) / "0.json", "no record");
    const QList<KeptRecord> kept = keptRecords();
    EXPECT_EQ(kept.size(), 200);
    const std::string json = readFile(kept.last().path.toStdString());
    EXPECT_EQ(toJson(kept.last().record).toStdString(), json) << "something is lost by reading it";
    EXPECT_EQ(json.find("correct horse"), std::string::npos);
    EXPECT_FALSE(kept[0].record.ended.isValid());
    EXPECT_EQ(kept[1].record.items.size(), 1);
    EXPECT_EQ(keptRecords().size(), 200);
}

// What lay there before the run came to its name is the user's, even where the run ended badly.
TEST_F(Repair, NeverTakesTheUsersFilesForLeftOnes)
{
    writeFile(archives / "docs.rar.aes", "the user's own");
    const QString failing = writeScript(folder / "rar", "echo no");
    for (int attempt = 0; attempt < 2; ++attempt) {
        BackupOrder order = backupOrder({docs});
        order.archiver = failing;
        run(std::move(order));
        EXPECT_EQ(findings.concerns.size(), 1) << "it is still no run's";
    }
    backUp({docs});
    EXPECT_EQ(readFile(archives / "kept-docs.rar.aes"), "the user's own");
    EXPECT_NE(summary().find("is called"), std::string::npos) << summary();

    writeFile(out / "docs.rar", "the user's own");
    ExtractOrder order = extractOrder({archives / "docs.rar.aes.rar"});
    const std::string killed = "cp -r " + (folder / "state").string() + " " + (folder / "killed").string();
    order.archiver = writeScript(folder / "rar", "[ $1 = e ] && " + killed + " && echo no || exec " +
                                                     realRar.toStdString() + " \"$@\"");
    run(std::move(order));
    qputenv("XDG_STATE_HOME", (folder / "killed").string().c_str());
    aftermath::repair(text(out), [](const QString &) { return true; });
    EXPECT_EQ(aftermath::leftInClear(), QStringList());
    aftermath::removeLeftInClear();
    EXPECT_EQ(readFile(out / "docs.rar"), "the user's own");
}

TEST_F(Repair, WhatAKilledRunLeftInClearStaysNamed)
{
    writeKilledRecord({});
    writeFile(archives / "docs.rar", "half of it");
    backUp({docs});
    expectSuccess();
    EXPECT_EQ(aftermath::leftInClear(), QStringList{text(archives / "kept-docs.rar")});
    EXPECT_EQ(aftermath::removeLeftInClear(), QStringList());
    EXPECT_EQ(namesIn(archives), "docs.rar.aes.rar");
}

TEST_F(Repair, OtherNamesAreFreeAndShortEnough)
{
    const auto named = [this](const std::string &name) { return text(archives / name); };
    const auto plan = [&](const QStringList &names) { return planAside(names, u"former"_s); };
    const QStringList set{named("a.part1.rar"), named("a.part2.rar")};
    for (const QString &path : set)
        writeFile(path.toStdString(), "old");
    EXPECT_EQ(plan(set)->at(1).to, named("former-a.part2.rar"));
    // One of them taken, by a dangling link: all get the next name, so that they stay one set.
    fs::create_symlink("/nowhere", archives / "former-a.part2.rar");
    const QList<Aside> aside = *plan(set);
    EXPECT_EQ(aside[0].to, named("former-b-a.part1.rar"));
    EXPECT_FALSE(plan({named(std::string(NAME_MAX - 3, 'x'))}));

    writeFile(aside[1].to.toStdString(), "a newcomer");
    EXPECT_NE(setAside(aside), QString());
    EXPECT_EQ(readFile(aside[1].to.toStdString()), "a newcomer");
    EXPECT_EQ(readFile(aside[0].from.toStdString()) + readFile(aside[1].from.toStdString()), "oldold");
    fs::remove(aside[1].to.toStdString());
    ASSERT_EQ(setAside(aside), QString());
    writeFile(aside[0].from.toStdString(), "half a new one");
    EXPECT_EQ(putBack(aside), QString());
    EXPECT_EQ(namesIn(archives), "a.part1.rar\na.part2.rar\nformer-a.part2.rar");
    EXPECT_EQ(readFile(aside[0].from.toStdString()), "old");
}
