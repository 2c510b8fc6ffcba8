#include "SecretService.h"
#include "TestWindow.h"
#include "Tree.h"

#include "ui/Actions.h"
#include "ui/WindowMemory.h"
#include "ui/lists/FolderList.h"
#include "ui/widgets/OpenPanelDialog.h"

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTextBrowser>
#include <QToolButton>

namespace {

class ActionsTest : public WindowTest {};

QTextBrowser &guideText()
{
    for (QWidget *top : QApplication::topLevelWidgets())
        if (auto *text = top->findChild<QTextBrowser *>()) return *text;
    qFatal("there is no guide");
}

} // namespace

TEST_F(ActionsTest, EveryControlHasAnActionAndANameForThoseWhoDoNotSee)
{
    // Read when something begins, kept nowhere.
    QSet<QString> known{u"checkBox03"_s, u"mustDos01"_s, u"decryptionCombo01"_s};
    for (const ui::ActionRow &row : ui::actionTable()) {
        EXPECT_EQ(ui::widgetsNamed(QString(row.control), window.roots()).size(), 1) << row.control.data();
        EXPECT_FALSE(known.contains(QString(row.control))) << row.control.data() << " stands twice";
        known.insert(QString(row.control));
    }
    QSet<const QWidget *> labelled;
    QSet<const QWidget *> pressed;
    for (QWidget *root : window.roots())
        for (const QWidget *widget : root->findChildren<QWidget *>()) {
            if (const auto *label = qobject_cast<const QLabel *>(widget)) labelled.insert(label->buddy());
            if ((widget->inherits("QAbstractButton") && !widget->inherits("QToolButton")) ||
                widget->inherits("QComboBox"))
                pressed.insert(widget);
        }
    ASSERT_GT(pressed.size(), 20);
    for (QWidget *root : window.roots())
        for (const QWidget *widget : root->findChildren<QWidget *>()) {
            const QString name = widget->objectName();
            if (name.isEmpty() || name.startsWith(u"qt_")) continue;
            EXPECT_TRUE(known.contains(name) || !pressed.contains(widget)) << name.toStdString();
            const bool isControl = widget->focusPolicy() != Qt::NoFocus && !widget->inherits("QTabWidget") &&
                                   !widget->inherits("QStackedWidget") && !widget->inherits("QLabel");
            const QString text = widget->accessibleName() + widget->property("text").toString();
            EXPECT_TRUE(!isControl || !text.isEmpty() || labelled.contains(widget)) << name.toStdString();
        }
}

TEST_F(ActionsTest, TheMenuDoesWhatTheControlsDo)
{
    for (const auto &[entry, sheet] : {std::pair{u"newAction"_s, u"profilePanel02"_s},
                                       {u"duplicateAction"_s, u"profilePanel03"_s},
                                       {u"renameAction"_s, u"profilePanel01"_s},
                                       {u"optionsAction"_s, u"preferencesPanel01"_s},
                                       {u"backUpAction"_s, u"warningPanel01"_s},
                                       {u"restoreAction"_s, u"warningPanel01"_s},
                                       {u"synchroniseAction"_s, u"warningPanel01"_s},
                                       {u"previewAction"_s, u"warningPanel01"_s},
                                       {u"consoleAction"_s, u"consolePanel01"_s}}) {
        doAndAnswer([&, action = entry] { window.findChild<QAction *>(action)->trigger(); }, sheet,
                    [&, panel = sheet] {
                        // Each sheet can be read about while it stands there.
                        EXPECT_TRUE(
                            waitUntil([&] { return QApplication::activeWindow() == &widget(panel); }));
                        QTest::keyClick(widget(panel).windowHandle(), Qt::Key_F1);
                        settle();
                        QWidget *guide = guideText().window();
                        EXPECT_TRUE(guide->isVisible()) << panel.toStdString();
                        QTest::keyClick(guide->windowHandle(), Qt::Key_Escape);
                        EXPECT_FALSE(guide->isVisible()) << panel.toStdString() << " blocks it";
                        QTest::keyClick(widget(panel).windowHandle(), Qt::Key_Escape);
                    });
        EXPECT_TRUE(waitForThreads(60s));
    }
    EXPECT_TRUE(widget(u"syncPage"_s).isVisible()) << "what is done is seen";

    // While something runs, only what reads: not by a menu that was open before, nor by a shortcut.
    window.centralWidget()->setEnabled(false);
    for (const QString &action : {u"newAction"_s, u"startUpAction"_s})
        window.findChild<QAction *>(action)->trigger();
    EXPECT_FALSE(widget(u"profilePanel02"_s).isVisible());
    EXPECT_EQ(delegate.setting(u"resources"_s, u"selectedprofile"_s).value_or(QString()), QString());
    window.findChild<QAction *>(u"guideAction"_s)->trigger();
    EXPECT_TRUE(guideText().toPlainText().contains(u"The first backup"));
    window.findChild<QAction *>(u"aboutAction"_s)->trigger();
    EXPECT_TRUE(window.findChild<QMessageBox *>()->text().contains(QUILLORENT_VERSION));
}

TEST_F(ActionsTest, TheWindowComesBackAsItWasAndTheSettingsAreNotTouched)
{
    showTab(u"syncPage"_s);
    window.resize(1000, 740);
    settle();
    ui::keepPlace(window, widget<QTabWidget>(u"mainTabs"_s));
    const ui::Window second(delegate);
    EXPECT_EQ(second.size(), QSize(1000, 740));
    EXPECT_EQ(second.findChild<QTabWidget *>()->currentWidget()->objectName(), u"syncPage"_s);
    EXPECT_TRUE(std::filesystem::exists(program.folder() / "state/quillorent/window.ini"));
}

TEST_F(ActionsTest, WordsInEmptyFieldsAreReadableOnADarkPalette)
{
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(70, 70, 70), QColor(60, 60, 60));
    dark.setColor(QPalette::Base, QColor(75, 75, 75));
    QApplication::setPalette(dark);
    settle();
    const QColor words = widget(u"keychainUser"_s).palette().color(QPalette::PlaceholderText);
    EXPECT_TRUE(words.alpha() == 255 && words.red() > 185) << words.red() << ", half the text's light";
    QApplication::setPalette(usual);
}

TEST_F(ActionsTest, TheVolumeSizeIsTypedAndStepped)
{
    auto &size = widget<QLineEdit>(u"prefText01"_s);
    fill(u"prefText01"_s, u"50"_s);
    size.setCursorPosition(1);
    QTest::keyClicks(&size, u"0"_s);
    settle();
    EXPECT_EQ(size.cursorPosition(), 2) << "what comes back from the outlet moves it";
    EXPECT_EQ(said(u"volumeHint"_s), u"= 500.0 MB"_s);
    for (const auto &[typed, kept] : {std::pair{u"4.7GB"_s, u"4700000"_s},
                                      {u"25 g"_s, u"25000000"_s},
                                      {u"0.001TB"_s, u"1000000"_s},
                                      {u"many"_s, u"many"_s},
                                      {u"1e3"_s, u"1e3"_s},
                                      {u"500kb"_s, u"500"_s}}) {
        fill(u"prefText01"_s, typed);
        EXPECT_EQ(delegate.currentRecord().string(u"part"_s), kept);
        EXPECT_EQ(size.text(), typed) << "it is changed under the typing";
    }
    for (const auto &[key, expected, shown] : {std::tuple{Qt::Key_Up, u"1500"_s, u"1.5 MB"_s},
                                               {Qt::Key_Down, u"500"_s, u"500 kB"_s},
                                               {Qt::Key_Down, u"1"_s, u"1 kB"_s}}) {
        QTest::keyClick(&size, key);
        settle();
        EXPECT_EQ(delegate.currentRecord().string(u"part"_s), expected);
        EXPECT_EQ(size.text(), shown);
    }
    // The usual ones by a menu, and none.
    for (const auto &[row, isSplit, part] :
         {std::tuple{0, true, u"700000"_s}, {4, false, u"700000"_s}, {1, true, u"4700000"_s}}) {
        widget<QToolButton>(u"volumeSizes"_s).menu()->actions().at(row)->trigger();
        settle();
        EXPECT_EQ(delegate.currentRecord().isOn(u"split"_s), isSplit);
        EXPECT_EQ(delegate.currentRecord().string(u"part"_s), part);
    }
}

TEST_F(ActionsTest, TheGainOfCompressionIsToldOfWhatIsOnTheList)
{
    writeFile(program.folder() / "text/sub/a", std::string(300'000, 'a'));
    writeFile(program.folder() / "noise/b", randomBytes(300'000));
    auto &list = widget<ui::FolderListView>(u"listTableView"_s);
    const auto have = [&](const QStringList &names) {
        list.selectAll();
        settle();
        click(u"folderButton02"_s);
        for (const QString &name : names)
            delegate.addFolders({program.path(name.toStdString())});
    };
    const QString gain = u"archives about 95 % smaller"_s;
    for (const auto &[names, words] : {std::pair{QStringList{u"text"_s}, gain},
                                       {{}, u""_s},
                                       {{u"noise/b"_s, u"gone"_s}, u"gains next to nothing here"_s},
                                       {{u"gone"_s}, u""_s}}) {
        have(names);
        EXPECT_TRUE(waitUntil([&, all = words] { return said(u"compressionGain"_s) == all; }))
            << qPrintable(words);
    }
    // A run has the disk for itself; it is made up for afterwards.
    ASSERT_TRUE(delegate.tryBeginRun());
    have({u"text"_s});
    EXPECT_TRUE(waitForThreads(60s));
    settle();
    EXPECT_EQ(said(u"compressionGain"_s), u""_s);
    delegate.endRun();
    EXPECT_TRUE(says(u"compressionGain"_s, gain));
}

TEST_F(ActionsTest, PasswordsAreTypedAndShown)
{
    click(u"protectionButton"_s);
    EXPECT_TRUE(widget(u"passwordsPage"_s).isVisible());
    EXPECT_TRUE(said(u"protectionText"_s).contains(u"none typed"));
    type(window, u"se<cret"_s);
    EXPECT_EQ(delegate.passwordSelector(), u"se<cret"_s);
    EXPECT_TRUE(said(u"strengthHint"_s).startsWith(u"Easy to guess"));
    for (const QString &words : {u"none typed"_s, u"se<cret"_s})
        EXPECT_FALSE(said(u"protectionText"_s).contains(words));
    click(u"checkBox01"_s);
    EXPECT_FALSE(widget(u"secureText01a"_s).isVisible());
    EXPECT_TRUE(widget(u"secureText01b"_s).isVisible());
    EXPECT_EQ(said(u"secureText01b"_s), u"se<cret"_s);
}

TEST_F(ActionsTest, TheKeychainIsAskedWhileTheWindowGoesOn)
{
    SecretService session;
    session.start();
    showTab(u"passwordsPage"_s);
    QTest::keyClick(&widget(u"passCombo01"_s), Qt::Key_Down);
    settle();
    EXPECT_FALSE(widget(u"passButton01"_s).isEnabled()) << "without an account there is nothing to fetch";
    fill(u"keychainUser"_s, u"holiday"_s);
    fill(u"keychainPass"_s, u"fjord & 7"_s);
    click(u"passButton02"_s);
    EXPECT_TRUE(says(u"keychainText01"_s, u"was stored"_s));
    session.freeze();
    click(u"passButton01"_s);
    QTest::keyClicks(&widget(u"keychainUser"_s), u" typed meanwhile"_s);
    EXPECT_EQ(delegate.keychainUser.text(), u"holiday typed meanwhile"_s);
    session.thaw();
    EXPECT_TRUE(says(u"keychainText01"_s, u"was fetched"_s));
    EXPECT_TRUE(said(u"protectionText"_s).endsWith(u"account holiday")) << "the chosen one holds nothing";

    // Seen, changed, and then not the text that counts: nobody may overlook that.
    click(u"checkBox02"_s);
    EXPECT_FALSE(widget(u"keychainConflict"_s).isVisible());
    QTest::keyClicks(&widget(u"keychainClear"_s), u"!"_s);
    settle();
    EXPECT_TRUE(widget(u"keychainConflict"_s).isVisible());
    EXPECT_TRUE(said(u"protectionText"_s).contains(u"look at the Password tab"));
}

TEST_F(ActionsTest, ChoosersTakeFilesAndFoldersTogetherAndToolsWithoutExtension)
{
    for (const char *name : {"pick/tool", "pick/notes.txt", "pick/folder.d/inside"})
        writeFile(program.folder() / name, "x");
    const auto names = [](const QFileDialog &dialog) {
        const auto *list = dialog.findChild<QAbstractItemView *>(u"listView"_s);
        QStringList found;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            found.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        return found;
    };
    const auto tools =
        ui::makeOpenPanelDialog({.directory = program.path("pick"), .allowedFileTypes = {u""_s}}, &window);
    tools->show();
    EXPECT_TRUE(waitUntil([&] {
        return names(*tools) == QStringList{u"folder.d"_s, u"tool"_s};
    })) << names(*tools).join(u' ').toStdString();

    const auto all = ui::makeOpenPanelDialog(
        {.canChooseDirectories = true, .allowsMultipleSelection = true, .directory = program.path("pick")},
        &window);
    all->show();
    ASSERT_TRUE(waitUntil([&] { return names(*all).size() == 3; }));
    all->findChild<QAbstractItemView *>(u"listView"_s)->selectAll();
    settle();
    QTest::keyClick(all.get(), Qt::Key_Return);
    EXPECT_EQ(all->result(), QDialog::Accepted);
    EXPECT_EQ(all->selectedFiles().size(), 3);
}
