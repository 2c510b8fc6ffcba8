// The page of the backup, as a person finds it before and after one.

#include "TestWindow.h"

#include "Tree.h"

#include "runs/RunJournal.h"
#include "ui/lists/FolderList.h"

#include <QScrollArea>
#include <QToolButton>

namespace fs = std::filesystem;

namespace {

class FoldersTest : public WindowTest {
protected:
    explicit FoldersTest(bool isFirstStart = false) : WindowTest(isFirstStart)
    {
        QApplication::setActiveWindow(&window); // no window manager does
    }

    QStringList folders() const { return delegate.currentRecord().array(u"folders"_s).strings(); }

    void haveDestination(const std::string &name)
    {
        fs::create_directories(program.folder() / name);
        program.choose(program.path(name));
        click(u"fileButton01"_s);
    }

    /// Leaves the record of a backup into "archives" that ended now, and nothing else that tells of it.
    void haveResult(Outcome outcome, const QList<ItemRecord> &items)
    {
        fs::remove_all(recordsFolder().toStdString());
        const QDateTime now = QDateTime::currentDateTimeUtc();
        RunJournal({.kind = u"backup"_s,
                    .profile = delegate.currentProfile(),
                    .folder = program.path("archives"),
                    .began = now.addSecs(-660),
                    .ended = now,
                    .outcome = outcome,
                    .items = items})
            .begin();
        delegate.listTableView.reloadData();
    }

    /// What is shown of a row, in its columns.
    QString row(int index)
    {
        const QAbstractItemModel &model = *widget<QAbstractItemView>(u"listTableView"_s).model();
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(index, column).data().toString().trimmed());
        return cells.join(u'|').replace(toQString(program.folder()), u"."_s);
    }

    /// Of the list of what is missing, the texts and the buttons.
    template <class W>
    QList<W *> missing()
    {
        QList<W *> found;
        const QWidget &list = widget(u"hindranceList"_s);
        for (W *each : list.findChildren<W *>())
            if (!list.isHidden() && each->isVisibleTo(&list) && !each->text().isEmpty()) found.append(each);
        return found;
    }

    void pressUndo() { QTest::keyClick(window.focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
};

class FirstStartTest : public FoldersTest {
protected:
    FirstStartTest() : FoldersTest(true) {}
};

} // namespace

TEST_F(FoldersTest, TheListTellsWhatIsKnownOfEachEntry)
{
    for (const auto &[name, size] :
         {std::pair{"data/docs/a", 150'000}, {"data/file", 2'000}, {"inside/x", 1}})
        writeFile(program.folder() / name, randomBytes(size_t(size)));
    fs::create_symlink(program.folder() / "data/docs", program.folder() / "link");
    QStringList paths;
    for (const char *name : {"data/docs", "data/file", "gone", "link", "inside"})
        paths.append(program.path(name));
    haveDestination("inside/archives");
    delegate.addFolders(paths);
    const QStringList expected{u"docs|./data|15"_s, u"file|./data|2.0 kB|never"_s,
                               u"gone|.|not found|never"_s, u"link|.|only a link|never"_s,
                               u"inside|.|holds the destination|never"_s};
    for (int index = 0; index < expected.size(); ++index)
        EXPECT_TRUE(waitUntil([&] { return row(index).startsWith(expected[index]); }))
            << qPrintable(row(index));
    // What a run has told is told after it, and by a window that opens later.
    haveResult(Outcome::Succeeded, {{.path = paths[2], .outcome = Outcome::Succeeded, .bytes = 5}});
    EXPECT_TRUE(waitUntil([&] { return row(2).startsWith(u"gone|.|not found|today at "); }))
        << qPrintable(row(2));
}

TEST_F(FoldersTest, WhatWasRemovedComesBack)
{
    QStringList all;
    for (const char *name : {"a", "b", "c", "d"})
        all.append(program.path(name));
    delegate.addFolders(all);
    settle();
    auto &list = widget<ui::FolderListView>(u"listTableView"_s);
    list.setFocus();
    for (const bool byKey : {true, false}) {
        list.selectRows({0, 2});
        settle();
        QTest::keyClick(&list, Qt::Key_Delete);
        settle();
        EXPECT_EQ(folders(), (QStringList{all[1], all[3]}));
        ASSERT_TRUE(widget(u"undoButton"_s).isVisible());
        EXPECT_EQ(said(u"removedText"_s), u"2 entries are off the list."_s);
        byKey ? pressUndo() : click(u"undoButton"_s);
        settle();
        EXPECT_EQ(folders(), all);
        EXPECT_FALSE(widget(u"undoButton"_s).isVisible());
    }
    // In another profile it would put them where they never were.
    list.setFocus();
    list.selectRows({0});
    settle();
    click(u"folderButton02"_s);
    ASSERT_TRUE(widget(u"undoButton"_s).isVisible());
    open(delegate.defaultProfile().deepCopy());
    EXPECT_FALSE(widget(u"undoButton"_s).isVisible());
    pressUndo();
    EXPECT_EQ(folders(), QStringList());
}

TEST_F(FoldersTest, ListsSayThatTheyTakeADrop)
{
    for (const auto &[page, name] : {std::pair{u"foldersPage"_s, u"listTableView"_s},
                                     {u"extractPage"_s, u"extractTableView"_s},
                                     {u"synchronisationPage"_s, u"syncTableView"_s}}) {
        if (ui::widgetsNamed(page, window.roots()).size() == 1) showTab(page);
        auto &viewport = *widget<QAbstractItemView>(name).viewport();
        const QImage before = viewport.grab().toImage();
        for (const bool isFile : {true, false}) {
            QMimeData held;
            held.setUrls({isFile ? QUrl::fromLocalFile(program.path("x")) : QUrl(u"http://localhost/x"_s)});
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &held, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&viewport, &enter);
            EXPECT_EQ(viewport.grab().toImage() != before, isFile) << qPrintable(name);
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&viewport, &leave);
            EXPECT_EQ(viewport.grab().toImage(), before) << qPrintable(name);
        }
    }
    drop(widget<QAbstractItemView>(u"listTableView"_s),
         {QUrl::fromLocalFile(program.path("home")), QUrl(u"http://localhost/page"_s)});
    EXPECT_EQ(folders(), QStringList{program.path("home")});
}

// The same sentences, whether the button is pressed or not; each leads to where it is put right.
TEST_F(FoldersTest, WhatKeepsABackupFromStartingIsSaidBefore)
{
    const auto says = [this](const QStringList &parts) {
        QString all;
        const bool isSaid = waitUntil([&] {
            QStringList texts;
            for (const QLabel *label : missing<QLabel>())
                texts.append(label->text());
            all = texts.join(u'\n');
            return missing<QToolButton>().size() == parts.size() &&
                   std::all_of(parts.begin(), parts.end(),
                               [&](const QString &part) { return all.contains(part); });
        });
        return (isSaid ? testing::AssertionSuccess() : testing::AssertionFailure()) << qPrintable(all);
    };
    const auto leadsTo = [this](int index) {
        showTab(u"foldersPage"_s);
        missing<QToolButton>().at(index)->click();
        settle();
        return window.focusWidget() ? window.focusWidget()->objectName() : QString();
    };
    const QStringList atFirst{u"has no folders"_s, u"No destination"_s, u"No password"_s};
    ASSERT_TRUE(says(atFirst));
    EXPECT_EQ(leadsTo(0), u"folderButton01"_s);
    EXPECT_EQ(leadsTo(1), u"fileButton01"_s);
    EXPECT_EQ(leadsTo(2), u"secureText01a"_s);
    showTab(u"foldersPage"_s);
    EXPECT_TRUE(widget(u"buttonLaunch01"_s).isEnabled());
    clickAndAnswer(u"buttonLaunch01"_s, u"warningPanel01"_s, [&] {
        for (const QString &part : atFirst)
            EXPECT_TRUE(delegate.warningText01.text().contains(part)) << qPrintable(part);
        click(u"warningPanel01CloseButton"_s);
    });
    program.waitForEnd();

    haveDestination("archives");
    delegate.addFolders({program.path("home")});
    delegate.secureText01a.setText(u"correct horse"_s);
    EXPECT_TRUE(says({}));
    fs::remove(program.folder() / "archives");
    delegate.prefStepper01Action(u"many"_s);
    EXPECT_TRUE(says({u"does not exist"_s, u"\"many\""_s}));
    EXPECT_EQ(leadsTo(1), u"prefText01"_s);
    EXPECT_TRUE(widget(u"prefText01"_s).isVisible()) << "it is folded in";
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.currentRecord().remove(u"path"_s);
    EXPECT_TRUE(says({u"not this profile's own"_s, u"ertificate"_s, u"\"many\""_s}));
    EXPECT_EQ(leadsTo(1), u"certButton01"_s);
}

TEST_F(FoldersTest, TheLastResultStaysAndIsThereAfterARestart)
{
    const QString folder = program.path("archives");
    const ItemRecord good{
        .path = u"/home/anna/Docs"_s,
        .outcome = Outcome::Succeeded,
        .bytes = 24'100'000'000,
        .archives = {folder + u"/Docs.rar.aes.part1.rar"_s, folder + u"/Docs.rar.aes.part2.rar"_s}};
    const auto failed = [](const QString &reason) {
        return ItemRecord{.path = u"/home/anna/Mail"_s,
                          .outcome = Outcome::Failed,
                          .reason = reason,
                          .left = {{u"/x/Mail.rar"_s, true}}};
    };
    using Case = std::tuple<Outcome, QList<ItemRecord>, QStringList, QStringList>;
    for (const auto &[outcome, items, headline, reasons] : {
             Case{Outcome::Succeeded,
                  {good, good},
                  {u"Backed up today at "_s, u"· 2 folders · 48.2 GB in 11 min"_s},
                  {}},
             {Outcome::Failed,
              {good, {.path = u"/gone"_s, .outcome = Outcome::Skipped, .reason = u"not there"_s}},
              {u"but not everything · 1 of 2 folders · 24.1 GB"_s},
              {u"Left out: “gone” – not there"_s}},
             {Outcome::Failed,
              {good, failed(u"RAR 1st: No space left on device"_s)},
              {u"failed today at "_s, u"1 of 2 folders"_s},
              {u"What failed: “Mail” – RAR 1st: No space left"_s, u"What to do: Make room"_s,
               u"What was left: \"/x/Mail.rar\", which is not encrypted"_s}},
             {Outcome::Failed,
              {failed(u"odd"_s)},
              {u"0 of 1 folder"_s},
              {u"odd"_s, u"What to do: Back up again."_s}},
             {Outcome::Cancelled,
              {good, {.path = u"/x"_s, .outcome = Outcome::Open}},
              {u"Cancelled today at "_s, u"1 of 2 folders"_s},
              {}},
         }) {
        haveResult(outcome, items);
        for (const QString &part : headline)
            EXPECT_TRUE(says(u"resultHeadline"_s, part)) << qPrintable(part);
        EXPECT_EQ(widget(u"resultDetails"_s).isVisible(), !reasons.isEmpty());
        const QString details = said(u"resultDetails"_s);
        qsizetype place = 0;
        for (const QString &part : reasons)
            EXPECT_GE(place = details.indexOf(part, place), 0) << qPrintable(details);
    }
    // Archives are offered by their first files, once.
    click(u"tryRestoreButton"_s);
    EXPECT_TRUE(widget(u"extractPage"_s).isVisible());
    showTab(u"foldersPage"_s);
    click(u"tryRestoreButton"_s);
    EXPECT_EQ(delegate.extractFullList.strings(), QStringList{good.archives.first()});

    open(delegate.defaultProfile().deepCopy());
    showTab(u"foldersPage"_s);
    EXPECT_FALSE(widget(u"backupResult"_s).isVisible()) << "it is another profile's";
}

// Names are text, whatever is in them: markup and turns of theirs would hide and change what is told of them.
TEST_F(FoldersTest, NamesAreShownAsTheyAre)
{
    const QString name = u"<img src=x><b>a&b\n\u202e%1"_s + QString(200, u'n'); // too long for an archive's
    const auto &scroll = *widget(u"foldersPage"_s).findChild<QScrollArea *>();
    fs::create_directories((program.folder() / name.toStdString()));
    writeFile(program.folder() / name.toStdString() / "x.rar.aes.rar", "x");
    haveDestination(name.toStdString());
    delegate.addFolders({program.path(name.toStdString())});
    delegate.listPlist().setValue(name, delegate.currentRecord().deepCopy());
    delegate.profileCombo01.setTitles({delegate.currentProfile(), name});
    delegate.profileCombo01.selectTitle(name);
    delegate.passCombo01.selectIndex(2);
    delegate.certFile01.setText(program.path(name.toStdString()));
    delegate.warningText01.setText(name);
    EXPECT_TRUE(waitUntil([&] { return !missing<QLabel>().isEmpty(); }));
    settle();
    EXPECT_LE(scroll.widget()->minimumSizeHint().width(), scroll.width()) << "a name makes the page wide";
    showTab(u"extractPage"_s);
    EXPECT_TRUE(says(u"backupsFoundLabel"_s, u"<img"_s));
    int shown = 0;
    const auto expectPlain = [&](const QString &text, bool isPlain, const QString &where) {
        if (!text.contains(u"img src")) return;
        ++shown;
        EXPECT_FALSE(text.contains(QChar(0x202e))) << where.toStdString();
        EXPECT_TRUE(isPlain || !Qt::mightBeRichText(text) || text.contains(u"&lt;img"))
            << where.toStdString() << ": " << text.toStdString();
    };
    for (const QWidget *root : window.roots())
        for (const QWidget *each : root->findChildren<QWidget *>()) {
            expectPlain(each->toolTip(), false, each->objectName());
            if (const auto *label = qobject_cast<const QLabel *>(each))
                expectPlain(label->text(), label->textFormat() == Qt::PlainText, label->objectName());
            const auto *view = qobject_cast<const QAbstractItemView *>(each);
            for (int row = 0; view && view->model() && row < view->model()->rowCount(); ++row)
                for (const int role : {int(Qt::ToolTipRole), int(Qt::DisplayRole)})
                    expectPlain(view->model()->index(row, 0).data(role).toString(), role == Qt::DisplayRole,
                                view->objectName());
        }
    EXPECT_GT(shown, 6) << "the names are seen nowhere";
}

TEST_F(FirstStartTest, LeadsThroughThreeStepsAndNeverComesAgain)
{
    writeFile(program.folder() / "docs/a", "x");
    fs::create_directory(program.folder() / "archives");
    ASSERT_TRUE(widget(u"firstSteps"_s).isVisible());
    EXPECT_FALSE(widget(u"listTableView"_s).isVisible());
    EXPECT_FALSE(widget(u"hindranceList"_s).isVisible());
    program.choose(program.path("docs"));
    click(u"firstStep1"_s);
    EXPECT_EQ(folders(), QStringList{program.path("docs")});
    EXPECT_FALSE(widget(u"firstStep1"_s).isVisible());
    click(u"skipStep2"_s);
    EXPECT_EQ(delegate.fileText01.text(), QString());
    click(u"firstStep3"_s);
    EXPECT_EQ(window.focusWidget(), &widget(u"secureText01a"_s));
    EXPECT_FALSE(ui::FirstSteps::wasSeen());
    QTest::keyClicks(window.focusWidget(), u"correct horse"_s);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    for (const QString &typed : {u"correct horsf"_s, u"correct horse"_s}) {
        fill(window.focusWidget()->objectName(), typed);
        EXPECT_FALSE(widget(u"foldersPage"_s).isVisible()) << "a mistyped one leads nowhere";
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    }
    settle();
    EXPECT_EQ(window.focusWidget(), &widget(u"buttonLaunch01"_s));
    EXPECT_TRUE(widget(u"listTableView"_s).isVisible());
    EXPECT_TRUE(ui::FirstSteps::wasSeen());
}
