#include "EngineRun.h"
#include "TestProgram.h"

#include <thread>

namespace fs = std::filesystem;

namespace {

class ExtractFindings : public EngineTest {
protected:
    const fs::path docs = sample("docs");
    const fs::path archive = archives / "docs.rar.aes.rar";
};

} // namespace

TEST(Room, IsEstimatedForThoseThatAreWorkedOnTogether)
{
    // 300 bytes: 400 of base64 with 300 of the inner archive, then 300 and the contents' 300.
    EXPECT_EQ(roomNeeded({300}, 2), 700);
    EXPECT_EQ(roomNeeded({300, 300}, 2), 1400);
    EXPECT_EQ(roomNeeded({30, 300, 300}, 1), 630 + 400);
}

// "!" is an obstacle, "?" asks whether files may be overwritten, anything else is a concern.
TEST_F(ExtractFindings, TellWhatIsWrongAndWhatToDo)
{
    backUp({docs});
    const auto copy = [this](const fs::path &path) {
        fs::create_directories(path.parent_path());
        fs::copy_file(archive, path, fs::copy_options::overwrite_existing);
        return path;
    };
    const fs::path unknown = copy(archives / "holiday.rar");
    const fs::path other = copy(folder / "other/docs.rar.aes.rar");
    const fs::path message = copy(archives / "docs.rar.smime.rar");
    const fs::path inThere = out / "docs.rar";
    const auto list = [this](const Paths &paths) {
        return [this, paths](ExtractOrder &o) { o = extractOrder(paths); };
    };
    const auto there = [this](const std::string &name) {
        return [this, name](ExtractOrder &) { writeFile(out / name, "mine"); };
    };
    using Change = std::function<void(ExtractOrder &)>;
    // Expected is a part of each finding, in their order.
    for (const auto &[change, expected] : std::vector<std::pair<Change, QStringList>>{
             {[](ExtractOrder &) {}, {}},
             {[](ExtractOrder &o) { o.folder = u"/no/such"_s; }, {u"!/no/such\" does not exist"_s}},
             {[&](ExtractOrder &o) {
                  o = extractOrder({archive, copy(inThere)});
              },
              {u"!docs.rar\" is one of the archives"_s, u"!comes out of"_s}},
             {[&](ExtractOrder &o) { o.shown.append(text(copy(out / "docs.rar.aes.aes"))); },
              {u"!docs.rar.aes.aes\" is one of the archives"_s}},
             {there("docs.rar"), {u"docs.rar\" is there, and its name"_s, u"?not empty"_s}},
             {there("docs.rar.aes"), {u"docs.rar.aes\" is there"_s, u"?not empty"_s}},
             {there("docs.rar.aes.aes"), {u"docs.rar.aes.aes\" is there"_s, u"?not empty"_s}},
             {there("docs.rar.aes/x"), {u"is a folder"_s, u"?not empty"_s}},
             {[&](ExtractOrder &o) {
                  writeFile(out / "an edited fil\u00e9", "x"), o.asksBeforeReplacing = false;
              },
              {}},
             {there("an edited fil\u00e9"), {u"?not empty"_s}},
             {[](ExtractOrder &o) { o.password = Secret::fromText(QString(1100, u'x')); }, {}},
             {[](ExtractOrder &o) { o.isCertificateChosen = true; }, {u"was encrypted by a password"_s}},
             {list({message}), {u"No private key"_s, u"No certificate"_s}},
             {[&](ExtractOrder &o) {
                  o = extractOrder({message});
                  o.key = u"/no/key"_s, o.certificate = text(message);
              },
              {u"\"/no/key\" can't be read"_s}},
             {list({unknown}), {u"does not tell how"_s}},
             {list({archive, other}),
              {u"docs.rar.aes\" for a while"_s, u"docs.rar\" for a while"_s,
               u"docs.rar.aes.aes\" for a while"_s}},
             {[&](auto &o) {
                  o = extractOrder({archive, other}), o.chosen = {"letter"};
              },
              {u"!one archive at a time"_s}},
             {list({archive, folder / "gone.rar"}), {u"is not there any more"_s}},
             {list({archive, folder / "a.part2.rar", folder / "b.part3.rar"}),
              {u"a.part2.rar"_s, u"b.part3.rar"_s}},
         }) {
        fs::remove_all(out);
        fs::create_directories(out);
        ExtractOrder order = extractOrder({archive});
        change(order);
        FolderLock lock;
        const Findings found = lookAtExtraction(order, lock);
        QStringList lines = found.concerns;
        for (const QString &obstacle : found.obstacles)
            lines.append(u'!' + obstacle);
        if (!found.overwrites.isEmpty()) lines.append(u'?' + found.overwrites);
        SCOPED_TRACE((expected.join(u'|') + u" in: "_s + lines.join(u'\n')).toStdString());
        ASSERT_EQ(lines.size(), expected.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString part = expected[i];
            const bool hasSign = part.startsWith(u'!') || part.startsWith(u'?');
            EXPECT_TRUE(lines[i].contains(hasSign ? part.mid(1) : part));
            EXPECT_EQ(lines[i].startsWith(u'!') || lines[i].startsWith(u'?'), hasSign);
            EXPECT_TRUE(!hasSign || lines[i][0] == part[0]);
        }
    }
    FolderLock held = FolderLock::take(text(out));
    FolderLock lock;
    ExtractOrder order = extractOrder({archive});
    EXPECT_TRUE(lookAtExtraction(order, lock).obstacles.value(0).startsWith(u"Another run"));
    // What holds it for a moment is no run.
    std::thread asking(
        [held = std::move(held)] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); });
    EXPECT_EQ(lookAtExtraction(order, lock).obstacles, QStringList());
    asking.join();
}

// What is in the way of an extraction that goes on all the same stays, under another name.
TEST_F(ExtractFindings, OverruledTheyCostNothing)
{
    backUp({docs});
    for (const char *name : {"docs.rar", "docs.rar.aes", "docs.rar.aes.aes"}) {
        writeFile(folder / name, name);
        fs::create_symlink(folder / name, out / name); // through which nothing is written
    }
    extract({archive, archives / "later.part2.rar"});
    EXPECT_EQ(monitor->console, QString());
    EXPECT_EQ(monitor->record.outcome, Outcome::Failed) << "one was left out";
    EXPECT_NE(summary().find("later.part2.rar"), std::string::npos) << summary();
    for (const char *name : {"docs.rar", "docs.rar.aes", "docs.rar.aes.aes"})
        EXPECT_EQ(readFile(out / ("kept-" + std::string(name))), name) << "or what it leads to";
    EXPECT_EQ(readFile(extracted(docs) / "file"), "x");
    EXPECT_FALSE(fs::exists(out / "docs.rar"));
}

TEST_F(ExtractFindings, AreShownAndMayBeOverruled)
{
    backUp({docs});
    writeFile(out / "other", "x");
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    bool goesOn = false;
    QString said;
    delegate.warningPanel02.observe([&] {
        if (delegate.warningPanel02.place() == outlets::Panel::Place::Hidden) return;
        said = delegate.folderNotEmptyText01.text();
        goesOn ? delegate.buttonLaunch02b() : delegate.buttonLaunch02Stop();
    });
    for (const auto &[expected, spoil] : std::vector<std::pair<QString, std::function<void()>>>{
             {u"No extraction folder"_s, [&] { delegate.extractPath.setText({}); }},
             {u"not this profile's own"_s, [&] { delegate.currentRecord().remove(u"extractpath"_s); }},
             {u"No archives"_s, [&] { delegate.extractButton03Action(); }},
             {u"No password"_s, [&] { delegate.secureText01a.setText({}); }},
             {u"line break"_s, [&] { delegate.secureText01a.setText(u"correct\nhorse"_s); }},
             {u"No certificate"_s, [&] { delegate.passCombo01.selectIndex(PasswordTab::Certificate); }},
             {text(out), [] {}},
             {text(out), [&] { goesOn = true; }},
         }) {
        SCOPED_TRACE(expected.toStdString());
        delegate.extractPath.setText(text(out));
        delegate.currentRecord().setValue(u"extractpath"_s, text(out));
        delegate.secureText01a.setText(u"correct horse"_s);
        delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);
        delegate.extractButton03Action();
        delegate.addArchives({text(archive)});
        spoil();
        said.clear();
        delegate.buttonLaunch02();
        program.waitForEnd();
        EXPECT_TRUE((said.isEmpty() ? program.lastWarning() : said).contains(expected)) << qPrintable(said);
        EXPECT_EQ(fs::exists(extracted(docs) / "file"), goesOn);
        EXPECT_EQ(delegate.extractedFolder(), goesOn ? text(extracted(docs)) : QString());
    }
}
