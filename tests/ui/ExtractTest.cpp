#include "TestWindow.h"

#include "ui/ArchiveList.h"
#include "ui/TextArea.h"

#include <QGuiApplication>

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
};

} // namespace

TEST_F(ExtractTest, AWholeExtractionByHand)
{
    dropOnList(program.path("archives/docs.rar.aes.part2.rar"));
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
