#include "TestWindow.h"

#include "tools/ToolRun.h"
#include "ui/lists/ArchiveList.h"
#include "ui/lists/BackupList.h"

#include <QDir>

namespace {

class ExtractTest : public WindowTest {
protected:
    /// A set of volumes in "archives", and a tab that asks for a folder.
    ExtractTest()
    {
        writeFile(program.folder() / "docs" / "data", std::string(1000, 'x') + std::string(9000, 'y'));
        program.setUpBackup({program.path("docs")});
        delegate.prefStepper01Action(u"4"_s);
        program.backUp();
        std::filesystem::create_directories(program.folder() / "out");
        program.choose(program.path("out"));
        showTab(u"extractPage"_s);
        click(u"extractPathButton"_s);
    }

    void dropOnList(const QString &path) { drop(list, {QUrl::fromLocalFile(path)}); }

    bool isGrey(int row)
    {
        const QVariant brush = list.outletModel().index(row, 0).data(Qt::ForegroundRole);
        return brush.isValid() &&
               brush.value<QBrush>() == QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    }

    ui::ArchiveListView &list = widget<ui::ArchiveListView>(u"extractTableView"_s);
};

} // namespace

TEST_F(ExtractTest, AWholeExtractionByHand)
{
    dropOnList(program.path("archives/docs.rar.aes.part2.rar"));
    EXPECT_TRUE(said(u"outputText02"_s).contains(u"first volume is missing"));
    EXPECT_FALSE(widget(u"openFolderButton"_s).isEnabled());
    settle();
    click(u"extractButton03"_s);
    EXPECT_EQ(list.outletModel().rowCount(), 0);

    dropOnList(program.path("archives"));
    ASSERT_GE(list.outletModel().rowCount(), 2);
    EXPECT_TRUE(waitUntil([&] { return isGrey(1); }));
    EXPECT_FALSE(isGrey(0));

    click(u"buttonLaunch02"_s);
    waitForEnd();
    EXPECT_EQ(delegate.consoleTextView01.text(), QString());
    EXPECT_TRUE(widget(u"openFolderButton"_s).isEnabled());
    EXPECT_TRUE(
        std::filesystem::exists(program.folder() / "out" / program.folder().relative_path() / "docs/data"));
}

TEST_F(ExtractTest, BackupsAreOfferedAndTakenByOneClick)
{
    auto &found = widget<ui::BackupList>(u"backupsFound"_s);
    ASSERT_TRUE(waitUntil([&] { return found.topLevelItemCount() == 1; }));
    const auto tick = [&] {
        found.setCurrentItem(found.topLevelItem(0));
        QTest::keyClick(&found, Qt::Key_Space);
        settle();
    };
    EXPECT_EQ(found.topLevelItem(0)->text(0), u"docs"_s);
    EXPECT_EQ(list.outletModel().rowCount(), 0) << "nothing is taken unasked";
    for (const int rows : {1, 0, 1}) {
        tick();
        EXPECT_EQ(list.outletModel().rowCount(), rows);
    }
    EXPECT_EQ(delegate.extractList.strings(), QStringList{program.path("archives/docs.rar.aes.part1.rar")});
    // Others add to it, and volumes go.
    writeFile(program.folder() / "archives/old.rar.aes.part2.rar", "x");
    std::filesystem::remove(program.folder() / "archives/docs.rar.aes.part2.rar");
    showTab(u"passwordsPage"_s);
    showTab(u"extractPage"_s);
    ASSERT_TRUE(waitUntil([&] { return found.topLevelItemCount() == 2; }));
    EXPECT_EQ(found.topLevelItem(0)->text(3), u"its first part is missing"_s);
    EXPECT_EQ(found.topLevelItem(1)->text(3), u"incomplete"_s);

    EXPECT_FALSE(widget(u"restoredFolderButton01"_s).isVisible()) << "a place is chosen";
    delegate.extractPath.setText({});
    settle();
    click(u"restoredFolderButton01"_s);
    EXPECT_EQ(delegate.extractPath.text(), QDir::home().filePath(u"Restored"_s));
    EXPECT_TRUE(QDir(delegate.currentRecord().string(u"extractpath"_s).value_or(QString())).exists());
}

TEST_F(ExtractTest, OneFileIsFoundAndComesBackAlone)
{
    writeFile(program.folder() / "docs" / "other", "x");
    program.backUp();
    settle();
    dropOnList(program.path("archives"));
    const auto look = [&] {
        click(u"contentsButton01"_s);
        EXPECT_TRUE(waitUntil([&] { return widget(u"contentsPanel01"_s).isVisible(); }))
            << delegate.outputText02.text().toStdString();
        settle();
    };
    look();
    EXPECT_FALSE(widget(u"contentsPanel01RestoreButton"_s).isEnabled());
    QTest::keyClicks(&widget(u"contentsSearch"_s), u"DAT"_s);
    QTest::keyClick(&widget(u"contentsTree"_s), Qt::Key_Space);
    settle();
    EXPECT_TRUE(says(u"contentsChoice"_s, u"1 file"_s));
    click(u"contentsPanel01RestoreButton"_s);
    waitForEnd();
    const std::filesystem::path place =
        program.folder() / "out" / (program.folder() / "docs").relative_path();
    EXPECT_TRUE(readFile(place / "data") == readFile(program.folder() / "docs/data"));
    EXPECT_FALSE(std::filesystem::exists(place / "other"));
    EXPECT_EQ(delegate.extractedFolder(), toQString(place));
    EXPECT_EQ(
        QDir(program.path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
        1);

    // What is known needs no password, and what has changed since is not known.
    delegate.secureText01a.setText(u"wrong"_s);
    look();
    QTest::keyClick(&widget(u"contentsPanel01"_s), Qt::Key_Escape);
    settle();
    delegate.secureText01a.setText(u"correct horse"_s);
    program.backUp();
    settle();
    delegate.secureText01a.setText(u"wrong"_s);
    click(u"contentsButton01"_s);
    waitForEnd();
    EXPECT_FALSE(widget(u"contentsPanel01"_s).isVisible());
    EXPECT_TRUE(said(u"outputText02"_s).contains(u"password"));
}

TEST_F(ExtractTest, LookingIntoAnArchiveSaysSoAndStops)
{
    program.useStub(u"RAR"_s, "hang");
    dropOnList(program.path("archives"));
    for (const auto &[button, words] : {std::pair{u"contentsButton01"_s, u"\"docs.rar.aes.part1.rar\""_s},
                                        {u"buttonLaunch02"_s, u"archives"_s}}) {
        click(button);
        ASSERT_TRUE(waitUntil([] { return toolsRunning() > 0; }));
        settle();
        EXPECT_TRUE(said(u"progress02progressLabel01"_s).contains(words));
        click(u"buttonCancel02"_s);
        waitForEnd();
        EXPECT_EQ(toolsRunning(), 0);
        EXPECT_TRUE(said(u"outputText02"_s).startsWith(u"Cancelled"));
    }
    EXPECT_FALSE(widget(u"contentsPanel01"_s).isVisible());
    EXPECT_TRUE(QDir(program.path("out")).isEmpty());
}
