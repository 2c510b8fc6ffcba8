#include "TestWindow.h"

#include "plist/File.h"
#include "settings/Paths.h"

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

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
    clickAndAnswer(u"profileButton01"_qs, u"warningPanel01"_qs, [&] {
        EXPECT_TRUE(delegate.warningText01.text().contains(path));
        click(u"warningPanel01CloseButton"_qs);
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
