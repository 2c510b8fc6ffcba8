#include "TestWindow.h"

#include "Command.h"
#include "SecretService.h"
#include "keychain/Keychain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

/// The window beside a real keychain service.
class KeychainTest : public WindowTest {
protected:
    KeychainTest()
    {
        setKeychain(nullptr);
        session.start();
        showTab(u"passwordsPage"_qs);
        auto &sources = widget<QComboBox>(u"passCombo01"_qs);
        sources.setFocus();
        QTest::keyClick(&sources, Qt::Key_Down);
        settle();
    }

    void type(const QString &field, const QString &text)
    {
        auto &edit = widget<QLineEdit>(field);
        edit.clear();
        QTest::keyClicks(&edit, text);
        settle();
    }
    bool says(const QString &words)
    {
        return waitUntil([&] { return widget<QLabel>(u"keychainText01"_qs).text().contains(words); });
    }

    SecretService session;
};

} // namespace

TEST_F(KeychainTest, StoresAndFetchesAndIsSeenByOthers)
{
    EXPECT_FALSE(widget(u"passButton01"_qs).isEnabled()) << "without an account there is nothing to fetch";
    type(u"keychainUser"_qs, u"holiday"_qs);
    type(u"keychainPass"_qs, u"fjord & 7"_qs);
    click(u"passButton02"_qs);
    EXPECT_TRUE(says(u"was stored"_qs));
    EXPECT_EQ(runCommand({"secret-tool", "lookup", "account", "holiday"}).output, "fjord & 7");

    delegate.setterCurrentProfile(delegate.currentProfile());
    EXPECT_TRUE(says(u"was fetched"_qs));
    EXPECT_EQ(widget<QLineEdit>(u"keychainPass"_qs).text(), u"fjord & 7"_qs);
    EXPECT_TRUE(widget<QLabel>(u"protectionText"_qs).text().endsWith(u"account holiday"));

    // Seen, changed, and then not the text that counts: nobody may overlook that.
    click(u"checkBox02"_qs);
    EXPECT_TRUE(widget(u"keychainClear"_qs).isVisible());
    EXPECT_FALSE(widget(u"keychainConflict"_qs).isVisible());
    type(u"keychainClear"_qs, u"other"_qs);
    EXPECT_TRUE(widget(u"keychainConflict"_qs).isVisible());
    EXPECT_TRUE(widget<QLabel>(u"protectionText"_qs).text().contains(u"look at the Passwords tab"));
}

TEST_F(KeychainTest, SaysWhatTheServiceLacks)
{
    type(u"keychainUser"_qs, u"holiday"_qs);
    session.stop();
    click(u"passButton01"_qs);
    EXPECT_TRUE(says(u"No keychain service runs"_qs));
    session.start(SecretService::Keyring::Locked);
    type(u"keychainPass"_qs, u"kept"_qs);
    click(u"passButton02"_qs);
    EXPECT_TRUE(says(u"is locked"_qs));
    EXPECT_TRUE(widget(u"keychainUnlock01"_qs).isVisible());
    click(u"keychainUnlock01"_qs);
    EXPECT_TRUE(says(u"still locked"_qs));
    EXPECT_EQ(widget<QLineEdit>(u"keychainPass"_qs).text(), u"kept"_qs);

    // While a service is silent, the window is not.
    session.start();
    session.freeze();
    click(u"passButton01"_qs);
    type(u"keychainUser"_qs, u"typed meanwhile"_qs);
    EXPECT_EQ(delegate.keychainUser.text(), u"typed meanwhile"_qs);
    EXPECT_TRUE(delegate.keychainIndicator01.isAnimating());
    session.thaw();
    EXPECT_TRUE(says(u"no password of \"holiday\""_qs));
}
