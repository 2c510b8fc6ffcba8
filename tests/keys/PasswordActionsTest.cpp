#include "ProgramTest.h"
#include "SecretService.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keychain/Keychain.h"
#include "keys/Strength.h"

namespace {

const QString service = u"com.brolvanek.Quillorent.encrypt"_s;

/// The program beside a keychain.
class PasswordActions : public ProgramTest {
protected:
    PasswordActions() { session.start(); }

    /// Does something that asks the keychain, and gives what the tab says of it.
    QString answerTo(const std::function<void(QuillorentAppDelegate &)> &action)
    {
        action(delegate);
        EXPECT_TRUE(waitForThreads(60s));
        return delegate.keychainText01.text();
    }
    static void store(const QString &account, const QString &password)
    {
        ASSERT_TRUE(EMGenericKeychainItem::addGenericKeychainItemForService(service, account, password));
    }

    static constexpr auto fetching = &QuillorentAppDelegate::passButton01Action;
    static constexpr auto storing = &QuillorentAppDelegate::passButton02Action;
    static constexpr auto unlocking = &QuillorentAppDelegate::keychainUnlock01Action;
    SecretService session;
};

} // namespace

// Which of the keychain's fields counts follows the typed password's switch, storing and fetching their own.
TEST_F(PasswordActions, EachSourceHasItsText)
{
    delegate.secureText01a.setText(u"typed, masked"_s);
    delegate.secureText01b.setText(u"typed, clear"_s);
    delegate.keychainPass.setText(u"keychain, masked"_s);
    delegate.keychainClear.setText(u"keychain, clear"_s);
    using Case = std::tuple<int, bool, QString>;
    for (const auto &[source, isMasked, password] :
         {Case{-1, true, u"typed, masked"_s}, Case{0, true, u"typed, masked"_s},
          Case{0, false, u"typed, clear"_s}, Case{1, true, u"keychain, masked"_s},
          Case{1, false, u"keychain, clear"_s}, Case{2, true, QString()}, Case{3, true, QString()}}) {
        delegate.passCombo01.selectIndex(source);
        delegate.checkBox01.setOn(isMasked);
        delegate.checkBox02.setOn(!isMasked);
        EXPECT_EQ(delegate.passwordSelector(), password) << source << isMasked;
        EXPECT_EQ(delegate.pkeySelector(), source != 2) << source;
    }
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.certFile01.setText(u"/keys/anna.pem"_s);
    EXPECT_EQ(delegate.passwordSelector(), u"/keys/anna.pem"_s);
}

TEST_F(PasswordActions, StoresAndFetchesByTheShownField)
{
    delegate.keychainUser.setText(u"holiday"_s);
    delegate.keychainPass.setText(u"fjord ¤ 7"_s);
    answerTo(storing);
    EXPECT_EQ(kept(u"lastkeychainuser"_s), u"holiday"_s);
    delegate.checkBox02.setOn(false);
    delegate.checkBox02Action();
    EXPECT_TRUE(delegate.keychainPass.isHidden() && !delegate.keychainClear.isHidden());
    EXPECT_EQ(delegate.keychainOrigin.text(), u"holiday"_s);
    EXPECT_EQ(delegate.keychainClear.text(), u"fjord ¤ 7"_s);
    delegate.keychainClear.setText(u"another one"_s);
    EXPECT_TRUE(answerTo(storing).contains(u"already"));
    answerTo(fetching);
    EXPECT_EQ(delegate.keychainClear.text(), u"fjord ¤ 7"_s) << "an add must never replace";

    delegate.keychainUser.setText(u"nobody"_s);
    EXPECT_TRUE(answerTo(fetching).contains(u"no password of \"nobody\""));
    EXPECT_EQ(delegate.keychainClear.text(), QString());
    EXPECT_EQ(kept(u"lastkeychainuser"_s), u"nobody"_s);
}

TEST_F(PasswordActions, OpeningAProfileFetchesItsPassword)
{
    store(u"holiday"_s, u"fjord"_s);
    const QString first = delegate.currentProfile();
    const plist::Dictionary record = delegate.currentRecord().deepCopy();
    record.setValue(u"passtype"_s, PasswordTab::KeychainPassword);
    record.setValue(u"lastkeychainuser"_s, u"holiday"_s);
    delegate.listPlist().setValue(u"Second"_s, record);
    delegate.setterCurrentProfile(u"Second"_s);
    EXPECT_TRUE(delegate.keychainIndicator01.isAnimating());
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_FALSE(delegate.keychainIndicator01.isAnimating());
    EXPECT_EQ(delegate.passwordSelector(), u"fjord"_s);

    // What was asked for the profile before must not come out in the next.
    session.freeze();
    delegate.setterCurrentProfile(u"Second"_s);
    delegate.setterCurrentProfile(first);
    session.thaw();
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_EQ(delegate.keychainPass.text(), QString());
    EXPECT_EQ(delegate.keychainText01.text(), QString());
}

TEST_F(PasswordActions, SaysWhatIsTheMatterWithTheKeychain)
{
    using Keyring = SecretService::Keyring;
    store(u"holiday"_s, u"fjord"_s);
    delegate.keychainUser.setText(u"holiday"_s);
    for (const auto &[action, typed, unlocked, password] :
         {std::tuple(fetching, u""_s, u"was fetched"_s, u"fjord"_s),
          {fetching, u"typed"_s, u"is unlocked"_s, u"typed"_s},
          {storing, u"typed"_s, u"is unlocked"_s, u"typed"_s}}) {
        session.start(Keyring::Locked);
        delegate.keychainPass.setText(typed);
        delegate.keychainFieldEdited();
        EXPECT_TRUE(answerTo(action).contains(u"is locked"));
        EXPECT_TRUE(answerTo(unlocking).contains(u"still locked")); // nobody is there to be asked
        EXPECT_FALSE(delegate.keychainUnlock01.isHidden());
        session.start(Keyring::Unlocked);
        EXPECT_TRUE(answerTo(unlocking).contains(unlocked));
        EXPECT_TRUE(delegate.keychainUnlock01.isHidden());
        EXPECT_EQ(delegate.keychainPass.text(), password);
    }
    session.stop();
    EXPECT_TRUE(answerTo(fetching).contains(u"No keychain service runs"));
    EXPECT_EQ(delegate.keychainPass.text(), u"typed"_s);
}

// What is of no use neither takes the place of what is there, nor is it called fetched or stored.
TEST_F(PasswordActions, RefusesWhatNoArchiveCanBeEncryptedWith)
{
    for (const auto &[secret, words, isShown, isStored] :
         {std::tuple{QByteArray("fjord"), u"was fetched"_s, true, true},
          {"", u"No password is given"_s, true, true},
          {QByteArray("a\0b", 3), u"zero byte"_s, false, false},
          {"a\nb", u"line break"_s, false, false},
          {QByteArray(1024, 'x'), u"1023"_s, false, false},
          {"\xff", u"no text"_s, false, true}}) {
        SCOPED_TRACE(words.toStdString());
        const QString account = u"account of "_s + words;
        ASSERT_EQ(keychain()->addGenericPassword({service.toUtf8(), account.toUtf8()}, Secret(secret)).status,
                  KeychainStatus::Success);
        delegate.keychainPass.setText(u"former"_s);
        delegate.keychainOrigin.setText(u"other"_s);
        delegate.keychainUser.setText(account);
        const QString answer = answerTo(fetching);
        EXPECT_TRUE(answer.contains(words)) << qPrintable(answer);
        EXPECT_EQ(delegate.keychainPass.text(), isShown ? QString::fromUtf8(secret) : u"former"_s);
        EXPECT_EQ(delegate.keychainOrigin.text(), !isShown ? u"other"_s : secret.isEmpty() ? u""_s : account);

        delegate.keychainUser.setText(account + u'2');
        delegate.keychainPass.setText(QString::fromUtf8(secret));
        EXPECT_EQ(answerTo(storing).contains(u"The password was stored"), isStored);
    }
}

TEST(Strength, TellsWhatIsGuessedFromWhatIsNot)
{
    for (const auto &[password, strength] : {std::pair{QString(), Strength::None},
                                             {u"Passw0rd!"_s, Strength::Weak},
                                             {QString(100'000, u'x') + u"w7#Kq9!vZp2$Lm"_s, Strength::Weak},
                                             {u"rain otter violin"_s, Strength::Fair},
                                             {u"žluťoučký kůň úpěl"_s, Strength::Strong}})
        EXPECT_EQ(estimateStrength(password), strength) << qPrintable(password.left(30));
}
