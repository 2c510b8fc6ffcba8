#include "EngineRun.h"
#include "TestProgram.h"

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
    struct Case {
        std::function<void(ExtractOrder &)> change;
        QStringList expected; ///< a part of each finding, in their order
    };
    for (const Case &c : std::vector<Case>{
             {[](ExtractOrder &) {}, {}},
             {[](ExtractOrder &o) { o.folder = u"/no/such"_qs; }, {u"!/no/such\" does not exist"_qs}},
             {[&](ExtractOrder &o) {
                  o = extractOrder({archive, copy(inThere)});
              },
              {u"!docs.rar\" is one of the archives"_qs, u"!comes out of"_qs}},
             {[&](ExtractOrder &o) { o.shown.append(text(copy(out / "docs.rar.aes.aes"))); },
              {u"!docs.rar.aes.aes\" is one of the archives"_qs}},
             {there("docs.rar"), {u"docs.rar\" is there, and its name"_qs, u"?not empty"_qs}},
             {there("docs.rar.aes"), {u"docs.rar.aes\" is there"_qs, u"?not empty"_qs}},
             {there("docs.rar.aes.aes"), {u"docs.rar.aes.aes\" is there"_qs, u"?not empty"_qs}},
             {there("docs.rar.aes/x"), {u"is a folder"_qs, u"?not empty"_qs}},
             {[&](ExtractOrder &o) {
                  writeFile(out / "an edited fil\u00e9", "x"), o.asksBeforeReplacing = false;
              },
              {}},
             {there("an edited fil\u00e9"), {u"?not empty"_qs}},
             {[](ExtractOrder &o) { o.isCertificateChosen = true; }, {u"was encrypted by a password"_qs}},
             {list({message}), {u"No private key"_qs, u"No certificate"_qs}},
             {[&](ExtractOrder &o) {
                  o = extractOrder({message});
                  o.key = u"/no/key"_qs, o.certificate = text(message);
              },
              {u"\"/no/key\" can't be read"_qs}},
             {list({unknown}), {u"does not tell how"_qs}},
             {list({archive, other}),
              {u"docs.rar.aes\" for a while"_qs, u"docs.rar\" for a while"_qs,
               u"docs.rar.aes.aes\" for a while"_qs}},
             {list({archive, folder / "gone.rar"}), {u"is not there any more"_qs}},
             {list({archive, folder / "a.part2.rar", folder / "b.part3.rar"}),
              {u"a.part2.rar"_qs, u"b.part3.rar"_qs}},
         }) {
        fs::remove_all(out);
        fs::create_directories(out);
        ExtractOrder order = extractOrder({archive});
        c.change(order);
        FolderLock lock;
        const Findings found = lookAtExtraction(order, lock);
        QStringList lines = found.concerns;
        for (const QString &obstacle : found.obstacles)
            lines.append(u'!' + obstacle);
        if (!found.overwrites.isEmpty()) lines.append(u'?' + found.overwrites);
        SCOPED_TRACE((c.expected.join(u'|') + u" in: "_qs + lines.join(u'\n')).toStdString());
        ASSERT_EQ(lines.size(), c.expected.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString part = c.expected[i];
            const bool hasSign = part.startsWith(u'!') || part.startsWith(u'?');
            EXPECT_TRUE(lines[i].contains(hasSign ? part.mid(1) : part));
            EXPECT_EQ(lines[i].startsWith(u'!') || lines[i].startsWith(u'?'), hasSign);
            EXPECT_TRUE(!hasSign || lines[i][0] == part[0]);
        }
    }
    const FolderLock held = FolderLock::take(text(out));
    FolderLock lock;
    ExtractOrder order = extractOrder({archive});
    EXPECT_TRUE(lookAtExtraction(order, lock).obstacles.value(0).startsWith(u"Another run"));
}

// What is in the way of an extraction that goes on all the same stays, under another name.
TEST_F(ExtractFindings, OverruledTheyCostNothing)
{
    backUp({docs});
    for (const char *name : {"docs.rar", "docs.rar.aes", "docs.rar.aes.aes"})
        writeFile(out / name, name);
    extract({archive, archives / "later.part2.rar"});
    EXPECT_EQ(monitor->console, QString());
    EXPECT_EQ(monitor->record.outcome, Outcome::Failed) << "one was left out";
    EXPECT_NE(summary().find("later.part2.rar"), std::string::npos) << summary();
    for (const char *name : {"docs.rar", "docs.rar.aes", "docs.rar.aes.aes"})
        EXPECT_EQ(readFile(out / ("kept-" + std::string(name))), name);
    EXPECT_EQ(readFile(extracted(docs) / "file"), "x");
    EXPECT_FALSE(fs::exists(out / "docs.rar"));
}

TEST_F(ExtractFindings, AreShownAndMayBeOverruled)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    program.setUpBackup({toQString(docs)});
    delegate.checkBox04.setOn(false);
    program.backUp();
    fs::create_directories(program.folder() / "out");
    struct Case {
        std::function<void()> spoil;
        QString text; ///< of a warning; null: nothing is wrong
    };
    const auto prepare = [&](const QString &listed) {
        delegate.extractPath.setText(program.path("out"));
        delegate.currentRecord().setValue(u"extractpath"_qs, program.path("out"));
        delegate.secureText01a.setText(u"correct horse"_qs);
        delegate.extractButton03Action();
        delegate.addArchives({listed});
    };
    for (const auto &[spoil, text] : std::vector<Case>{
             {[&] { delegate.extractPath.setText({}); }, u"No extraction folder"_qs},
             {[&] { delegate.currentRecord().remove(u"extractpath"_qs); }, u"not this profile's own"_qs},
             {[&] { delegate.extractButton03Action(); }, u"No archives"_qs},
             {[&] { delegate.secureText01a.setText({}); }, u"No password"_qs},
             {[&] { delegate.passCombo01.selectIndex(PasswordTab::Certificate); }, u"No certificate"_qs},
         }) {
        prepare(program.path("archives/docs.rar.aes.rar"));
        spoil();
        delegate.buttonLaunch02();
        program.waitForEnd();
        EXPECT_TRUE(program.lastWarning().contains(text)) << qPrintable(program.lastWarning());
    }
    delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);

    // A question of its own where the folder is not empty, and one for all where there is more to say.
    const fs::path renamed = program.folder() / "holiday.rar";
    fs::copy_file(program.folder() / "archives/docs.rar.aes.rar", renamed);
    writeFile(program.folder() / "out/other", "x");
    const fs::path file = program.folder() / "out" / (docs / "file").relative_path();
    for (const bool isNamed : {true, false})
        for (const bool goesOn : {false, true}) {
            SCOPED_TRACE(int(isNamed) * 2 + int(goesOn));
            outlets::Panel &panel = isNamed ? delegate.warningPanel02 : delegate.concernsPanel01;
            int asked = 0;
            panel.observe([&] {
                if (panel.place() == outlets::Panel::Place::Hidden) return;
                ++asked;
                const QString said =
                    isNamed ? delegate.folderNotEmptyText01.text() : delegate.concernsText01.text();
                EXPECT_TRUE(said.contains(program.path("out")) &&
                            (isNamed || said.contains(u"does not tell how")));
                if (isNamed)
                    goesOn ? delegate.buttonLaunch02b() : delegate.buttonLaunch02Stop();
                else
                    goesOn ? delegate.concernsPanel01GoOn() : delegate.concernsPanel01Stop();
            });
            prepare(isNamed ? program.path("archives/docs.rar.aes.rar") : toQString(renamed));
            delegate.buttonLaunch02();
            program.waitForEnd();
            EXPECT_EQ(asked, 1);
            EXPECT_EQ(fs::exists(file), goesOn);
            EXPECT_EQ(delegate.extractedFolder(), goesOn ? program.path("out") : QString());
            fs::remove(file);
        }

    // One that is damaged is shown, and nothing is extracted.
    fs::resize_file(program.folder() / "archives/docs.rar.aes.rar", 100);
    QString shown;
    delegate.extractPanel01.observe([&] {
        if (delegate.extractPanel01.place() == outlets::Panel::Place::Hidden) return;
        shown = delegate.extractPanelText01.text() + delegate.extractReasonText01.text();
        delegate.stopProcess02b();
    });
    prepare(program.path("archives/docs.rar.aes.rar"));
    delegate.buttonLaunch02b();
    program.waitForEnd();
    EXPECT_TRUE(shown.startsWith(program.path("archives/docs.rar.aes.rar")) && shown.contains(u"cut short"));
    EXPECT_TRUE(delegate.outputText02.text().startsWith(u"Failed: "));
    EXPECT_FALSE(fs::exists(file));
}
