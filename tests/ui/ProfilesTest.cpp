#include "Command.h"
#include "TestWindow.h"

#include "plist/File.h"
#include "settings/Paths.h"
#include "ui/SingleWindow.h"

#include <QCheckBox>
#include <QDir>
#include <QMessageBox>
#include <QSignalSpy>
#include <QWindow>
#include <csignal>

namespace {

/// One of the sheets that ask for a name.
struct Sheet {
    QString button;
    QString panel;
};

const Sheet renaming{u"profileButton03"_s, u"profilePanel01"_s};
const Sheet making{u"profileButton04"_s, u"profilePanel02"_s};
const Sheet duplicating{u"profileButton06"_s, u"profilePanel03"_s};

class ProfilesTest : public WindowTest {
protected:
    QPushButton *answer(QMessageBox::StandardButton which)
    {
        for (auto *box : window.findChildren<QMessageBox *>())
            if (box->isVisible()) return qobject_cast<QPushButton *>(box->button(which));
        return nullptr;
    }

    void name(
        const Sheet &sheet, const QString &text, const std::function<void()> &before = [] {})
    {
        clickAndAnswer(sheet.button, sheet.panel, [&] {
            type(widget(sheet.panel), text);
            before();
            QTest::keyClick(widget(sheet.panel).windowHandle(), Qt::Key_Return);
        });
        EXPECT_TRUE(waitForThreads(60s));
        EXPECT_FALSE(widget(sheet.panel).isVisible());
    }
    void answerDeletion(const QString &button)
    {
        clickAndAnswer(u"profileButton07"_s, u"profilePanel04"_s, [&] { click(button); });
    }
    plist::Dictionary record(const QString &profile) { return delegate.listPlist().dictionary(profile); }
    QStringList names() { return delegate.listPlist().keys(); }
    const QString first = delegate.currentProfile();
};

} // namespace

TEST_F(ProfilesTest, AreMadeRenamedDuplicatedAndDeleted)
{
    std::filesystem::create_directories(program.folder() / "home/Pictures");
    EXPECT_FALSE(widget(u"profileButton07"_s).isEnabled()) << "the last profile stays";
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.outputText01.setText(u"Backed up."_s);
    name(making, u"Second"_s, [&] { click(u"mustDos01"_s); });
    EXPECT_EQ(delegate.currentProfile(), u"Second"_s);
    EXPECT_EQ(delegate.outputText01.text(), QString()) << "how another profile's run ended";
    EXPECT_EQ(delegate.passCombo01.selectedIndex(), PasswordTab::TypedPassword);
    EXPECT_EQ(record(u"Second"_s).array(u"folders"_s).strings(), QStringList{program.path("home/Pictures")});
    EXPECT_EQ(delegate.defaultProfile().array(u"folders"_s).count(), 0) << "the copy is not deep";

    click(u"defaultProfileButton"_s);
    const plist::Dictionary second = record(u"Second"_s);
    name(renaming, u"Renamed"_s, [&] { EXPECT_EQ(delegate.panel01text01.text(), u"Second"_s); });
    EXPECT_EQ(names(), (QStringList{first, u"Renamed"_s}));
    EXPECT_EQ(delegate.profileCombo01.titles(), names());
    EXPECT_TRUE(record(u"Renamed"_s).isSameObject(second));
    name(duplicating, u"Twin"_s);
    EXPECT_EQ(said(u"currentProfileTextView"_s), u"Twin"_s);
    EXPECT_TRUE(record(u"Twin"_s).isSameObject(second)) << "one record until it is saved and read again";
    name(renaming, u"Sibling"_s);
    EXPECT_EQ(delegate.setting(u"resources"_s, u"selectedprofile"_s), u"Renamed"_s) << "at the next start";

    // The chooser may show another profile than the one in use; that one stays in use.
    const auto accent = [&] { return widget(u"profileButton02"_s).palette().color(QPalette::Button); };
    EXPECT_NE(accent(), window.palette().color(QPalette::Highlight));
    delegate.profileCombo01.selectTitle(u"Renamed"_s);
    settle();
    EXPECT_EQ(accent(), window.palette().color(QPalette::Highlight));
    answerDeletion(u"panel04cancel"_s);
    EXPECT_EQ(names().size(), 3);
    answerDeletion(u"panel04ok"_s);
    EXPECT_EQ(names(), (QStringList{first, u"Sibling"_s}));
    EXPECT_EQ(delegate.currentProfile(), u"Sibling"_s);
    answerDeletion(u"panel04ok"_s);
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), first);
    EXPECT_EQ(delegate.currentProfile(), first);
}

TEST_F(ProfilesTest, AreNamedInTheTitleWithTheSignOfChanges)
{
    for (const auto &[name, title] : {std::pair{u"Home"_s, u"Home* — Quillorent"_s},
                                      {u"a[*]b"_s, u"a[*]b* — Quillorent"_s},
                                      {u"Quillorent"_s, u"*Quillorent"_s},
                                      {u""_s, u"*Quillorent"_s}}) {
        delegate.currentProfileTextView.setText(name);
        settle();
        window.setWindowModified(true);
        EXPECT_EQ(window.windowHandle()->title(), title);
    }
}

TEST_F(ProfilesTest, NamesThatAreEmptyOrTakenAreRefused)
{
    QString refusal;
    delegate.warningPanel04.observe([&] {
        if (delegate.warningPanel04.place() == outlets::Panel::Place::Hidden) return;
        refusal = delegate.warningText04.text();
        delegate.panelNoname();
    });
    for (const Sheet &sheet : {renaming, making, duplicating}) {
        clickAndAnswer(sheet.button, sheet.panel, [&] { click(sheet.panel + u"Cancel"_s); });
        for (const auto &[typed, reason] :
             {std::pair{u""_s, u"none was typed"_s}, {u"  "_s, u"none was typed"_s}, {first, u"already"_s}}) {
            refusal.clear();
            name(sheet, typed);
            EXPECT_TRUE(refusal.contains(reason)) << refusal.toStdString();
            EXPECT_EQ(names(), QStringList{first});
        }
    }
    EXPECT_TRUE(delegate.noRepeatedProfileName(first.toUpper()));
}

TEST_F(ProfilesTest, WhatIsNotSavedShowsAndIsAskedFor)
{
    click(u"profileButton01"_s);
    click(u"settingsSaveButton"_s);
    ASSERT_TRUE(waitForThreads(60s)); // a save takes the state of its own turn
    ASSERT_TRUE(says(u"unsavedText"_s, u"All changes saved"_s));
    EXPECT_FALSE(window.isWindowModified());

    widget<QCheckBox>(u"autosaveCheck01"_s).click();
    settle();
    ASSERT_FALSE(delegate.autosaveCheck01.isOn());
    delegate.addFolders({u"/one more"_s});
    EXPECT_TRUE(says(u"unsavedText"_s, u"Profiles and settings not saved yet"_s));
    EXPECT_TRUE(window.isWindowModified());

    const QSignalSpy closed(&window, &ui::Window::closed);
    const QString path = quillorentLibrary::profilesPath();
    window.close();
    QTest::mouseClick(answer(QMessageBox::Cancel), Qt::LeftButton);
    settle();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(closed.count(), 0);

    window.close();
    QTest::mouseClick(answer(QMessageBox::Discard), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 1; }));
    EXPECT_FALSE(plist::readFile(path).dictionary == delegate.listPlist());
    window.show();

    window.close();
    QTest::mouseClick(answer(QMessageBox::Save), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 2; }));
    EXPECT_TRUE(plist::readFile(path).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, QuittingTellsWhatItCanNotSave)
{
    const QString path = quillorentLibrary::profilesPath();
    const QDir copies(program.path("archives"));
    // Nobody may write where a folder stands in the file's place.
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path + u"/taken"_s));
    delegate.addFolders({u"/one more"_s});
    program.choose(copies.path());
    const QSignalSpy closed(&window, &ui::Window::closed);
    auto &panel = widget(u"quitPanel01"_s);
    int endings = 0;
    for (const QString &answer : {u"Again"_s, u"Stay"_s, u"Copy"_s, u"Leave"_s}) {
        SCOPED_TRACE(answer.toStdString());
        window.show();
        if (!panel.isVisible()) window.close();
        ASSERT_TRUE(waitUntil([&] { return panel.isVisible(); }));
        EXPECT_TRUE(window.isVisible() && panel.windowTitle() == u"Can't save");
        EXPECT_TRUE(delegate.quitText01.text().contains(path));
        click(u"quitPanel01"_s + answer);
        if (answer == u"Again") continue; // and it fails again
        ASSERT_TRUE(waitForThreads(60s));
        if (answer != u"Stay") ++endings;
        EXPECT_TRUE(waitUntil([&] { return closed.count() == endings; }));
    }
    EXPECT_EQ(copies.entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(plist::readFile(copies.filePath(QFileInfo(path).fileName())).dictionary ==
                delegate.listPlist());
    ASSERT_TRUE(QDir(path).removeRecursively());
    window.show();
    window.close();
    EXPECT_TRUE(waitUntil([&] { return closed.count() == endings + 1; }));
    EXPECT_TRUE(plist::readFile(path).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, WhatOthersChangedTooIsAskedFor)
{
    const QString path = quillorentLibrary::profilesPath();
    for (const QString &answer : {u"Stop"_s, u"Mine"_s, u"Theirs"_s}) {
        const plist::Dictionary theirs = plist::readFile(path).dictionary;
        const QString name = delegate.currentProfile();
        theirs.dictionary(name).setValue(u"part"_s, answer + u" of theirs"_s);
        theirs.setValue(u"New "_s + answer, plist::Dictionary::make());
        ASSERT_EQ(plist::writeFile(path, theirs), QString());
        delegate.prefStepper01Action(answer + u" of mine"_s);
        clickAndAnswer(u"profileButton01"_s, u"conflictPanel01"_s, [&] {
            EXPECT_TRUE(delegate.conflictText01.text().contains(name));
            click(u"conflictPanel01"_s + answer);
        });
        ASSERT_TRUE(waitForThreads(60s));
        settle();
        const QString expected = answer + (answer == u"Theirs" ? u" of theirs"_s : u" of mine"_s);
        EXPECT_EQ(said(u"prefText01"_s), expected);
        const bool isSaved = answer != u"Stop";
        EXPECT_EQ(plist::readFile(path).dictionary == delegate.listPlist(), isSaved);
        EXPECT_EQ(delegate.profileCombo01.titles().contains(u"New "_s + answer), isSaved);
        const QString kept = path + (answer == u"Theirs" ? u".kept.1"_s : u".kept"_s);
        EXPECT_EQ(delegate.settingsText01.text().contains(kept), isSaved);
        if (!isSaved) continue;
        const QString lost = answer + (answer == u"Mine" ? u" of theirs"_s : u" of mine"_s);
        EXPECT_EQ(plist::readFile(kept).dictionary.dictionary(name).string(u"part"_s), lost);
    }
}

TEST_F(ProfilesTest, ASecondStartRaisesTheFirstWindow)
{
    const TemporaryFolder runtime;
    std::filesystem::permissions(runtime.path(), std::filesystem::perms{0700});
    qputenv("XDG_RUNTIME_DIR", runtime.path().c_str());
    const std::string config = quillorentLibrary::preferencesFolder().toStdString();
    const auto start = [&](const std::string &folder,
                           const std::vector<std::string> &command = {QUILLORENT}) {
        return std::make_unique<BackgroundProgram>(
            command, CommandOptions{.environment = {{"XDG_CONFIG_HOME", folder}}},
            (runtime / "log").string());
    };
    const auto sockets = [&] {
        return std::ranges::count_if(std::filesystem::directory_iterator(runtime.path()),
                                     [](const auto &entry) { return entry.is_socket(); });
    };
    // One that was killed leaves its socket, and keeps nobody out.
    const auto killed = start(config);
    ASSERT_TRUE(waitUntil([&] { return sockets() == 1; }));
    killed->signal(SIGKILL);
    ASSERT_TRUE(waitUntil([&] { return killed->hasEnded(); }));
    ui::SingleWindow single(quillorentLibrary::preferencesFolder());
    ASSERT_TRUE(single.take());
    QObject::connect(&single, &ui::SingleWindow::raiseRequested, &window, &ui::Window::comeToFront);
    QObject::connect(&single, &ui::SingleWindow::openingRequested, &window, &ui::Window::open);
    window.showMinimized();

    const std::string archive = (runtime / "a b.rar.aes.rar").string();
    const auto second = start(config, {QUILLORENT, archive});
    EXPECT_TRUE(waitUntil([&] { return second->hasEnded(); }));
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(waitUntil([&] { return !program.delegate().extractFullList.strings().isEmpty(); }));
    EXPECT_EQ(program.delegate().extractFullList.strings(), QStringList(QString::fromStdString(archive)));
    const auto third = start(config, {QUILLORENT, "--page", "password"});
    auto *tabs = window.findChild<QTabWidget *>(u"mainTabs"_s);
    EXPECT_TRUE(waitUntil([&] { return tabs->currentWidget()->objectName() == u"passwordsPage"; }));
    for (const std::string wrong : {"--page=nowhere", "--nonsense"})
        EXPECT_EQ(runCommand({QUILLORENT, wrong}, {.environment = {{"XDG_CONFIG_HOME", config}}}).status, 64);
    const auto other = start(program.path("other").toStdString());
    EXPECT_TRUE(waitUntil([&] { return sockets() == 2; })) << "settings of its own, a window of its own";
    EXPECT_FALSE(other->hasEnded());
}
