#include "Command.h"
#include "TestWindow.h"

#include "plist/File.h"
#include "settings/Paths.h"
#include "ui/SingleWindow.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <csignal>

namespace {

class ProfilesTest : public WindowTest {
protected:
    QPushButton *answer(QMessageBox::StandardButton which)
    {
        for (auto *box : window.findChildren<QMessageBox *>())
            if (box->isVisible()) return qobject_cast<QPushButton *>(box->button(which));
        return nullptr;
    }
};

} // namespace

TEST_F(ProfilesTest, SheetsAskForNames)
{
    EXPECT_FALSE(widget(u"profileButton07"_qs).isEnabled()) << "the last profile stays";
    clickAndAnswer(u"profileButton04"_qs, u"profilePanel02"_qs, [&] {
        QTest::keyClicks(&widget(u"panel02text01"_qs), u"Second"_qs);
        QTest::keyClick(&widget(u"panel02text01"_qs), Qt::Key_Return);
    });
    EXPECT_TRUE(waitUntil([&] { return widget<QLabel>(u"currentProfileTextView"_qs).text() == u"Second"; }));
    for (const QString &sheet : {u"profileButton03 profilePanel01 panel01text02"_qs,
                                 u"profileButton06 profilePanel03 panel03text02"_qs}) {
        const QStringList names = sheet.split(u' ');
        clickAndAnswer(names[0], names[1], [&] { click(names[1] + u"Cancel"_qs); });
        EXPECT_FALSE(widget(names[1]).isVisible());
        clickAndAnswer(names[0], names[1], [&] {
            QTest::keyClicks(&widget(names[2]), u"Name of "_qs + names[1]);
            click(names[1] + u"Ok"_qs);
        });
        EXPECT_EQ(delegate.currentProfile(), u"Name of "_qs + names[1]);
    }
    clickAndAnswer(u"profileButton07"_qs, u"profilePanel04"_qs, [&] { click(u"panel04ok"_qs); });
    EXPECT_EQ(delegate.listPlist().count(), 2);
    ASSERT_TRUE(waitForThreads(std::chrono::seconds(60)));
}

TEST_F(ProfilesTest, WhatIsNotSavedShowsAndIsAskedFor)
{
    click(u"profileButton01"_qs);
    click(u"settingsSaveButton"_qs);
    ASSERT_TRUE(waitForThreads(std::chrono::seconds(60))); // a save takes the state of its own turn
    ASSERT_TRUE(waitUntil([&] { return !window.isWindowModified(); }));
    EXPECT_EQ(widget<QLabel>(u"unsavedText"_qs).text(), QString());

    click(u"autosaveCheck01"_qs);
    ASSERT_FALSE(delegate.autosaveCheck01.isOn());
    delegate.addFolders({u"/one more"_qs});
    EXPECT_TRUE(waitUntil(
        [&] { return widget<QLabel>(u"unsavedText"_qs).text() == u"Profiles and settings not saved"; }));
    EXPECT_TRUE(window.isWindowModified());

    const QSignalSpy closed(&window, &ui::Window::closed);
    window.close();
    QTest::mouseClick(answer(QMessageBox::Cancel), Qt::LeftButton);
    settle();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(closed.count(), 0);

    // Nobody may write where a folder stands in the file's place; then there is room again.
    const QString path = quillorentLibrary::profilesPath();
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path + u"/taken"_qs));
    clickAndAnswer(u"profileButton01"_qs, u"savePanel01"_qs, [&] {
        EXPECT_TRUE(delegate.saveText01.text().contains(path));
        click(u"savePanel01CloseButton"_qs);
    });
    ASSERT_TRUE(QDir(path).removeRecursively());
    window.close();
    QTest::mouseClick(answer(QMessageBox::Save), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 1; }));
    EXPECT_TRUE(plist::readFile(path).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, WhatIsDiscardedIsGone)
{
    delegate.autosaveCheck01.setOn(false);
    delegate.autosaveCheck01Action();
    delegate.addFolders({u"/one more"_qs});
    window.close();
    QTest::mouseClick(answer(QMessageBox::Discard), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return !window.isVisible(); }));
    EXPECT_FALSE(plist::readFile(quillorentLibrary::profilesPath()).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, QuittingTellsWhatItCanNotSave)
{
    // Nobody may write where a folder stands in the file's place.
    const QString path = quillorentLibrary::profilesPath();
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path + u"/taken"_qs));
    const QSignalSpy closed(&window, &ui::Window::closed);
    const QString copies = program.path("copies");
    ASSERT_TRUE(QDir().mkpath(copies));
    delegate.addFolders({u"/one more"_qs});
    delegate.openPanel = [&](const outlets::OpenPanel &) { return QStringList{copies}; };
    struct Answer {
        QString button;
        bool ends;
    };
    for (const Answer &answer : {Answer{u"Again"_qs, false}, Answer{u"Stay"_qs, false},
                                 Answer{u"Copy"_qs, true}, Answer{u"Leave"_qs, true}}) {
        SCOPED_TRACE(answer.button.toStdString());
        const auto before = closed.count();
        auto &panel = widget(u"quitPanel01"_qs);
        if (!panel.isVisible()) window.close();
        ASSERT_TRUE(waitUntil([&] { return panel.isVisible(); }));
        EXPECT_TRUE(window.isVisible() && panel.windowTitle() == u"Can't save");
        EXPECT_TRUE(delegate.quitText01.text().contains(path));
        click(u"quitPanel01"_qs + answer.button);
        if (answer.button == u"Again") continue; // and it fails again
        ASSERT_TRUE(waitForThreads(std::chrono::seconds(60)));
        EXPECT_EQ(waitUntil([&] { return closed.count() > before || !answer.ends; }), true);
        EXPECT_EQ(window.isVisible(), !answer.ends);
        window.show();
    }
    EXPECT_EQ(QDir(copies).entryList(QDir::Files).size(), 1);
    const QString copy = QDir(copies).filePath(QFileInfo(path).fileName());
    EXPECT_TRUE(plist::readFile(copy).dictionary == delegate.listPlist());

    ASSERT_TRUE(QDir(path).removeRecursively());
    window.close();
    EXPECT_TRUE(waitUntil([&] { return !window.isVisible(); }));
    EXPECT_TRUE(plist::readFile(path).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, WhatOthersChangedTooIsAskedFor)
{
    const QString path = quillorentLibrary::profilesPath();
    for (const QString &answer : {u"Stop"_qs, u"Mine"_qs, u"Theirs"_qs}) {
        const plist::Dictionary theirs = plist::readFile(path).dictionary;
        const QString name = delegate.currentProfile();
        theirs.dictionary(name).setValue(u"part"_qs, answer + u" of theirs"_qs);
        theirs.setValue(u"New "_qs + answer, plist::Dictionary::make());
        ASSERT_EQ(plist::writeFile(path, theirs), QString());
        delegate.prefStepper01Action(answer + u" of mine"_qs);
        clickAndAnswer(u"profileButton01"_qs, u"conflictPanel01"_qs, [&] {
            EXPECT_TRUE(delegate.conflictText01.text().contains(name));
            click(u"conflictPanel01"_qs + answer);
        });
        ASSERT_TRUE(waitForThreads(std::chrono::seconds(60)));
        settle();
        const QString expected = answer + (answer == u"Theirs" ? u" of theirs"_qs : u" of mine"_qs);
        EXPECT_EQ(widget<QLineEdit>(u"prefText01"_qs).text(), expected);
        const bool isSaved = answer != u"Stop";
        EXPECT_EQ(plist::readFile(path).dictionary == delegate.listPlist(), isSaved);
        EXPECT_EQ(delegate.profileCombo01.titles().contains(u"New "_qs + answer), isSaved);
        EXPECT_EQ(delegate.settingsText01.text().contains(path + u".kept"_qs), isSaved);
    }
}

TEST_F(ProfilesTest, ASecondStartRaisesTheFirstWindow)
{
    const TemporaryFolder runtime;
    std::filesystem::permissions(runtime.path(), std::filesystem::perms{0700});
    qputenv("XDG_RUNTIME_DIR", runtime.path().c_str());
    const std::string config = quillorentLibrary::preferencesFolder().toStdString();
    const auto start = [&](const std::string &folder) {
        return std::make_unique<BackgroundProgram>(
            std::vector<std::string>{QUILLORENT},
            CommandOptions{.environment = {{"XDG_CONFIG_HOME", folder}}}, (runtime / "log").string());
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
    window.showMinimized();

    const auto second = start(config);
    EXPECT_TRUE(waitUntil([&] { return second->hasEnded(); }));
    EXPECT_FALSE(window.isMinimized());
    const auto other = start(program.path("other").toStdString());
    EXPECT_TRUE(waitUntil([&] { return sockets() == 2; })) << "settings of its own, a window of its own";
    single.giveUp();
    const auto next = start(config);
    EXPECT_TRUE(waitUntil([&] { return sockets() == 2; }));
    EXPECT_FALSE(other->hasEnded() || next->hasEnded());
}
