#include "TestWindow.h"

#include "Command.h"
#include "SecretService.h"
#include "Stub.h"

#include "ui/FolderList.h"
#include "ui/Motion.h"
#include "ui/PreviewTableView.h"
#include "ui/RunBar.h"
#include "ui/TextArea.h"

#include <QLabel>
#include <QPushButton>

namespace {

class SyncTest : public WindowTest {
protected:
    /// Chooses all that a run needs, as a user would.
    SyncTest()
    {
        qputenv("TMPDIR", program.folder().c_str());
        writeFile(program.folder() / "src/d/x", "x");
        showTab(u"syncPage"_qs);
        delegate.openPanel = [this](const outlets::OpenPanel &panel) {
            return QStringList{program.path(panel.canChooseFiles ? "src/d" : "archives")};
        };
        click(u"syncButton01"_qs);
        click(u"syncButtoDest"_qs);
    }
    ~SyncTest() override { qunsetenv("TMPDIR"); }
};

} // namespace

TEST_F(SyncTest, ControlsSayWhatTheyDo)
{
    delegate.addSyncEntries({program.path("gone")});
    const auto size = [&](int row) {
        return widget<ui::FolderListView>(u"syncTableView"_qs).model()->index(row, 2).data().toString();
    };
    EXPECT_TRUE(waitUntil([&] { return size(0).startsWith(u"1"); })) << qPrintable(size(0));
    EXPECT_TRUE(waitUntil([&] { return size(1) == u"not found"; })) << qPrintable(size(1));
    const auto &meaning = widget<QLabel>(u"syncMeaning"_qs);
    click(u"checkBoxSync1"_qs);
    EXPECT_FALSE(meaning.font().bold());
    click(u"checkBoxSync2"_qs);
    EXPECT_TRUE(meaning.font().bold());
    EXPECT_FALSE(widget(u"syncServer"_qs).isVisible());
    click(u"syncCheck01"_qs);
    EXPECT_TRUE(meaning.text().contains(u"fill one in"));
    QTest::keyClicks(&widget(u"syncUser"_qs), u"me"_qs);
    settle();
    EXPECT_FALSE(meaning.text().contains(u"fill one in"));
}

TEST_F(SyncTest, ADeletionIsShownAndAskedAbout)
{
    writeFile(program.folder() / "archives/d/extra", "x");
    click(u"checkBoxSync1"_qs);
    clickAndAnswer(u"buttonLaunch03"_qs, u"previewPanel01"_qs, [this] {
        const ui::OutletTableModel &rows = widget<ui::PreviewTableView>(u"previewTableView"_qs).outletModel();
        EXPECT_EQ(rows.cell(0, u"c10"_qs), u"deleted at the destination"_qs);
        EXPECT_EQ(rows.cell(0, u"c30"_qs), u"d/extra"_qs);
        EXPECT_TRUE(widget<ui::TextArea>(u"previewText01"_qs).text().startsWith(u"Delete 1 file there?"));
        EXPECT_TRUE(widget<QPushButton>(u"previewPanel01CloseButton"_qs).isDefault());
        EXPECT_TRUE(std::filesystem::exists(program.folder() / "archives/d/extra"));
        click(u"previewPanel01LaunchButton"_qs);
    });
    program.waitForEnd();
    settle();
    EXPECT_FALSE(widget(u"previewPanel01"_qs).isVisible());
    EXPECT_TRUE(widget<ui::TextArea>(u"outputText03"_qs).text().startsWith(u"Synchronised"));
    EXPECT_EQ(std::filesystem::exists(program.folder() / "archives/d/extra"), false);
}

// Announced row by row, so many would keep the window from answering.
TEST_F(SyncTest, AHundredThousandRowsComeInOneStep)
{
    constexpr int count = 100'000;
    std::string lines;
    for (int row = 0; row < count; ++row)
        lines += ">f+++++++++\t1\td/" + std::to_string(row) + "\n";
    const Stub rsync(program.folder(), "rsync", "print " + lines);
    program.useTool(u"RSync"_qs, rsync.path());
    const auto &table = widget<ui::PreviewTableView>(u"previewTableView"_qs);
    int announced = 0;
    QObject::connect(&table.outletModel(), &QAbstractItemModel::dataChanged, &table, [&] { ++announced; });
    click(u"previewButton01"_qs);
    EXPECT_TRUE(waitUntil([&] { return table.isVisible() && table.outletModel().rowCount() == count; }));
    EXPECT_EQ(announced, 0);
    EXPECT_EQ(table.outletModel().cell(count - 1, u"c30"_qs), u"d/99999"_qs);
}

TEST_F(SyncTest, NothingMovesForWhoWantsNoMotion)
{
    SecretService session;
    const std::string portal = "org.freedesktop.portal.Desktop";
    const std::string settings = "org.freedesktop.portal.Settings";
    const auto desktop = session.serve(
        portal, {"/usr/bin/python3", "-m", "dbusmock", portal, "/org/freedesktop/portal/desktop", settings});
    runCommand({"dbus-send", "--print-reply", "--dest=" + portal, "/org/freedesktop/portal/desktop",
                "org.freedesktop.DBus.Mock.AddMethod", "string:" + settings, "string:Read", "string:ss",
                "string:v", "string:ret = dbus.Boolean(args[1] != 'enable-animations', variant_level=2)"});
    auto &bar = widget<ui::RunBar>(u"progress03progressIndicator01"_qs);
    bar.setIndeterminate(true);
    EXPECT_EQ(bar.maximum(), 0) << "it runs to and fro";
    bar.setIndeterminate(false);
    const ui::MotionSettings motion;
    EXPECT_TRUE(waitUntil([] { return !ui::isMotionWanted(); }));
    bar.setIndeterminate(true);
    EXPECT_NE(bar.maximum(), 0);
}
