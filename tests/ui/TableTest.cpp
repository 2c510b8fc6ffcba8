#include "TestWindow.h"

#include "ui/lists/ToolTable.h"
#include "ui/widgets/LevelBar.h"

#include <semaphore>

namespace {

class TableTest : public WindowTest {
protected:
    ui::ToolTableView &tools() { return widget<ui::ToolTableView>(u"pathTableView"_s); }

    QString status(int row)
    {
        return tools().outletModel().index(row, tools().outletModel().columnOf(u"c30"_s)).data().toString();
    }
};

/// Two rows, whose slow cells come one by one when the test lets them.
class SlowSource : public outlets::TableDataSource {
public:
    int numberOfRows() const override { return 2; }
    QVariant objectValue(const QString &column, int row) const override
    {
        if (!isSlow(column)) return u"quick %1"_s.arg(row);
        ++asked;
        letGo.acquire();
        return u"slow %1 of %2"_s.arg(row).arg(edition.load());
    }
    bool isSlow(const QString &column) const override { return column == u"slow"; }

    mutable std::counting_semaphore<> letGo{0};
    mutable std::atomic<int> asked = 0;
    std::atomic<int> edition = 1;
};

} // namespace

TEST_F(TableTest, SlowCellsComeLaterAndOnlyThoseOfTheLastReload)
{
    SlowSource source;
    auto model = std::make_unique<ui::OutletTableModel>(
        QList<ui::OutletTableModel::Column>{{u"quick"_s, {}}, {u"slow"_s, {}}});
    model->setSource(&source);
    EXPECT_EQ(model->cell(1, u"quick"_s), u"quick 1"_s);
    EXPECT_FALSE(model->cell(0, u"slow"_s).isValid());

    // The cell that is being fetched is of an older reload by the time that it comes.
    ASSERT_TRUE(waitUntil([&] { return source.asked == 1; }));
    source.letGo.release();
    ASSERT_TRUE(waitUntil([&] { return source.asked == 2; }));
    model->reload();
    source.letGo.release();
    ASSERT_TRUE(waitUntil([&] { return source.asked == 3; }));
    settle();
    EXPECT_FALSE(model->cell(1, u"slow"_s).isValid());

    source.edition = 2;
    source.letGo.release(2);
    EXPECT_TRUE(waitUntil([&] { return model->cell(1, u"slow"_s) == u"slow 1 of 2"_s; }));
    EXPECT_EQ(model->cell(0, u"slow"_s), u"slow 0 of 2"_s);

    // A table may go while a cell is fetched.
    const int before = source.asked;
    model->reload();
    ASSERT_TRUE(waitUntil([&] { return source.asked == before + 1; }));
    model.reset();
    source.letGo.release(2);
    EXPECT_TRUE(waitForThreads(10s));
    EXPECT_EQ(source.asked, before + 1);
}

TEST_F(TableTest, ToolsAreJudgedInWords)
{
    ASSERT_EQ(tools().outletModel().rowCount(), 3);
    EXPECT_TRUE(waitUntil([&] { return status(0) == u"right tool" && status(2) == u"right tool"; }));
    EXPECT_EQ(widget<ui::LevelBar>(u"level01"_s).text(), u"3 of 3 tools are in order"_s);

    const auto right = delegate.setting(u"external"_s, u"OpenSSL"_s).value();
    delegate.openPanel = [](const outlets::OpenPanel &panel) {
        EXPECT_EQ(panel.directory, u"/usr/bin"_s);
        return QStringList{u"/usr/bin/true"_s};
    };
    delegate.selectFile(); // no row is selected: the first one stays
    showTab(u"toolsPage"_s);
    const QModelIndex place = tools().outletModel().index(1, tools().outletModel().columnOf(u"c40"_s));
    QTest::mouseClick(tools().indexWidget(place), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return status(1) == u"not usable" && status(0) == u"right tool"; }));
    EXPECT_EQ(delegate.setting(u"external"_s, u"OpenSSL"_s), u"/usr/bin/true"_s);
    EXPECT_TRUE(waitUntil([&] { return widget<ui::LevelBar>(u"level01"_s).text().startsWith(u'2'); }));

    // What is missing is said as long as it is.
    ASSERT_TRUE(waitForThreads(60s));
    showTab(u"syncPage"_s);
    EXPECT_TRUE(widget(u"noPathPanel01"_s).isVisible());
    delegate.configPlist().dictionary(u"external"_s).setValue(u"OpenSSL"_s, right);
    click(u"settingsSaveButton"_s);
    EXPECT_TRUE(waitUntil([&] { return !widget(u"noPathPanel01"_s).isVisible(); }));
}

TEST_F(TableTest, AReloadLeavesTypingAlone)
{
    showTab(u"toolsPage"_s);
    const QModelIndex path = tools().outletModel().index(0, tools().outletModel().columnOf(u"c20"_s));
    tools().setCurrentIndex(path);
    tools().edit(path);
    auto *editor = tools().findChild<QLineEdit *>();
    ASSERT_TRUE(editor);
    editor->clear();
    QTest::keyClicks(editor, u"/opt/ra"_s);
    delegate.pathTableView.reloadData();
    settle();
    ASSERT_EQ(tools().findChild<QLineEdit *>(), editor);
    QTest::keyClicks(editor, u"r"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(delegate.setting(u"external"_s, u"RAR"_s), u"/opt/rar"_s);
    EXPECT_EQ(path.data().toString(), u"/opt/rar"_s);
}
