#include "TestWindow.h"

#include "Command.h"
#include "SecretService.h"
#include "Tree.h"

#include "tools/ToolRun.h"
#include "ui/widgets/RunBar.h"
#include "ui/widgets/TextArea.h"

#include <QDir>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QWindow>

namespace {

class BackupTest : public WindowTest {
protected:
    /// Chooses all that a run needs, as a user would.
    BackupTest()
    {
        writeFile(program.folder() / "docs" / "data", randomBytes(60'000));
        program.choose(program.path("docs"));
        click(u"folderButton01"_s);
        program.choose(program.path("archives"));
        click(u"fileButton01"_s);
        type(u"correct horse"_s, u"correct horse"_s);
    }

    void type(const QString &password, const QString &repetition)
    {
        showTab(u"passwordsPage"_s);
        fill(u"secureText01a"_s, password);
        fill(u"secureText02"_s, repetition);
        showTab(u"foldersPage"_s);
    }

    QStringList archives() const
    {
        return QDir(program.path("archives")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QPushButton *button(const QString &title)
    {
        for (auto *box : window.findChildren<QMessageBox *>())
            for (auto *candidate : box->findChildren<QPushButton *>())
                if (box->isVisible() && candidate->text() == title) return candidate;
        return nullptr;
    }
};

} // namespace

TEST_F(BackupTest, AWholeBackupByClicks)
{
    fill(u"prefText01"_s, u"30 kB"_s);
    const auto &bar = widget<ui::RunBar>(u"view01progressIndicator01"_s);
    std::vector<int> shown;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar, [&](int value) { shown.push_back(value); });
    click(u"buttonLaunch01"_s);
    waitForEnd();
    EXPECT_TRUE(std::any_of(shown.begin(), shown.end(), [&](int value) {
        return value > 0 && value < bar.maximum();
    })) << "one folder is more than one step";
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end())) << "it goes back";
    EXPECT_FALSE(widget(u"consolePanel01"_s).isVisible()) << delegate.consoleTextView01.text().toStdString();
    const QStringList volumes = archives();
    EXPECT_GE(volumes.size(), 2);
    EXPECT_TRUE(said(u"outputText01"_s).contains(u"1 of 1"));
    EXPECT_TRUE(says(u"protectionText"_s, u"it opens the archives"_s));
    EXPECT_TRUE(said(u"resultHeadline"_s).contains(u"· 1 folder · 6"));
    EXPECT_FALSE(widget(u"outputText01"_s).isVisible()) << "said twice";

    type(u"correct house"_s, u"correct house"_s);
    EXPECT_FALSE(said(u"protectionText"_s).contains(u"opens"));
    EXPECT_TRUE(says(u"protectionText"_s, u"does not open the archives"_s));
    type(u"correct horse"_s, u"correct horse"_s);

    // What is to be replaced is asked about first; the question is not answered by closing it.
    clickAndAnswer(u"buttonLaunch01"_s, u"warningPanel03"_s, [this] {
        EXPECT_EQ(said(u"folderNotEmptyText02"_s), program.path("archives"));
        QTest::keyClick(&widget(u"warningPanel03"_s), Qt::Key_Escape);
    });
    waitForEnd();
    EXPECT_EQ(archives(), volumes);

    // One that is mistyped, too, where nothing is there to try it on.
    for (const QString &volume : volumes)
        QFile::remove(program.path("archives/" + volume.toStdString()));
    type(u"correct horse"_s, u"correct house"_s);
    EXPECT_FALSE(widget(u"repetitionHint"_s).isHidden());
    clickAndAnswer(u"buttonLaunch01"_s, u"concernsPanel01"_s, [this] {
        EXPECT_TRUE(said(u"concernsText01"_s).contains(u"differ"));
        QTest::keyClick(&widget(u"concernsPanel01"_s), Qt::Key_Escape);
    });
    waitForEnd();
    EXPECT_EQ(archives(), QStringList());
}

TEST_F(BackupTest, ManyConcernsStayOnTheScreen)
{
    const std::string unbroken(200, 'x');
    for (int number = 0; number < 14; ++number)
        delegate.addFolders({program.path(unbroken + "/is gone " + std::to_string(number))});
    const auto &panel = widget(u"concernsPanel01"_s);
    auto &text = widget<ui::TextArea>(u"concernsText01"_s);
    clickAndAnswer(u"buttonLaunch01"_s, u"concernsPanel01"_s, [&] {
        EXPECT_TRUE(text.text().contains(u"more.")) << text.text().toStdString();
        EXPECT_TRUE(panel.screen()->availableGeometry().contains(panel.frameGeometry()));
        EXPECT_GT(text.verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << "a path is cut off";
        QTest::keyClick(&widget(u"concernsPanel01"_s), Qt::Key_Escape);
    });
    waitForEnd();
    EXPECT_EQ(archives(), QStringList());

    delegate.concernsText01.setText(u"Short."_s);
    delegate.concernsPanel01.beginSheet();
    settle();
    EXPECT_LT(text.height(), 100) << "a short text takes the room of the long one";
    click(u"concernsPanel01GoOn"_s);
}

TEST_F(BackupTest, WhatIsLeftInClearIsShownUntilItIsRemoved)
{
    const int heightBefore = widget<QTabWidget>(u"mainTabs"_s).height();
    EXPECT_GT(heightBefore, window.centralWidget()->height() - 80 - widget(u"mainTabs"_s).y());
    program.useStub(u"OpenSSL"_s, "complain no");
    click(u"buttonLaunch01"_s);
    waitForEnd();
    click(u"consoleCloseButton"_s);
    EXPECT_EQ(archives(), QStringList{u"docs.rar"_s});
    EXPECT_TRUE(says(u"resultDetails"_s, u"What failed"_s));
    EXPECT_TRUE(widget(u"clearText01"_s).isVisible());
    EXPECT_TRUE(said(u"clearText01"_s).contains(program.path("archives/docs.rar")));
    EXPECT_LT(widget(u"mainTabs"_s).height(), heightBefore);
    click(u"clearRemove01"_s);
    EXPECT_TRUE(waitUntil([this] { return !widget(u"clearText01"_s).isVisible(); }));
    settle();
    EXPECT_EQ(archives(), QStringList());
    EXPECT_EQ(widget(u"mainTabs"_s).height(), heightBefore);
}

// By a real service of notices, whose buttons a script presses.
TEST_F(BackupTest, WhoLooksElsewhereIsToldOfTheEnd)
{
    SecretService session;
    writeFile(program.folder() / "dunstrc", "[all]\nsummary = \"*\"\naction_name = open\n");
    const auto dunst = session.serve("org.freedesktop.Notifications",
                                     {"env", std::string("DISPLAY=") + getenv("DISPLAY"), "dunst", "-conf",
                                      (program.folder() / "dunstrc").string()});
    QStringList opened;
    delegate.openAddress = [&](const QString &address) { opened.append(address); };
    QWindow other;
    other.show();
    const auto comeBack = [&] {
        window.activateWindow();
        ASSERT_TRUE(waitUntil([] { return QApplication::activeWindow() != nullptr; }));
    };
    const auto backUpUnseen = [&] {
        clickAndAnswer(u"buttonLaunch01"_s, u"warningPanel03"_s, [this] { click(u"buttonLaunch01b"_s); });
        ASSERT_TRUE(waitUntil([this] { return widget(u"progressPanel01"_s).isVisible(); }));
        other.requestActivate();
        ASSERT_TRUE(waitUntil([] { return !QApplication::activeWindow(); }));
        waitForEnd();
    };
    // In front, whoever works with the window sees it there.
    comeBack();
    click(u"buttonLaunch01"_s);
    waitForEnd();

    backUpUnseen();
    const auto displayed = [] {
        return QString::fromStdString(runCommand({"dunstctl", "count", "displayed"}).output);
    };
    ASSERT_TRUE(waitUntil([&] { return displayed().startsWith(u"1"); })) << displayed().toStdString();
    EXPECT_EQ(runCommand({"dunstctl", "action", "0"}).status, 0);
    EXPECT_TRUE(waitUntil([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList{u"file://"_s + program.path("archives")});
    runCommand({"dunstctl", "close-all"});
    const std::string history = runCommand({"dunstctl", "history"}).output;
    EXPECT_NE(history.find("Backed up 1 of 1"), std::string::npos) << history;

    // Nor does the console of a failure come between: it would be as if somebody were here.
    comeBack();
    program.useStub(u"OpenSSL"_s, "complain no");
    backUpUnseen();
    EXPECT_TRUE(waitUntil([this] { return widget(u"consolePanel01"_s).isVisible(); }));
    EXPECT_TRUE(waitUntil([&] { return displayed().startsWith(u"1"); })) << "who is elsewhere is not told";
    EXPECT_EQ(QGuiApplication::focusWindow(), &other);
}

TEST_F(BackupTest, StoppingAsks)
{
    program.useStub(u"RAR"_s, "hang");
    click(u"buttonLaunch01"_s);
    ASSERT_TRUE(waitUntil([this] { return widget(u"progressPanel01"_s).isVisible() && toolsRunning() > 0; }));
    for (const QString &answer : {u"&Keep running"_s, QString()}) {
        QTest::keyClick(&widget(u"progressPanel01"_s), Qt::Key_Escape);
        settle();
        ASSERT_TRUE(button(u"&Stop"_s));
        EXPECT_FALSE(delegate.cancelFlag());
        if (QPushButton *given = button(answer)) given->click();
        settle();
    }
    endTools();
    waitForEnd();
    EXPECT_FALSE(button(u"&Stop"_s)) << "there is nothing left to stop";
    click(u"consoleCloseButton"_s);
    click(u"buttonLaunch01"_s);
    ASSERT_TRUE(waitUntil([] { return toolsRunning() > 0; }));
    const QSignalSpy closed(&window, &ui::Window::closed);
    // Closing must get past the sheet, which blocks the rest of the window.
    EXPECT_FALSE(widget(u"progressPanel01"_s).isModal());
    EXPECT_FALSE(widget(u"buttonLaunch01"_s).isEnabled());

    EXPECT_FALSE(window.close());
    settle();
    ASSERT_TRUE(button(u"&Keep running"_s));
    button(u"&Keep running"_s)->click();
    settle();
    EXPECT_FALSE(button(u"&Keep running"_s));
    EXPECT_TRUE(window.isVisible() && delegate.isRunActive());
    EXPECT_FALSE(window.close());
    settle();
    ASSERT_TRUE(button(u"&Stop and quit"_s));
    button(u"&Stop and quit"_s)->click();
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 1; }));
    delegate.applicationWillTerminate();
    EXPECT_EQ(toolsRunning(), 0);
}
