#include "InMemoryKeychain.h"
#include "TestProgram.h"
#include "keychain/EMGenericKeychainItem.h"
#include "tools/Threads.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

const QString service = u"com.brolvanek.Quillorent.encrypt"_qs;

class PasswordActions : public testing::Test {
protected:
    PasswordActions()
    {
        m_program.start();
        setKeychain(m_keychain);
    }
    ~PasswordActions() override { setKeychain(nullptr); }

    /// Lets what was asked of the keychain come to its end.
    void settle() { ASSERT_TRUE(waitForThreads(60s)); }
    static QString stored(const QString &account)
    {
        const auto item = EMGenericKeychainItem::genericKeychainItemForService(service, account);
        return item ? item->password() : QString();
    }
    QString kept(const QString &key) const
    {
        return delegate.currentRecord().string(key).value_or(QString());
    }
    bool offersUnlocking() const { return !delegate.keychainUnlock01.isHidden(); }

    TestProgram m_program;
    QuillorentAppDelegate &delegate = m_program.delegate();
    std::shared_ptr<InMemoryKeychain> m_keychain = std::make_shared<InMemoryKeychain>();
};

} // namespace

// Which of the keychain's fields counts follows the typed password's switch, storing and fetching their own.
TEST_F(PasswordActions, EachSourceHasItsText)
{
    delegate.secureText01a.setText(u"typed, masked"_qs);
    delegate.secureText01b.setText(u"typed, clear"_qs);
    delegate.keychainPass.setText(u"keychain, masked"_qs);
    delegate.keychainClear.setText(u"keychain, clear"_qs);
    struct Case {
        int source;
        bool isMasked;
        QString password;
    };
    for (const auto &[source, isMasked, password] :
         {Case{-1, true, u"typed, masked"_qs}, Case{0, true, u"typed, masked"_qs},
          Case{0, false, u"typed, clear"_qs}, Case{1, true, u"keychain, masked"_qs},
          Case{1, false, u"keychain, clear"_qs}, Case{2, true, QString()}, Case{3, true, QString()}}) {
        delegate.passCombo01.selectIndex(source);
        delegate.checkBox01.setOn(isMasked);
        delegate.checkBox02.setOn(!isMasked);
        EXPECT_EQ(delegate.passwordSelector(), password) << source << isMasked;
        EXPECT_EQ(delegate.pkeySelector(), source != 2) << source;
    }
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.passCombo01Action();
    EXPECT_EQ(delegate.currentRecord().integer(u"passtype"_qs), 2);
    EXPECT_EQ(delegate.passTabs.selectedIndex(), 2);
    EXPECT_FALSE(delegate.pkView.isHidden());
    delegate.certFile01.setText(u"/keys/anna.pem"_qs);
    EXPECT_TRUE(delegate.pkeySelector());
    EXPECT_EQ(delegate.passwordSelector(), u"/keys/anna.pem"_qs);
}

TEST_F(PasswordActions, StoresAndFetchesByTheShownField)
{
    delegate.keychainUser.setText(u"holiday"_qs);
    delegate.keychainPass.setText(u"fjord ¤ 7"_qs);
    delegate.passButton02Action();
    settle();
    EXPECT_EQ(stored(u"holiday"_qs), u"fjord ¤ 7"_qs);
    EXPECT_EQ(kept(u"lastkeychainuser"_qs), u"holiday"_qs);
    EXPECT_TRUE(delegate.keychainText01.text().contains(u"was stored"));

    delegate.checkBox02.setOn(false);
    delegate.checkBox02Action();
    EXPECT_TRUE(delegate.keychainPass.isHidden());
    EXPECT_EQ(delegate.keychainClear.text(), u"fjord ¤ 7"_qs);
    delegate.keychainClear.setText(u"another one"_qs);
    delegate.passButton02Action();
    settle();
    EXPECT_EQ(stored(u"holiday"_qs), u"fjord ¤ 7"_qs) << "an add must never replace";
    EXPECT_TRUE(delegate.keychainText01.text().contains(u"already"));

    delegate.passButton01Action();
    settle();
    EXPECT_EQ(delegate.keychainClear.text(), u"fjord ¤ 7"_qs);

    delegate.keychainUser.setText(u"nobody"_qs);
    delegate.passButton01Action();
    settle();
    EXPECT_EQ(delegate.keychainClear.text(), QString());
    EXPECT_TRUE(delegate.keychainText01.text().contains(u"no password of \"nobody\""));
    EXPECT_EQ(kept(u"lastkeychainuser"_qs), u"nobody"_qs);
}

TEST_F(PasswordActions, OpeningAProfileFetchesItsPassword)
{
    EMGenericKeychainItem::addGenericKeychainItemForService(service, u"holiday"_qs, u"fjord"_qs);
    const QString first = delegate.currentProfile();
    plist::Dictionary record = delegate.currentRecord().deepCopy();
    record.setValue(u"passtype"_qs, PasswordTab::KeychainPassword);
    record.setValue(u"lastkeychainuser"_qs, u"holiday"_qs);
    delegate.listPlist().setValue(u"Second"_qs, record);

    delegate.setterCurrentProfile(u"Second"_qs);
    settle();
    EXPECT_EQ(delegate.passwordSelector(), u"fjord"_qs);
    EXPECT_TRUE(delegate.pkView.isHidden());

    // What was asked for the profile before must not come out in the next.
    delegate.setterCurrentProfile(u"Second"_qs);
    delegate.setterCurrentProfile(first);
    settle();
    EXPECT_EQ(delegate.keychainPass.text(), QString());
    EXPECT_EQ(delegate.keychainText01.text(), QString());
}

TEST_F(PasswordActions, SaysWhatIsTheMatterWithTheKeychain)
{
    EMGenericKeychainItem::addGenericKeychainItemForService(service, u"holiday"_qs, u"fjord"_qs);
    delegate.keychainUser.setText(u"holiday"_qs);
    for (const KeychainStatus status :
         {KeychainStatus::NoService, KeychainStatus::NotAnswering, KeychainStatus::Refused}) {
        m_keychain->failure = status;
        delegate.passButton01Action();
        settle();
        EXPECT_EQ(delegate.keychainText01.text(), m_keychain->statusText(status));
        EXPECT_FALSE(offersUnlocking());
    }
    m_keychain->failure = KeychainStatus::Success;

    EMKeychainItem::lockKeychain();
    delegate.passButton01Action();
    settle();
    EXPECT_TRUE(offersUnlocking());
    m_keychain->unlocking = KeychainStatus::UnlockDeclined;
    delegate.keychainUnlock01Action();
    settle();
    EXPECT_TRUE(offersUnlocking());
    m_keychain->unlocking = KeychainStatus::Success;
    delegate.keychainUnlock01Action();
    settle();
    EXPECT_FALSE(offersUnlocking());
    EXPECT_EQ(delegate.keychainPass.text(), u"fjord"_qs);

    EMKeychainItem::lockKeychain();
    delegate.keychainPass.setText(u"typed to be stored"_qs);
    delegate.passButton02Action();
    settle();
    delegate.keychainUnlock01Action();
    settle();
    EXPECT_EQ(delegate.keychainPass.text(), u"typed to be stored"_qs);
}
