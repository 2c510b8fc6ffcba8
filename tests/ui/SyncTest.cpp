#include "TestWindow.h"

#include "Command.h"
#include "SecretService.h"

#include "ui/lists/FolderList.h"
#include "ui/lists/PreviewTableView.h"
#include "ui/widgets/Motion.h"
#include "ui/widgets/RunBar.h"

namespace {

class SyncTest : public WindowTest {
protected:
    /// Chooses all that a run needs, as a user would.
    SyncTest()
    {
        qputenv("TMPDIR", program.folder().c_str());
        writeFile(program.folder() / "src/d/x", "x");
        showTab(u"syncPage"_s);
        program.choose(program.path("src/d"));
        click(u"syncButton01"_s);
        program.choose(program.path("archives"));
        click(u"syncButtoDest"_s);
    }
    ~SyncTest() override { qunsetenv("TMPDIR"); }
};

} // namespace

TEST_F(SyncTest, ControlsSayWhatTheyDo)
{
    delegate.addSyncEntries({program.path("gone")});
    const auto size = [&](int row) {
        return widget<ui::FolderListView>(u"syncTableView"_s).model()->index(row, 2).data().toString();
    };
    EXPECT_TRUE(waitUntil([&] { return size(0).startsWith(u"1"); })) << qPrintable(size(0));
    EXPECT_TRUE(waitUntil([&] { return size(1) == u"not found"; })) << qPrintable(size(1));
    const auto &meaning = widget<QLabel>(u"syncMeaning"_s);
    click(u"checkBoxSync1"_s);
    EXPECT_FALSE(meaning.font().bold());
    click(u"checkBoxSync2"_s);
    EXPECT_TRUE(meaning.font().bold());
    EXPECT_FALSE(widget(u"syncServer"_s).isVisible());
    click(u"syncCheck01"_s);
    EXPECT_TRUE(meaning.text().contains(u"fill one in"));
    fill(u"syncUser"_s, u"me"_s);
    EXPECT_FALSE(meaning.text().contains(u"fill one in"));
}

TEST_F(SyncTest, ADeletionIsShownAndAskedAbout)
{
    writeFile(program.folder() / "archives/d/extra", "x");
    click(u"checkBoxSync1"_s);
    clickAndAnswer(u"buttonLaunch03"_s, u"previewPanel01"_s, [this] {
        const ui::OutletTableModel &rows = widget<ui::PreviewTableView>(u"previewTableView"_s).outletModel();
        EXPECT_EQ(rows.cell(0, u"c10"_s), u"deleted at the destination"_s);
        EXPECT_EQ(rows.cell(0, u"c30"_s), u"d/extra"_s);
        EXPECT_TRUE(said(u"previewText01"_s).startsWith(u"Delete 1 file there?"));
        EXPECT_TRUE(widget<QPushButton>(u"previewPanel01CloseButton"_s).isDefault());
        EXPECT_TRUE(std::filesystem::exists(program.folder() / "archives/d/extra"));
        click(u"previewPanel01LaunchButton"_s);
    });
    waitForEnd();
    EXPECT_FALSE(widget(u"previewPanel01"_s).isVisible());
    EXPECT_TRUE(said(u"outputText03"_s).startsWith(u"Synchronised"));
    EXPECT_FALSE(std::filesystem::exists(program.folder() / "archives/d/extra"));
}

// Announced row by row, so many would keep the window from answering.
TEST_F(SyncTest, AHundredThousandRowsComeInOneStep)
{
    constexpr int count = 100'000;
    std::string lines;
    for (int row = 0; row < count; ++row)
        lines += ">f+++++++++\t1\td/" + std::to_string(row) + "\n";
    program.useStub(u"RSync"_s, "print " + lines);
    const auto &table = widget<ui::PreviewTableView>(u"previewTableView"_s);
    int announced = 0;
    QObject::connect(&table.outletModel(), &QAbstractItemModel::dataChanged, &table, [&] { ++announced; });
    click(u"previewButton01"_s);
    EXPECT_TRUE(waitUntil([&] { return table.isVisible() && table.outletModel().rowCount() == count; }));
    EXPECT_EQ(announced, 0);
    EXPECT_EQ(table.outletModel().cell(count - 1, u"c30"_s), u"d/99999"_s);
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
    auto &bar = widget<ui::RunBar>(u"progress03progressIndicator01"_s);
    bar.setIndeterminate(true);
    EXPECT_EQ(bar.maximum(), 0) << "it runs to and fro";
    bar.setIndeterminate(false);
    const ui::MotionSettings motion;
    EXPECT_TRUE(waitUntil([] { return !ui::isMotionWanted(); }));
    bar.setIndeterminate(true);
    EXPECT_NE(bar.maximum(), 0);
}
