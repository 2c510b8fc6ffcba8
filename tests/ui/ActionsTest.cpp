#include "Credentials.h"
#include "TestWindow.h"

#include "ui/Actions.h"
#include "ui/FolderList.h"
#include "ui/OpenPanelDialog.h"
#include "ui/StepperButtons.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

class ActionsTest : public WindowTest {
protected:
    QStringList folders() const { return delegate.currentRecord().array(u"folders"_qs).strings(); }
    QString kept(const QString &key) const
    {
        return delegate.currentRecord().string(key).value_or(QString());
    }

    /// Controls that a form names and a person can press or choose from.
    QList<QWidget *> controls()
    {
        QList<QWidget *> found;
        for (QWidget *root : window.roots())
            for (QWidget *control : root->findChildren<QWidget *>())
                if ((qobject_cast<QAbstractButton *>(control) || qobject_cast<QComboBox *>(control)) &&
                    !qobject_cast<QToolButton *>(control) && !control->objectName().startsWith(u"qt_") &&
                    !control->objectName().isEmpty() && !found.contains(control))
                    found.append(control);
        return found;
    }
};

} // namespace

TEST_F(ActionsTest, EveryControlNamesAnAction)
{
    // Read when something begins, kept nowhere.
    QSet<QString> known{u"checkBox03"_qs, u"mustDos01"_qs, u"decryptionCombo01"_qs};
    for (const ui::ActionRow &row : ui::actionTable()) {
        EXPECT_EQ(ui::widgetsNamed(QString(row.control), window.roots()).size(), 1) << row.control.data();
        EXPECT_FALSE(known.contains(QString(row.control))) << row.control.data() << " stands twice";
        known.insert(QString(row.control));
    }
    ASSERT_GT(controls().size(), 20);
    for (const QWidget *control : controls())
        EXPECT_TRUE(known.contains(control->objectName())) << control->objectName().toStdString();
}

TEST_F(ActionsTest, EveryControlCanBeNamedToThoseWhoDoNotSee)
{
    QSet<const QWidget *> labelled;
    for (QWidget *root : window.roots())
        for (const QLabel *label : root->findChildren<QLabel *>())
            labelled.insert(label->buddy());

    for (QWidget *root : window.roots())
        for (const QWidget *control : root->findChildren<QWidget *>()) {
            if (control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_")) continue;
            if (control->objectName().isEmpty() || control->inherits("QTabWidget") ||
                control->inherits("QStackedWidget") || control->inherits("QLabel"))
                continue;
            const bool named =
                !control->accessibleName().isEmpty() || !control->property("text").toString().isEmpty();
            EXPECT_TRUE(named || labelled.contains(control)) << control->objectName().toStdString();
        }
}

TEST_F(ActionsTest, SwitchesAndFieldsAreKept)
{
    struct Case {
        QString control;
        QString key;
    };
    for (const auto &[control, key] :
         {Case{u"checkBox04"_qs, u"split"_qs}, Case{u"checkBox05"_qs, u"keepdate"_qs}}) {
        const bool before = widget<QCheckBox>(control).isChecked();
        widget(control).setFocus();
        QTest::keyClick(&widget(control), Qt::Key_Space);
        settle();
        EXPECT_EQ(kept(key), before ? u"0"_qs : u"1"_qs) << key.toStdString();
    }
    click(u"autosaveCheck01"_qs);
    EXPECT_EQ(delegate.setting(u"resources"_qs, u"autosave"_qs), u"0"_qs);

    delegate.checkBox04.setOn(true);
    settle();
    auto &size = widget<QLineEdit>(u"prefText01"_qs);
    size.selectAll();
    QTest::keyClicks(&size, u"500"_qs);
    settle();
    EXPECT_EQ(kept(u"part"_qs), u"500"_qs);
    EXPECT_EQ(widget<QLabel>(u"volumeHint"_qs).text(), u"= 500.0 kB"_qs);
    QTest::keyClick(&size, Qt::Key_Up);
    settle();
    EXPECT_EQ(kept(u"part"_qs), u"1500"_qs);
    EXPECT_EQ(size.text(), u"1500"_qs);
    for (int press = 0; press < 2; ++press)
        QTest::keyClick(&size, Qt::Key_Down);
    settle();
    EXPECT_EQ(kept(u"part"_qs), u"1"_qs);
}

TEST_F(ActionsTest, FoldersComeAndGo)
{
    const QStringList three{program.path("a"), program.path("b"), program.path("c")};
    delegate.openPanel = [&](const outlets::OpenPanel &) { return std::optional(three); };
    click(u"folderButton01"_qs);
    ASSERT_EQ(folders(), three);

    auto &list = widget<ui::FolderListView>(u"listTableView"_qs);
    EXPECT_FALSE(widget(u"folderButton02"_qs).isEnabled());
    list.selectRows({0, 2});
    settle();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Delete);
    settle();
    EXPECT_EQ(folders(), QStringList{three[1]});
    EXPECT_EQ(list.outletModel().rowCount(), 1);
    EXPECT_EQ(list.selectedRows(), QList<int>{0});

    drop(list, {QUrl::fromLocalFile(program.path("home")), QUrl(u"http://localhost/page"_qs)});
    EXPECT_EQ(folders(), (QStringList{three[1], program.path("home")}));

    // One of the two exists.
    const auto toolTip = [&](int row) {
        return list.outletModel().data(list.outletModel().index(row, 0), Qt::ToolTipRole).toString();
    };
    EXPECT_TRUE(waitUntil([&] { return toolTip(0).contains(u"not found"); }));
    EXPECT_FALSE(toolTip(1).contains(u"not found"));
}

TEST_F(ActionsTest, PasswordSourceShowsItsPageAndWhatIsMissing)
{
    const auto &protection = widget<QLabel>(u"protectionText"_qs);
    click(u"protectionButton"_qs);
    EXPECT_TRUE(widget(u"passwordsPage"_qs).isVisible());
    EXPECT_TRUE(protection.text().contains(u"not entered"));

    QTest::keyClicks(&widget(u"secureText01a"_qs), u"se<cret"_qs);
    settle();
    EXPECT_EQ(delegate.passwordSelector(), u"se<cret"_qs);
    EXPECT_TRUE(widget<QLabel>(u"strengthHint"_qs).text().startsWith(u"Easy to guess"));
    EXPECT_FALSE(protection.text().contains(u"not entered"));
    EXPECT_FALSE(protection.text().contains(u"se<cret"));
    click(u"checkBox01"_qs);
    EXPECT_FALSE(widget(u"secureText01a"_qs).isVisible());
    EXPECT_TRUE(widget(u"secureText01b"_qs).isVisible());
    EXPECT_EQ(widget<QLineEdit>(u"secureText01b"_qs).text(), u"se<cret"_qs);

    widget(u"passCombo01"_qs).setFocus();
    for (const int source : {PasswordTab::KeychainPassword, PasswordTab::Certificate}) {
        QTest::keyClick(&widget(u"passCombo01"_qs), Qt::Key_Down);
        settle();
        EXPECT_EQ(kept(u"passtype"_qs), QString::number(source));
    }
}

TEST_F(ActionsTest, CertificateIsCheckedAndToldOf)
{
    const Credentials keys = makeCredentials(program.folder(), "old", Validity::EndedIn2021);
    showTab(u"passwordsPage"_qs);
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.passCombo01Action();
    settle();
    QString chosen = toQString(keys.key);
    delegate.openPanel = [&](const outlets::OpenPanel &) { return QStringList{chosen}; };

    clickAndAnswer(u"certButton01"_qs, u"certPanel01"_qs, [&] {
        EXPECT_TRUE(delegate.certPanelText01.text().contains(u"holds a private key"));
        click(u"certPanel01CloseButton"_qs);
    });
    clickAndAnswer(u"pkButton01"_qs, u"pkPanel01"_qs,
                   [&] { QTest::keyClick(&widget(u"pkPanel01"_qs), Qt::Key_Escape); });
    EXPECT_TRUE(waitUntil([&] { return !widget(u"pkPanel01"_qs).isVisible(); }));

    chosen = toQString(keys.certificate);
    click(u"certButton01"_qs);
    EXPECT_TRUE(waitUntil([&] { return widget(u"certWarning01"_qs).isVisible(); }));
    EXPECT_TRUE(widget<QLabel>(u"certSummary01"_qs).text().startsWith(u"CN=old"));
    EXPECT_TRUE(widget<QLabel>(u"protectionText"_qs).text().endsWith(u"old.pem"));
    click(u"certInfoButton01"_qs);
    EXPECT_TRUE(waitUntil([&] { return delegate.consoleTextView01.text().startsWith(u"Certificate:"); }));
    EXPECT_TRUE(widget(u"consolePanel01"_qs).isVisible());
}

TEST_F(ActionsTest, ChooserTakesFilesAndFoldersTogether)
{
    writeFile(program.folder() / "pick" / "file.txt", "x");
    std::filesystem::create_directories(program.folder() / "pick" / "folder");
    const auto dialog = ui::makeOpenPanelDialog(
        {.canChooseDirectories = true, .allowsMultipleSelection = true, .directory = program.path("pick")},
        &window);
    dialog->show();
    auto *list = dialog->findChild<QAbstractItemView *>(u"listView"_qs);
    ASSERT_TRUE(waitUntil([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    list->selectAll();
    settle();
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    QStringList chosen = dialog->selectedFiles();
    chosen.sort();
    EXPECT_EQ(chosen, (QStringList{program.path("pick/file.txt"), program.path("pick/folder")}));
}

TEST_F(ActionsTest, ChooserOfToolsShowsFilesWithoutExtension)
{
    for (const char *name : {"tool", "notes.txt"})
        writeFile(program.folder() / "pick" / name, "x");
    std::filesystem::create_directories(program.folder() / "pick" / "folder.d");
    const auto dialog =
        ui::makeOpenPanelDialog({.directory = program.path("pick"), .allowedFileTypes = {u""_qs}}, &window);
    dialog->show();
    const auto *list = dialog->findChild<QAbstractItemView *>(u"listView"_qs);
    const auto names = [&] {
        QStringList found;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            found.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        return found;
    };
    EXPECT_TRUE(waitUntil([&] {
        return names() == QStringList{u"folder.d"_qs, u"tool"_qs};
    })) << names().join(u' ').toStdString();
}
