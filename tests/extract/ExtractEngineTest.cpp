#include "EngineRun.h"

#include "Credentials.h"
#include "extract/ExtractArguments.h"

#include <QRegularExpression>
#include <set>

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
                              quillorentLibrary::lastPathComponent(item.source), u".rar"_qs, extension);
        order.cipher = cipher;
        order.byCertificate = cipher == u"smime";
        order.certificate = text(keys.certificate);
        run(std::move(order));
        expectSuccess();
    }

    [[nodiscard]] ExtractOrder keyedOrder(const Paths &listed) const
    {
        ExtractOrder order = extractOrder(listed);
        order.key = text(keys.key);
        order.certificate = text(keys.certificate);
        return order;
    }

    [[nodiscard]] Paths volumes(const std::string &whole) const
    {
        Paths paths;
        for (const QString &file : filesOfArchive(text(archives / whole)))
            paths.emplace_back(file.toStdString());
        return paths;
    }

    void startAnew() const
    {
        for (const fs::path &path : {archives, out}) {
            fs::remove_all(path);
            fs::create_directories(path);
        }
    }

    const Credentials keys = makeCredentials(folder, "anna");
};

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
    for (const auto &[extension, cipher] : {std::pair{u".aes"_qs, u"aes-256-cbc"_qs},
                                            {u".bf"_qs, u"bf-cbc"_qs},
                                            {u".3d"_qs, u"des-ede3-cbc"_qs},
                                            {u".smime"_qs, u"smime"_qs}})
        for (const int volume : {0, 300}) {
            SCOPED_TRACE(extension.toStdString() + (volume ? " split" : " whole"));
            startAnew();
            backUpBy(tree, extension, cipher, volume);
            run(keyedOrder(volumes("odd tree.rar" + extension.toStdString() + ".rar")));
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
        backUpBy(file, u".bf"_qs, u"bf-cbc"_qs, size);
        Paths renamed;
        for (const fs::path &volume : volumes("data.rar.bf.rar")) {
            const std::string number = volume.stem().extension();
            EXPECT_EQ(number.size(), std::size_t(digits) + 5);
            renamed.push_back(archives / (name + number + ".rar"));
            fs::rename(volume, renamed.back());
        }
        extract(renamed);
        expectSuccess();
        EXPECT_EQ(state->foldersToDo(), double(renamed.size()));
        EXPECT_EQ(state->foldersDone(), 1);
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
        backUpBy(docs, u".aes"_qs, u"aes-256-cbc"_qs);
        fs::remove(docs / ("only " + std::string(date)));
        dated.push_back(folder / ("docs " + std::string(date) + ".rar.aes.rar"));
        fs::rename(archives / "docs.rar.aes.rar", dated.back());
    }
    // Of one name, from two folders.
    for (const char *place : {"one", "two"}) {
        fs::create_directories(folder / place);
        fs::copy_file(dated[place == std::string("two")], folder / place / "docs.rar.aes.rar");
    }
    const fs::path again = folder / "two/docs.rar.aes.rar";
    const fs::path relative = docs.relative_path();
    for (const auto &[listed, folders] :
         {std::pair{dated, Paths{out, out / "docs 2024-02", out / "docs 2024-03"}},
          {{folder / "one/docs.rar.aes.rar", again}, {out, out / "docs"}}}) {
        SCOPED_TRACE(listed.front());
        startAnew();
        extract(listed);
        expectSuccess();
        EXPECT_EQ(state->foldersDone(), double(listed.size()));
        // Which of them comes first, and so into the folder itself, is open.
        std::set<std::string> contents;
        int others = 0;
        for (const auto &entry : fs::recursive_directory_iterator(out)) {
            if (entry.path().filename() != "file") continue;
            const std::string date = readFile(entry.path());
            contents.insert(date);
            EXPECT_EQ(std::distance(fs::directory_iterator(entry.path().parent_path()), {}), 2) << date;
            EXPECT_TRUE(fs::exists(entry.path().parent_path() / ("only " + date)));
            const fs::path own = entry.path().parent_path().lexically_relative(out / relative);
            if (own != ".") ++others;
        }
        EXPECT_EQ(contents.size(), listed.size());
        EXPECT_EQ(others, int(folders.size()) - 1);
        EXPECT_EQ(monitor->record.summary.count(u"would have replaced"_qs), others) << summary();
    }
    // What can't meet stays together.
    startAnew();
    const fs::path other = sample("other");
    backUp({other});
    extract({dated.front(), archives / "other.rar.aes.rar"});
    EXPECT_EQ(monitor->record.summary.count(u"would have replaced"_qs), 0) << summary();
    EXPECT_TRUE(fs::exists(extracted(docs)) && fs::exists(extracted(other)));
}

TEST_F(ExtractEngine, EachCauseReadsDifferently)
{
    const QString firstOk = u"unRAR 1st OK"_qs, firstError = u"unRAR 1st ERROR"_qs;
    const QString decodeOk = u"DECODE OK"_qs, decodeError = u"DECODE ERROR"_qs;
    const QString secondError = u"unRAR 2nd ERROR"_qs;
    backUp({sample("docs")});
    backUpBy(folder / "docs", u".smime"_qs, u"smime"_qs);
    const auto [otherCertificate, otherKey] = makeCredentials(folder, "berta");
    const fs::path archive = archives / "docs.rar.aes.rar";
    const fs::path message = archives / "docs.rar.smime.rar";
    const std::string real = " *) exec " + realRar.toStdString() + " \"$@\";; esac";
    const QString blind = writeScript(folder / "blind", "case $1 in t) ;;" + real);
    const QString blindest = writeScript(folder / "blindest", "case $1 in t | x) ;;" + real);
    const QString rubbish =
        writeScript(folder / "rubbish", "while [ \"$1\" != -out ]; do shift; done; echo x >\"$2\"");
    const auto plant = [&](const std::string &path, const std::string &command) {
        return writeScript(folder / "plant", realRar.toStdString() + " \"$@\" || exit; case $1 in e) rm " +
                                                 path + "; " + command + " " + path + ";; esac");
    };
    const std::string encrypted = out / "docs.rar.aes";
    struct Case {
        const char *name;
        std::function<void(ExtractOrder &)> change;
        QString sentence;  ///< a pattern
        QStringList lines; ///< of the console; none: which stage notices is open
    };
    for (const auto &[name, change, sentence, lines] : std::vector<Case>{
             {"damaged",
              [&](auto &o) { o.archiver = blind, damage(archive); },
              u"is damaged: .*checksum"_qs,
              {firstError}},
             {"cut short",
              [&](auto &o) { o.archiver = blind, fs::resize_file(archive, fs::file_size(archive) / 2); },
              u"is cut short"_qs,
              {firstError}},
             {"encrypted file's name taken",
              [&](auto &) { writeFile(encrypted + "/x", "x"); },
              u"docs.rar.aes\" is a folder"_qs,
              {firstError}},
             {"inner archive's name taken",
              [&](auto &) { writeFile(out / "docs.rar/x", "x"); },
              u"docs.rar\" is a folder"_qs,
              {firstOk, decodeError}},
             {"contents' name taken",
              [&](auto &) { writeFile(out / *folder.relative_path().begin(), "x"); },
              u"is taken by something else"_qs,
              {firstOk, decodeOk, secondError}},
             {"other method",
              [](auto &o) { o.items[0].command = u"bf-cbc"_qs; },
              u"its name tells another one|password is probably wrong"_qs,
              {}},
             {"wrong password",
              [](auto &o) { o.password = Secret::fromText(u"wrong"_qs); },
              u"password is (probably )?wrong"_qs,
              {}},
             {"silent rubbish",
              [&](auto &o) { o.decoder = rubbish; },
              u"password is probably wrong"_qs,
              {firstOk, decodeOk, secondError}},
             {"silent rubbish, silent archiver",
              [&](auto &o) { o.decoder = rubbish, o.archiver = blindest; },
              u"password is probably wrong"_qs,
              {firstOk, decodeOk, secondError}},
             {"tool missing",
              [](auto &o) { o.decoder = u"/nowhere/openssl"_qs; },
              u"Can't start \"/nowhere/openssl\""_qs,
              {firstOk, decodeError}},
             {"wrong key",
              [&](auto &o) {
                  o = extractOrder({message}), o.key = text(otherKey), o.certificate = text(otherCertificate);
              },
              u"with this private key and certificate|The private key is wrong"_qs,
              {}},
             {"no key",
              [&](auto &o) { o = extractOrder({message}); },
              u"The private key can't be read"_qs,
              {firstOk, decodeError}},
             {"link planted",
              [&](auto &o) { o.archiver = plant(encrypted, "ln -s " + archive.string()); },
              u"."_qs,
              {firstOk, decodeError}},
             {"pipe planted",
              [&](auto &o) { o.archiver = plant(encrypted, "mkfifo"); },
              u"has been replaced by a pipe"_qs,
              {firstOk, decodeError}},
         }) {
        SCOPED_TRACE(name);
        const std::string whole = readFile(archive);
        ExtractOrder order = extractOrder({archive});
        change(order);
        const QString listed = order.items.first().archive;
        run(std::move(order));
        const QStringList shown = monitor->console.split(u'\n');
        ASSERT_GE(shown.size(), 3) << qPrintable(monitor->console) << summary();
        EXPECT_EQ(shown[0], QString());
        EXPECT_TRUE(QRegularExpression(sentence).match(shown[1]).hasMatch()) << qPrintable(shown[1]);
        QStringList expected;
        for (const QString &line : lines)
            expected.append(line + u" - "_qs + listed);
        expected.append(u" *** ERROR! *** "_qs + listed);
        EXPECT_EQ((lines.isEmpty() ? shown.last(1) : shown.mid(2)).join(u'\n').toStdString(),
                  expected.join(u'\n').toStdString());
        EXPECT_EQ(state->foldersDone(), 0);
        EXPECT_EQ(monitor->record.outcome, Outcome::Failed);
        EXPECT_EQ(summary().find("Failed: "), 0U) << summary();
        EXPECT_FALSE(fs::exists(extracted(folder / "docs")));
        writeFile(archive, whole);
        fs::remove_all(out);
        fs::create_directories(out);
    }
    extract({archive});
    expectSuccess();
}

// A tool that says nothing lets the later stages run, but nobody is told that all is well.
TEST_F(ExtractEngine, SilenceIsNotBelieved)
{
    backUp({sample("docs")});
    struct Case {
        bool isArchiver;
        std::string body; ///< "real" is the tool
        const char *reason;
    };
    for (const auto &[isArchiver, body, reason] : std::vector<Case>{
             {true, "[ $1 = x ] && exit 1; exec real \"$@\"", "unRAR 2nd: the tool ended with status 1"},
             {true, "real \"$@\"; [ $1 != e ]", "unRAR 1st: the tool ended with status 1"},
             {false, "real \"$@\"; exit 1", "DECODE: the tool ended with status 1"},
         }) {
        SCOPED_TRACE(reason);
        std::string script = body;
        const std::string tool = (isArchiver ? realRar : realOpenSsl).toStdString();
        script.replace(script.find("real"), 4, tool);
        ExtractOrder order = extractOrder({archives / "docs.rar.aes.rar"});
        (isArchiver ? order.archiver : order.decoder) = writeScript(folder / "silent", script);
        run(std::move(order));
        EXPECT_EQ(monitor->console, QString());
        EXPECT_EQ(state->foldersDone(), 1);
        EXPECT_EQ(monitor->record.outcome, Outcome::Failed);
        EXPECT_NE(summary().find(reason), std::string::npos) << summary();
    }
}

TEST_F(ExtractEngine, ADamagedArchiveKeepsTheOthersBack)
{
    const fs::path good = sample("a");
    const fs::path data = folder / "data";
    writeFile(data, randomBytes(300'000));
    struct Case {
        const char *name;
        std::function<void(const Paths &)> spoil;
        QString concern;
        const char *reason;
    };
    for (const auto &[name, spoil, concern, reason] : std::vector<Case>{
             {"last missing", [](const Paths &v) { fs::remove(v[3]); }, u"may not be the last"_qs,
              "A volume is missing: Cannot find volume"},
             {"middle missing", [](const Paths &v) { fs::remove(v[2]); }, u"volume 3 is missing"_qs,
              "A volume is missing"},
             {"last cut short", [](const Paths &v) { fs::resize_file(v[3], 5000); }, {}, "is cut short"},
             {"middle cut short", [](const Paths &v) { fs::resize_file(v[1], 5000); },
              u"volume 2 is shorter"_qs, "is cut short"},
             {"middle damaged", [](const Paths &v) { damage(v[1]); }, {}, "is damaged"},
         }) {
        SCOPED_TRACE(name);
        startAnew();
        backUp({good});
        backUp({data}, 100);
        const Paths set = volumes("data.rar.aes.rar");
        ASSERT_EQ(set.size(), 4U);
        spoil(set);
        extract({archives / "a.rar.aes.rar", set.front()});
        EXPECT_EQ(damaged, text(set.front()));
        EXPECT_EQ(findings.concerns.isEmpty(), concern.isEmpty());
        EXPECT_TRUE(findings.concerns.join(u'\n').contains(concern))
            << qPrintable(findings.concerns.join(u'\n'));
        EXPECT_EQ(namesIn(out), "");
        EXPECT_EQ(monitor->console, QString());
        EXPECT_EQ(summary().find("Failed: " + set.front().string()), 0U) << summary();
        EXPECT_NE(summary().find(reason), std::string::npos) << summary();
    }
}

TEST(ExtractArguments, AreThoseThatArchiversKnow)
{
    using namespace extractArguments;
    EXPECT_EQ(test(u"/a"_qs).join(u'|'), u"t|-idq|/a");
    EXPECT_EQ(unpackOuter(u"/a"_qs, u"/o"_qs).join(u'|'), u"e|-o+|-idq|/a|/o");
    EXPECT_EQ(unpackInner(u"/a"_qs, u"/o"_qs).join(u'|'), u"x|-o+|-idq|/a|/o");
    EXPECT_EQ(decryptByPassword(u"bf-cbc"_qs, u"/e"_qs, u"/i"_qs, u"p w"_qs).join(u'|'),
              u"bf-cbc|-d|-a|-salt|-in|/e|-out|/i|-pass|pass:p w");
    EXPECT_EQ(decryptByCertificate(u"/e"_qs, u"/i"_qs, u"/k"_qs, u"/c"_qs).join(u'|'),
              u"smime|-aes256|-decrypt|-binary|-in|/e|-out|/i|-inkey|/k|/c");
}
