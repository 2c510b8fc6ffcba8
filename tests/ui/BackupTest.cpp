#include "TestWindow.h"

#include "Stub.h"
#include "Tree.h"

#include "tools/ToolRun.h"
#include "ui/PanelDialog.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

namespace {

class BackupTest : public WindowTest {
protected:
    BackupTest() { writeFile(program.folder() / "docs" / "data", randomBytes(60'000)); }

    /// Chooses all that a run needs, as a user would.
    void setUp()
    {
        delegate.openPanel = [this](const outlets::OpenPanel &panel) {
            return QStringList{program.path(panel.canChooseFiles ? "docs" : "archives")};
        };
        click(u"folderButton01"_qs);
        click(u"fileButton01"_qs);
        typePassword();
    }

    void typePassword()
    {
        showTab(u"passwordsPage"_qs);
        QTest::keyClicks(&widget(u"secureText01a"_qs), u"correct horse"_qs);
        showTab(u"foldersPage"_qs);
    }

    QStringList archives() const { return QDir(program.path("archives")).entryList(QDir::Files, QDir::Name); }

    /// Starts a run whose archiver does not come to an end.
    void startEndless(const Stub &archiver)
    {
        program.useTool(u"RAR"_qs, archiver.path());
        setUp();
        click(u"buttonLaunch01"_qs);
        ASSERT_TRUE(
            waitUntil([this] { return widget(u"progressPanel01"_qs).isVisible() && toolsRunning() > 0; }));
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
    setUp();
    auto &size = widget<QLineEdit>(u"prefText01"_qs);
    size.selectAll();
    QTest::keyClicks(&size, u"30"_qs);

    bool sheetSeen = false;
    QObject::connect(&widget<ui::PanelDialog>(u"progressPanel01"_qs), &ui::PanelDialog::visibilityChanged,
                     &window, [&](bool visible) { sheetSeen |= visible; });
    click(u"buttonLaunch01"_qs);
    ASSERT_TRUE(waitUntil([this] { return !delegate.isRunActive(); }));
    settle();

    EXPECT_TRUE(sheetSeen);
    EXPECT_FALSE(widget(u"progressPanel01"_qs).isVisible());
    EXPECT_FALSE(widget(u"consolePanel01"_qs).isVisible()) << delegate.consoleTextView01.text().toStdString();
    EXPECT_GE(archives().size(), 2) << archives().join(u' ').toStdString();
    EXPECT_TRUE(widget<QLabel>(u"outputText01"_qs).text().contains(u"1 of 1"));
}

TEST_F(BackupTest, WhatIsMissingIsSaid)
{
    const auto warning = [this] {
        QString text;
        clickAndAnswer(u"buttonLaunch01"_qs, u"warningPanel01"_qs, [&] {
            text = widget<QLabel>(u"warningText01"_qs).text();
            click(u"warningPanel01CloseButton"_qs);
        });
        EXPECT_FALSE(widget(u"warningPanel01"_qs).isVisible());
        return text;
    };
    EXPECT_TRUE(warning().contains(u"destination"));
    delegate.openPanel = [this](const outlets::OpenPanel &) { return QStringList{program.path("archives")}; };
    click(u"fileButton01"_qs);
    EXPECT_TRUE(warning().contains(u"password"));
    typePassword();
    EXPECT_TRUE(warning().contains(u"folders"));
    EXPECT_FALSE(delegate.isRunActive());
}

TEST_F(BackupTest, ADestinationThatHoldsSomethingIsAskedAbout)
{
    setUp();
    writeFile(program.folder() / "archives" / "other", "kept");
    clickAndAnswer(u"buttonLaunch01"_qs, u"warningPanel03"_qs, [this] {
        EXPECT_EQ(widget<QLineEdit>(u"folderNotEmptyText02"_qs).text(), program.path("archives"));
        click(u"buttonLaunch01Stop"_qs);
    });
    EXPECT_FALSE(delegate.isRunActive());
    EXPECT_EQ(archives(), QStringList{u"other"_qs});

    clickAndAnswer(u"buttonLaunch01"_qs, u"warningPanel03"_qs, [this] { click(u"buttonLaunch01b"_qs); });
    ASSERT_TRUE(waitUntil([this] { return !delegate.isRunActive(); }));
    EXPECT_GT(archives().size(), 1);
}

TEST_F(BackupTest, CancelClosesTheSheetAndEndsTheTools)
{
    const Stub hanging(program.folder(), "rar", "hang");
    ASSERT_NO_FATAL_FAILURE(startEndless(hanging));
    click(u"buttonCancel01"_qs);
    EXPECT_TRUE(
        waitUntil([this] { return !widget(u"progressPanel01"_qs).isVisible() && !delegate.isRunActive(); }));
    EXPECT_EQ(toolsRunning(), 0);
    EXPECT_TRUE(widget(u"buttonLaunch01"_qs).isEnabled());
}

TEST_F(BackupTest, ClosingDuringARunAsks)
{
    const Stub hanging(program.folder(), "rar", "hang");
    ASSERT_NO_FATAL_FAILURE(startEndless(hanging));
    const QSignalSpy closed(&window, &ui::Window::closed);
    // Closing must get past the sheet, which blocks the rest of the window.
    EXPECT_FALSE(widget(u"progressPanel01"_qs).isModal());
    EXPECT_FALSE(widget(u"buttonLaunch01"_qs).isEnabled());

    EXPECT_FALSE(window.close());
    settle();
    QPushButton *keep = button(u"&Keep running"_qs);
    ASSERT_TRUE(keep);
    keep->click();
    settle();
    EXPECT_FALSE(button(u"&Keep running"_qs));
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(delegate.isRunActive());

    EXPECT_FALSE(window.close());
    settle();
    QPushButton *stop = button(u"&Stop and quit"_qs);
    ASSERT_TRUE(stop);
    stop->click();
    settle();
    EXPECT_EQ(closed.count(), 1);
    delegate.applicationWillTerminate();
    EXPECT_EQ(toolsRunning(), 0);
}
