#include "TestWindow.h"

#include "plist/File.h"
#include "settings/Paths.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

namespace {

class ProfilesTest : public WindowTest {
protected:
    ProfilesTest()
    {
        delegate.addFolders({u"/a folder"_qs});
        delegate.setterCurrentProfile(first);
    }

    /// Opens a sheet, types a name where there is a field for it, and confirms.
    void fill(const QString &button, const QString &panel, const QString &field, const QString &name)
    {
        clickAndAnswer(button, panel, [&] {
            if (!field.isEmpty()) QTest::keyClicks(&widget(field), name);
            click(field.isEmpty() ? u"panel04ok"_qs : panel + u"Ok"_qs);
        });
        ASSERT_TRUE(waitForThreads(std::chrono::seconds(60)));
        settle();
        EXPECT_FALSE(widget(panel).isVisible());
    }
    void refuse(const QString &button, const QString &panel, const QString &field, const QString &name,
                const QString &reason)
    {
        QTimer timer;
        bool refused = false;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (!widget(u"warningPanel04"_qs).isVisible()) return;
            refused = true;
            EXPECT_TRUE(delegate.warningText04.text().contains(reason)) << reason.toStdString();
            EXPECT_FALSE(widget(panel).isVisible());
            click(u"warningPanel04CloseButton"_qs);
        });
        timer.start(20);
        fill(button, panel, field, name);
        EXPECT_TRUE(waitUntil([&] { return refused; }));
    }
    QStringList names() const { return delegate.listPlist().keys(); }
    QStringList foldersOf(const QString &profile) const
    {
        return delegate.listPlist().dictionary(profile).array(u"folders"_qs).strings();
    }
    QPushButton *answer(QMessageBox::StandardButton which)
    {
        for (auto *box : window.findChildren<QMessageBox *>())
            if (box->isVisible()) return qobject_cast<QPushButton *>(box->button(which));
        return nullptr;
    }

    const QString first = delegate.currentProfile();
};

} // namespace

TEST_F(ProfilesTest, AreMadeRenamedDuplicatedAndDeleted)
{
    EXPECT_FALSE(widget(u"profileButton07"_qs).isEnabled()) << "the last profile stays";

    std::filesystem::create_directories(program.folder() / "home/Pictures");
    clickAndAnswer(u"profileButton04"_qs, u"profilePanel02"_qs, [&] {
        EXPECT_FALSE(widget<QCheckBox>(u"mustDos01"_qs).isChecked());
        click(u"mustDos01"_qs);
        QTest::keyClicks(&widget(u"panel02text01"_qs), u"Second"_qs);
        QTest::keyClick(&widget(u"panel02text01"_qs), Qt::Key_Return);
    });
    ASSERT_TRUE(waitForThreads(std::chrono::seconds(60)));
    EXPECT_EQ(delegate.currentProfile(), u"Second"_qs);
    EXPECT_EQ(foldersOf(u"Second"_qs), QStringList{program.path("home/Pictures")});
    EXPECT_FALSE(delegate.listPlist().dictionary(u"Second"_qs).isSameObject(delegate.defaultProfile()));
    EXPECT_EQ(delegate.defaultProfile().array(u"folders"_qs).count(), 0);

    fill(u"profileButton03"_qs, u"profilePanel01"_qs, u"panel01text02"_qs, u"Renamed"_qs);
    EXPECT_EQ(names(), (QStringList{first, u"Renamed"_qs}));
    EXPECT_EQ(delegate.currentProfile(), u"Renamed"_qs);
    EXPECT_EQ(widget<QLabel>(u"currentProfileTextView"_qs).text(), u"Renamed"_qs);
    EXPECT_EQ(delegate.panel01text02.text(), QString());

    fill(u"profileButton06"_qs, u"profilePanel03"_qs, u"panel03text02"_qs, u"Twin"_qs);
    EXPECT_EQ(delegate.currentProfile(), u"Twin"_qs);
    delegate.addFolders({u"/shared"_qs});
    EXPECT_TRUE(foldersOf(u"Renamed"_qs).contains(u"/shared"_qs))
        << "one record until it is saved and read again";

    // The chooser may show another profile than the one in use; that one stays in use.
    delegate.profileCombo01.selectTitle(u"Renamed"_qs);
    fill(u"profileButton07"_qs, u"profilePanel04"_qs, {}, {});
    EXPECT_EQ(names(), (QStringList{first, u"Twin"_qs}));
    EXPECT_EQ(delegate.currentProfile(), u"Twin"_qs);
    fill(u"profileButton07"_qs, u"profilePanel04"_qs, {}, {});
    EXPECT_EQ(delegate.currentProfile(), first);
    EXPECT_EQ(delegate.profileCombo01.selectedTitle(), first);
    delegate.profileButton07Action();
    EXPECT_EQ(names(), QStringList{first});
}

TEST_F(ProfilesTest, NamesThatAreEmptyOrTakenAreRefused)
{
    const plist::Dictionary before = delegate.listPlist().deepCopy();
    refuse(u"profileButton04"_qs, u"profilePanel02"_qs, u"panel02text01"_qs, {}, u"none was typed"_qs);
    refuse(u"profileButton03"_qs, u"profilePanel01"_qs, u"panel01text02"_qs, first, u"already"_qs);
    refuse(u"profileButton06"_qs, u"profilePanel03"_qs, u"panel03text02"_qs, first, u"already"_qs);
    clickAndAnswer(u"profileButton03"_qs, u"profilePanel01"_qs, [&] { click(u"profilePanel01Cancel"_qs); });
    EXPECT_TRUE(delegate.listPlist() == before);
    EXPECT_TRUE(delegate.noRepeatedProfileName(first.toUpper()));
}

TEST_F(ProfilesTest, OptionsAreKeptAtOnce)
{
    const plist::Dictionary record = delegate.currentRecord();
    clickAndAnswer(u"profileButton05"_qs, u"preferencesPanel01"_qs, [&] {
        widget(u"prefSelector01"_qs).setFocus();
        for (const char *method : {"OpenSSL-BF", "OpenSSL-3D"}) {
            QTest::keyClick(&widget(u"prefSelector01"_qs), Qt::Key_Down);
            settle();
            EXPECT_EQ(record.string(u"symencryption"_qs), QLatin1String(method));
        }
        for (const char *on : {"1", "0"}) {
            click(u"prefCheck02"_qs);
            EXPECT_EQ(record.string(u"emptydir"_qs), QLatin1String(on));
            click(u"updatesCheck01"_qs);
            EXPECT_EQ(delegate.setting(u"updates"_qs, u"automatic"_qs), QLatin1String(on));
        }
        click(u"preferencesCloseButton"_qs);
    });
    delegate.prefSelector01.selectIndex(3);
    delegate.prefSelector01Action();
    EXPECT_EQ(record.string(u"symencryption"_qs), u"OpenSSL-3D"_qs) << "there is no fourth method";
}

TEST_F(ProfilesTest, WhatIsNotSavedShowsAndIsAskedFor)
{
    click(u"profileButton01"_qs);
    click(u"settingsSaveButton"_qs);
    ASSERT_TRUE(waitUntil([&] { return !window.isWindowModified(); }));
    EXPECT_EQ(widget<QLabel>(u"unsavedText"_qs).text(), QString());

    click(u"autosaveCheck01"_qs);
    ASSERT_FALSE(delegate.autosaveCheck01.isOn());
    delegate.addFolders({u"/one more"_qs});
    EXPECT_TRUE(waitUntil([&] { return window.isWindowModified(); }));
    EXPECT_EQ(widget<QLabel>(u"unsavedText"_qs).text(), u"Profiles and settings not saved"_qs);

    QSignalSpy closed(&window, &ui::Window::closed);
    window.close();
    ASSERT_TRUE(answer(QMessageBox::Cancel));
    QTest::mouseClick(answer(QMessageBox::Cancel), Qt::LeftButton);
    settle();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(closed.count(), 0);

    window.close();
    QTest::mouseClick(answer(QMessageBox::Save), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return closed.count() == 1; }));
    EXPECT_TRUE(plist::readFile(quillorentLibrary::profilesPath()).dictionary == delegate.listPlist());
}

TEST_F(ProfilesTest, WhatCanNotBeSavedIsTold)
{
    // Nobody may write where a folder stands in the file's place.
    const QString path = quillorentLibrary::profilesPath();
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path + u"/taken"_qs));
    delegate.addFolders({u"/one more"_qs});
    clickAndAnswer(u"profileButton01"_qs, u"warningPanel01"_qs, [&] {
        EXPECT_TRUE(delegate.warningText01.text().contains(path));
        click(u"warningPanel01CloseButton"_qs);
    });
    delegate.autosaveCheck01.setOn(false);
    delegate.autosaveCheck01Action();
    window.close();
    QTest::mouseClick(answer(QMessageBox::Discard), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return !window.isVisible(); }));
}
