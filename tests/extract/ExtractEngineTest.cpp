#include "EngineRun.h"

#include "Credentials.h"

#include <QRegularExpression>
#include <set>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class ExtractEngine : public EngineTest {
protected:
    /// A backup by the method of that extension; by certificate for ".smime".
    void backUpBy(const fs::path &source, const QString &extension, const QString &cipher, int volume = 0)
    {
        BackupOrder order = backupOrder({source}, volume);
        for (BackupItem &item : order.items)
            item = backupItem(item.source, order.destination,
                              quillorentLibrary::lastPathComponent(item.source), u".rar"_s, extension);
        order.cipher = cipher;
        order.byCertificate = cipher == u"smime";
        order.certificate = text(keys.certificate);
        run(std::move(order));
        expectSuccess();
    }

    [[nodiscard]] Paths volumes(const std::string &whole) const
    {
        Paths paths;
        for (const QString &file : filesOfArchive(text(archives / whole)))
            paths.emplace_back(file.toStdString());
        return paths;
    }

    static void startAnew(const fs::path &emptied)
    {
        fs::remove_all(emptied);
        fs::create_directories(emptied);
    }
    void startAnew() const { startAnew(archives), startAnew(out); }

    const Credentials keys = makeCredentials(folder, "anna");
};

/// As the tests were started.
const mode_t usual = [] {
    const mode_t mask = umask(0);
    return umask(mask), mask;
}();

void damage(const fs::path &path)
{
    std::string bytes = readFile(path);
    bytes[bytes.size() / 2] ^= 1;
    writeFile(path, bytes);
}

} // namespace

TEST_F(ExtractEngine, BringsBackWhatWasBackedUp)
{
    const fs::path tree = folder / "odd tree";
    makeSampleTree(tree);
    for (const auto &[extension, cipher] : {std::pair{u".aes"_s, u"aes-256-cbc"_s},
                                            {u".bf"_s, u"bf-cbc"_s},
                                            {u".3d"_s, u"des-ede3-cbc"_s},
                                            {u".smime"_s, u"smime"_s}})
        for (const int volume : {0, 300}) {
            SCOPED_TRACE(extension.toStdString() + (volume ? " split" : " whole"));
            startAnew();
            backUpBy(tree, extension, cipher, volume);
            for (const auto &entry : fs::directory_iterator(archives))
                EXPECT_EQ(entry.status().permissions(), fs::perms(0600)) << entry.path();
            ExtractOrder order = extractOrder(volumes("odd tree.rar" + extension.toStdString() + ".rar"));
            order.key = text(keys.key);
            order.certificate = text(keys.certificate);
            run(std::move(order));
            expectSuccess();
            EXPECT_EQ(findings.concerns.join(u'\n').toStdString(), "");
            EXPECT_EQ(treeDifference(tree, extracted(tree)), "");
            EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1) << namesIn(out);
            EXPECT_EQ(summary().find("Extracted 1 of 1 "), 0U) << summary();
        }
}

TEST_F(ExtractEngine, TakesSetsOfAnyNumberOfVolumesUnderAnyName)
{
    const fs::path file = folder / "data";
    writeFile(file, randomBytes(1'000'000));
    for (const auto &[size, digits, name] : {std::tuple{500, 1, "other.rar.bf"},
                                             {500, 1, "holiday"},
                                             {100, 2, "a.part1.b.rar.bf"},
                                             {8, 3, "with*[x]?.rar.bf"}}) {
        SCOPED_TRACE(name);
        startAnew();
        backUpBy(file, u".bf"_s, u"bf-cbc"_s, size);
        Paths renamed;
        for (const fs::path &volume : volumes("data.rar.bf.rar")) {
            const std::string number = volume.stem().extension();
            EXPECT_EQ(number.size(), std::size_t(digits) + 5);
            renamed.push_back(archives / (name + number + ".rar"));
            fs::rename(volume, renamed.back());
        }
        extract(renamed);
        expectSuccess();
        EXPECT_FALSE(findings.concerns.join(u' ').contains(u".part2"))
            << "later volumes are no more than that";
        EXPECT_EQ(monitor->state.foldersToDo(), double(renamed.size()));
        EXPECT_EQ(monitor->state.foldersDone(), 1);
        EXPECT_TRUE(readFile(extracted(file)) == readFile(file));
        EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1) << namesIn(out);

        // The first volume is enough where the others lie beside it.
        fs::remove_all(extracted(file));
        extract({renamed.front()});
        EXPECT_TRUE(readFile(extracted(file)) == readFile(file));
    }
}

// Archives never mix, nor is one lost behind another of its name.
TEST_F(ExtractEngine, NoArchiveReplacesWhatAnotherBroughtBack)
{
    const fs::path docs = folder / "docs";
    Paths dated;
    for (const char *date : {"2024-01", "2024-02", "2024-03"}) {
        startAnew();
        writeFile(docs / "file", date);
        writeFile(docs / ("only " + std::string(date)), date);
        backUpBy(docs, u".aes"_s, u"aes-256-cbc"_s);
        fs::remove(docs / ("only " + std::string(date)));
        dated.push_back(folder / ("docs " + std::string(date) + ".rar.aes.rar"));
        fs::rename(archives / "docs.rar.aes.rar", dated.back());
    }
    // Of one name, from two folders.
    Paths namesakes;
    for (const fs::path &archive : {dated[0], dated[1]}) {
        namesakes.push_back(folder / archive.stem() / "docs.rar.aes.rar");
        fs::create_directories(namesakes.back().parent_path());
        fs::copy_file(archive, namesakes.back());
    }
    for (const Paths &listed : {dated, namesakes}) {
        SCOPED_TRACE(listed.front());
        startAnew();
        extract(listed);
        expectSuccess();
        // Which of them comes first, and so into the folder itself, is open.
        std::set<std::string> contents;
        for (const auto &entry : fs::recursive_directory_iterator(out)) {
            if (entry.path().filename() != "file") continue;
            contents.insert(readFile(entry.path()));
            EXPECT_EQ(namesIn(entry.path().parent_path()), "file\nonly " + readFile(entry.path()));
        }
        EXPECT_EQ(contents.size(), listed.size());
        EXPECT_EQ(monitor->record.summary.count(u"would have replaced"_s), int(listed.size()) - 1)
            << summary();
    }
    // What can't meet stays together.
    startAnew();
    const fs::path other = sample("other");
    backUp({other});
    extract({dated.front(), archives / "other.rar.aes.rar"});
    EXPECT_EQ(monitor->record.summary.count(u"would have replaced"_s), 0) << summary();
    EXPECT_TRUE(fs::exists(extracted(docs)) && fs::exists(extracted(other)));
}

TEST_F(ExtractEngine, EachCauseReadsDifferently)
{
    const QStringList stages{u"unRAR 1st"_s, u"DECODE"_s, u"unRAR 2nd"_s};
    backUp({sample("docs")});
    backUpBy(folder / "docs", u".smime"_s, u"smime"_s);
    const Credentials others = makeCredentials(folder, "berta");
    const fs::path archive = archives / "docs.rar.aes.rar";
    const fs::path message = archives / "docs.rar.smime.rar";
    const std::string whole = readFile(archive);
    const std::string encrypted = out / "docs.rar.aes";
    const std::string rar = realRar.toStdString() + " \"$@\"";
    const QString blind = writeScript(folder / "blind", "[ $1 = t ] || exec " + rar);
    const QString blindest = writeScript(folder / "blindest", "[ $1 = t ] || [ $1 = x ] || exec " + rar);
    const auto plant = [&](const std::string &command) {
        return writeScript(folder / "plant", rar + "; [ $1 != e ] || { rm " + encrypted + "; " + command +
                                                 " " + encrypted + "; }");
    };
    const QString rubbish =
        writeScript(folder / "rubbish", "while [ \"$1\" != -out ]; do shift; done; echo x >\"$2\"");
    struct Case {
        QString sentence; ///< a pattern
        int stage;        ///< that fails; -1: which one notices is open
        std::function<void(ExtractOrder &)> change;
    };
    for (const auto &[sentence, stage, change] : std::vector<Case>{
             {u"is damaged: .*checksum"_s, 0, [&](auto &o) { o.archiver = blind, damage(archive); }},
             {u"docs.rar.aes\" is a folder"_s, 0, [&](auto &) { writeFile(encrypted + "/x", "x"); }},
             {u"docs.rar\" is a folder"_s, 1, [&](auto &) { writeFile(out / "docs.rar/x", "x"); }},
             {u"replaced by a pipe"_s, 1, [&](auto &o) { o.archiver = plant("mkfifo"); }},
             {u"holds a link where"_s, 1, [&](auto &o) { o.archiver = plant("ln -s " + archive.string()); }},
             {u"Can't start \"/nowhere/openssl\""_s, 1, [](auto &o) { o.decoder = u"/nowhere/openssl"_s; }},
             {u"private key can't be read"_s, 1, [&](auto &o) { o = extractOrder({message}); }},
             {u"is taken by something else"_s, 2,
              [&](auto &) { writeFile(out / *folder.relative_path().begin(), "x"); }},
             {u"password is probably wrong"_s, 2,
              [&](auto &o) { o.decoder = rubbish, o.archiver = blindest; }},
             {u"its name tells another one|password is probably wrong"_s, -1,
              [](auto &o) { o.items[0].command = u"bf-cbc"_s; }},
             {u"password is (probably )?wrong"_s, -1, [](auto &o) { o.password = Secret::fromText(u"x"_s); }},
             {u"with this private key|The private key is wrong"_s, -1,
              [&](auto &o) {
                  o = extractOrder({message}), o.key = text(others.key);
                  o.certificate = text(others.certificate);
              }},
         }) {
        SCOPED_TRACE(sentence.toStdString());
        startAnew(out);
        writeFile(archive, whole);
        ExtractOrder order = extractOrder({archive});
        change(order);
        const QString end = u" - "_s + order.items.first().archive;
        run(std::move(order));
        QStringList shown = monitor->console.split(u'\n');
        ASSERT_GE(shown.size(), 3) << qPrintable(monitor->console) << summary();
        EXPECT_TRUE(shown[0].isEmpty() && QRegularExpression(sentence).match(shown[1]).hasMatch())
            << qPrintable(shown[1]);
        for (int done = 0; done < stage; ++done)
            EXPECT_EQ(shown.takeAt(2), stages[done] + u" OK"_s + end);
        EXPECT_TRUE(stage < 0 || shown.takeAt(2) == stages[stage] + u" ERROR"_s + end);
        EXPECT_EQ(shown.last(), u" *** ERROR! *** "_s + end.mid(3));
        EXPECT_TRUE(stage < 0 || shown.size() == 3);
        EXPECT_EQ(monitor->record.outcome, Outcome::Failed);
        EXPECT_EQ(summary().find("Failed: "), 0U) << summary();
        EXPECT_FALSE(fs::exists(extracted(folder / "docs")));
    }
}

// The stock archiver makes empty folders as the process's mask has it.
TEST_F(ExtractEngine, WhatComesBackHasTheUsersOwnRights)
{
    backUp({sample("docs")});
    ExtractOrder order = extractOrder({archives / "docs.rar.aes.rar"});
    order.archiver = writeScript(folder / "making", realRar.toStdString() + " \"$@\"; mkdir -p " +
                                                        (out / "made").string() + "-$1");
    run(std::move(order));
    EXPECT_EQ(fs::status(out / "made-x").permissions(), fs::perms(0777 & ~usual));
    EXPECT_EQ(fs::status(out / "made-e").permissions(), fs::perms(0700))
        << "what is between is for no one else";
}

TEST_F(ExtractEngine, ADamagedArchiveKeepsTheOthersBack)
{
    writeFile(folder / "data", randomBytes(300'000));
    backUp({sample("a")});
    backUp({folder / "data"}, 100);
    fs::rename(archives, folder / "whole");
    using Spoil = std::function<void(const Paths &)>;
    // No concern: it can't be seen by looking at names and sizes.
    for (const auto &[reason, concern, spoil] : std::vector<std::tuple<const char *, QString, Spoil>>{
             {"A volume is missing", u"may not be the last"_s, [](auto &set) { fs::remove(set[3]); }},
             {"A volume is missing", u"volume 3 is missing"_s, [](auto &set) { fs::remove(set[2]); }},
             {"is cut short", {}, [](auto &set) { fs::resize_file(set[3], 5000); }},
             {"is cut short", u"from volume 3 on are leftovers"_s,
              [](auto &set) { fs::resize_file(set[1], 5000); }},
             {"is damaged", {}, [](auto &set) { damage(set[1]); }},
         }) {
        SCOPED_TRACE(reason + concern.toStdString());
        fs::remove_all(archives);
        fs::copy(folder / "whole", archives);
        const Paths set = volumes("data.rar.aes.rar");
        ASSERT_EQ(set.size(), 4U);
        spoil(set);
        extract({archives / "a.rar.aes.rar", set.front()});
        EXPECT_EQ(damaged, text(set.front()));
        EXPECT_EQ(findings.concerns.isEmpty(), concern.isEmpty());
        EXPECT_TRUE(findings.concerns.value(0).contains(concern)) << qPrintable(findings.concerns.value(0));
        EXPECT_EQ(namesIn(out) + monitor->console.toStdString(), "");
        EXPECT_EQ(summary().find("Failed: " + set.front().string()), 0U) << summary();
        EXPECT_NE(summary().find(reason), std::string::npos) << summary();
    }
}
