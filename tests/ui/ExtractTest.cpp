#include "TestWindow.h"

#include "ui/ArchiveList.h"
#include "ui/TextArea.h"

#include <QGuiApplication>
#include <QLineEdit>

namespace {

class ExtractTest : public WindowTest {
protected:
    /// A set of volumes in "archives", and a tab that asks for a folder.
    ExtractTest()
    {
        writeFile(program.folder() / "docs" / "data", std::string(1000, 'x') + std::string(9000, 'y'));
        program.setUpBackup({program.path("docs")});
        delegate.prefStepper01Action(u"4"_qs);
        program.backUp();
        std::filesystem::create_directories(program.folder() / "out");
        delegate.openPanel = [this](const outlets::OpenPanel &) { return QStringList{program.path("out")}; };
        showTab(u"extractPage"_qs);
        click(u"extractPathButton"_qs);
    }

    void dropOnList(const QString &path) { drop(list, {QUrl::fromLocalFile(path)}); }

    bool isGrey(int row)
    {
        const QVariant brush = list.outletModel().index(row, 0).data(Qt::ForegroundRole);
        return brush.isValid() &&
               brush.value<QBrush>() == QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    }

    ui::ArchiveListView &list = widget<ui::ArchiveListView>(u"extractTableView"_qs);
    const std::string second = "archives/docs.rar.aes.part2.rar";
};

} // namespace

TEST_F(ExtractTest, AWholeExtractionByHand)
{
    dropOnList(program.path(second));
    EXPECT_TRUE(widget<ui::TextArea>(u"outputText02"_qs).text().contains(u"first volume is missing"));
    EXPECT_FALSE(widget(u"openFolderButton"_qs).isEnabled());
    click(u"extractButton03"_qs);
    EXPECT_EQ(list.outletModel().rowCount(), 0);

    dropOnList(program.path("archives"));
    ASSERT_GE(list.outletModel().rowCount(), 2);
    EXPECT_TRUE(waitUntil([&] { return isGrey(1); }));
    EXPECT_FALSE(isGrey(0));

    click(u"buttonLaunch02"_qs);
    program.waitForEnd();
    settle();
    EXPECT_EQ(delegate.consoleTextView01.text(), QString());
    EXPECT_TRUE(widget(u"openFolderButton"_qs).isEnabled());
    EXPECT_TRUE(
        std::filesystem::exists(program.folder() / "out" / program.folder().relative_path() / "docs/data"));
}

TEST_F(ExtractTest, ADamagedSetIsToldOverTheSheet)
{
    std::filesystem::resize_file(program.folder() / second, 10);
    dropOnList(program.path("archives"));
    clickAndAnswer(u"buttonLaunch02"_qs, u"concernsPanel01"_qs, [this] {
        EXPECT_TRUE(widget<ui::TextArea>(u"concernsText01"_qs).text().contains(u"volume 2 is shorter"));
        click(u"concernsPanel01GoOn"_qs);
    });
    auto &panel = widget(u"extractPanel01"_qs);
    ASSERT_TRUE(waitUntil([&] { return panel.isVisible(); }));
    settle();
    EXPECT_TRUE(widget<QLineEdit>(u"extractPanelText01"_qs).text().endsWith(u"part1.rar"));
    click(u"stopProcess02b"_qs);
    program.waitForEnd();
    settle();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(widget(u"progressPanel02"_qs).isVisible());
    EXPECT_TRUE(widget(u"buttonLaunch02"_qs).isEnabled());
    EXPECT_FALSE(widget(u"openFolderButton"_qs).isEnabled());
}
