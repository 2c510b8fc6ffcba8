// The desktop's keychain, in the states that a desktop brings it into, and the items on top of it.

#include "Command.h"
#include "SecretService.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keychain/EMInternetKeychainItem.h"
#include "keychain/SecretServiceKeychain.h"

#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;
using Generic = EMGenericKeychainItem;
using Internet = EMInternetKeychainItem;
using Keyring = SecretService::Keyring;
using Status = KeychainStatus;

namespace {

const QString service = u"com.brolvanek.Quillorent.encrypt"_qs;

class KeychainTest : public testing::Test {
protected:
    KeychainTest()
    {
        session.start();
        setKeychain(std::make_shared<SecretServiceKeychain>());
    }
    ~KeychainTest() override
    {
        setKeychain(nullptr);
        Generic::setLogsErrors(false);
    }

    SecretService session;
};

std::shared_ptr<Generic> add(const QString &account, const QString &password, Status *status = nullptr)
{
    return Generic::addGenericKeychainItemForService(service, account, password, status);
}

/// A null string where there is none.
QString stored(const QString &account, const QString &ofService = service)
{
    const auto item = Generic::genericKeychainItemForService(ofService, account);
    return item ? item->password() : QString();
}

std::string described(const QString &text) { return text.isNull() ? "none" : '"' + text.toStdString() + '"'; }

/// The same characters in another place.
QString equalCopy(const QString &text) { return QString(text.constData(), text.size()); }

QStringList &logged()
{
    static QStringList lines;
    return lines;
}

const GenericPasswordKey alice{"service", "alice"};

Status find() { return keychain()->findGenericPassword(alice).status; }
Status addAlice() { return keychain()->addGenericPassword(alice, Secret("pw")).status; }

void keepLog(QtMsgType, const QMessageLogContext &, const QString &text) { logged().append(text); }

} // namespace

TEST_F(KeychainTest, GivesBackWhatItKeeps)
{
    const QStringList passwords{u"correct horse"_qs, u""_qs, u"pâss wörd ✓ \U0001F511"_qs,
                                u" two\nlines\t"_qs, QString(5000, u'x')};
    for (const QString &password : passwords) {
        const QString account = u"account %1 ü"_qs.arg(passwords.indexOf(password));
        EXPECT_EQ(described(stored(account)), "none");
        const auto added = add(account, password);
        ASSERT_TRUE(added);
        EXPECT_EQ(added->username(), account);
        EXPECT_EQ(added->serviceName(), service);
        EXPECT_TRUE(added->label().isNull());
        EXPECT_TRUE(stored(account) == password && !stored(account).isNull()) << account.toStdString();
        EXPECT_EQ(described(stored(account, u"other"_qs)), "none");
    }
}

TEST_F(KeychainTest, NeverOverwrites)
{
    ASSERT_TRUE(add(u"alice"_qs, u"first"_qs));
    Status status{};
    EXPECT_FALSE(add(u"alice"_qs, u"second"_qs, &status));
    EXPECT_EQ(status, Status::DuplicateItem);
    EXPECT_EQ(described(stored(u"alice"_qs)), "\"first\"");

    const auto addInternet = [&](const QString &path) {
        return Internet::addInternetKeychainItemForServer(u"host"_qs, u"alice"_qs, u"pw"_qs, path, 22,
                                                          fourCharacterCode("ssh "), &status);
    };
    ASSERT_TRUE(addInternet({}));
    EXPECT_FALSE(addInternet(u""_qs)) << "a null path is the empty one";
    EXPECT_EQ(status, Status::DuplicateItem);
    EXPECT_TRUE(addInternet(u"/other"_qs));

    // Nor does a change make two of what can't be told apart.
    const auto bob = add(u"bob"_qs, u"bob's"_qs);
    ASSERT_TRUE(bob);
    bob->setUsername(u"alice"_qs);
    EXPECT_EQ(described(stored(u"bob"_qs)), "\"bob's\"");
}

TEST_F(KeychainTest, FindsInternetPasswordsByAllTheirParts)
{
    const quint32 ftp = keychainProtocol::ftp;
    const quint32 ftpAccount = keychainProtocol::ftpAccount;
    const auto find = [](const QString &server, const QString &path, int port, quint32 protocol) {
        return Internet::internetKeychainItemForServer(server, u"alice"_qs, path, port, protocol);
    };
    for (const auto &[server, path, port, protocol] :
         {std::tuple(u"plain"_qs, QString(), 70000, ftpAccount), std::tuple(u"deep"_qs, u"/a b"_qs, 21, ftp),
          std::tuple(u"odd"_qs, u""_qs, 65536, quint32{1})})
        ASSERT_TRUE(Internet::addInternetKeychainItemForServer(server, u"alice"_qs, server + u"'s"_qs, path,
                                                               port, protocol));

    struct Case {
        QString server;
        QString path;
        int port;
        quint32 protocol;
        quint32 foundProtocol; ///< 0: not found
    };
    for (const Case &c : {
             Case{u"plain"_qs, {}, 70000, ftpAccount, ftpAccount},
             Case{u"plain"_qs, u""_qs, 70000 & 0xFFFF, ftp, ftpAccount},
             Case{u"plain"_qs, {}, 21, ftp, 0},
             Case{u"plain"_qs, u"/"_qs, 70000, ftp, 0},
             Case{u"deep"_qs, u"/a b"_qs, 21, ftp, ftp},
             Case{u"deep"_qs, u"/a b"_qs, 21 + 65536, ftp, ftp},
             Case{u"deep"_qs, {}, 21, ftp, 0},
             Case{u"deep"_qs, u"/a b"_qs, 21, ftpAccount, 0},
             Case{u"odd"_qs, {}, 0, 1, 1},
         }) {
        SCOPED_TRACE(testing::Message() << c.server.toStdString() << ' ' << c.port << ' ' << c.protocol);
        const auto item = find(c.server, c.path, c.port, c.protocol);
        ASSERT_EQ(item != nullptr, c.foundProtocol != 0);
        if (!item) continue;
        EXPECT_EQ(item->protocol(), c.foundProtocol);
        EXPECT_EQ(item->port(), c.port);
        EXPECT_EQ(item->path().isNull(), c.path.isNull());
        EXPECT_EQ(described(item->password()), described(c.server + u"'s"_qs));
    }
}

TEST_F(KeychainTest, WritesEachPropertyAtOnce)
{
    const auto item = add(u"alice"_qs, u"old"_qs);
    ASSERT_TRUE(item);
    item->setUsername(u"bob"_qs);
    item->setServiceName(u"elsewhere"_qs);
    item->setLabel(u"a label"_qs);
    item->setPassword(u"new"_qs);
    EXPECT_EQ(described(stored(u"bob"_qs, u"elsewhere"_qs)), "\"new\"");
    EXPECT_EQ(described(stored(u"alice"_qs)), "none");
    item->setPassword({});
    EXPECT_EQ(described(stored(u"bob"_qs, u"elsewhere"_qs)), "\"new\"");
    EXPECT_TRUE(item->password().isNull());

    const auto remote = Internet::addInternetKeychainItemForServer(u"host"_qs, u"alice"_qs, u"pw"_qs, {}, 21,
                                                                   keychainProtocol::ftp);
    ASSERT_TRUE(remote);
    remote->setServer(u"server"_qs);
    remote->setUsername(u"bob"_qs);
    remote->setPath(u"/path"_qs);
    remote->setPort(2121);
    remote->setProtocol(fourCharacterCode("ftps"));
    EXPECT_TRUE(Internet::internetKeychainItemForServer(u"server"_qs, u"bob"_qs, u"/path"_qs, 2121,
                                                        fourCharacterCode("ftps")));
}

TEST_F(KeychainTest, LeavesTheKeychainAloneForTheSameObject)
{
    const auto item = add(equalCopy(u"alice"_qs), u"pw"_qs);
    const auto other = Generic::genericKeychainItemForService(service, u"alice"_qs);
    ASSERT_TRUE(item && other);
    other->setUsername(u"bob"_qs);
    item->setUsername(item->username());
    EXPECT_EQ(described(stored(u"alice"_qs)), "none") << "the same object was written";
    item->setUsername(equalCopy(item->username()));
    EXPECT_EQ(described(stored(u"alice"_qs)), "\"pw\"") << "an equal object was not written";
}

TEST_F(KeychainTest, RemovesAnItemOnce)
{
    const auto item = add(u"alice"_qs, u"pw"_qs);
    ASSERT_TRUE(item);
    item->removeFromKeychain();
    EXPECT_EQ(described(stored(u"alice"_qs)), "none");

    const auto failure = [](const std::function<void()> &action) -> std::string {
        try {
            action();
        } catch (const KeychainAssertionFailure &caught) {
            return std::string(caught.sourceFile) + ": " + caught.what();
        }
        return "none";
    };
    EXPECT_EQ(
        failure([&] { item->removeFromKeychain(); }),
        "EMKeychainItem: Core keychain item is nil. You cannot remove a keychain item that is not in the "
        "keychain already.");
    EXPECT_EQ(
        failure([&] { item->setUsername(u"bob"_qs); }),
        "EMKeychainItem: Core keychain item is nil. You cannot modify a keychain item that is not in the "
        "keychain.");
    EXPECT_EQ(item->username(), u"bob"_qs);
    EXPECT_EQ(failure([&] { item->setUsername(equalCopy(u"carol"_qs)); }).substr(0, 14), "EMKeychainItem")
        << "the failure before left the item locked";
    EXPECT_EQ(failure([&] { item->setPassword(u"new"_qs); }), "none");
    EXPECT_EQ(item->password(), u"new"_qs);
}

TEST_F(KeychainTest, SaysWhyALookUpFailed)
{
    Generic::setLogsErrors(true);
    logged().clear();
    const QtMessageHandler before = qInstallMessageHandler(keepLog);
    Status status{};
    const auto find = [&](const QString &account) {
        EXPECT_FALSE(Generic::genericKeychainItemForService(service, account, &status));
        return status;
    };
    EXPECT_EQ(find({}), Status::InvalidValue);
    EXPECT_FALSE(add(u"alice"_qs, {}, &status));
    EXPECT_FALSE(Internet::internetKeychainItemForServer({}, u"alice"_qs, {}, 0, 0));
    EXPECT_TRUE(logged().isEmpty()) << "an argument that is missing is no error";

    EXPECT_EQ(find(u"alice"_qs), Status::ItemNotFound);
    EXPECT_EQ(find(u"nul\0l"_qs), Status::InvalidValue);
    EXPECT_FALSE(add(u"nul\0l"_qs, u"sesame"_qs, &status));
    EXPECT_EQ(status, Status::InvalidValue);
    qInstallMessageHandler(before);
    ASSERT_EQ(logged().size(), 3);
    EXPECT_EQ(logged().first(), u"Error (genericKeychainItemForService:withUsername:) - %1"_qs.arg(
                                    keychain()->statusText(Status::ItemNotFound)));
    EXPECT_FALSE(logged().join(u' ').contains(u"sesame"));
}

TEST_F(KeychainTest, RefusesWhatNoItemHas)
{
    const auto added = keychain()->addGenericPassword({"service", "account"}, Secret("pw"));
    ASSERT_EQ(added.status, Status::Success);
    const auto modify = [&](const KeychainItemHandle &item, KeychainTag tag, const QByteArray &value) {
        return keychain()->modifyAttributesAndData(item, {{tag, value}}, std::nullopt);
    };
    EXPECT_EQ(modify(added.item, KeychainTag::Server, "host"), Status::NoSuchAttribute);
    EXPECT_EQ(modify(added.item, KeychainTag::Port, "22"), Status::InvalidValue);
    EXPECT_EQ(modify(added.item, KeychainTag::Account, "\xff"), Status::InvalidValue);
    EXPECT_EQ(modify(nullptr, KeychainTag::Account, "bob"), Status::InvalidItem);
    EXPECT_EQ(keychain()->deleteItem(nullptr), Status::InvalidItem);
    EXPECT_EQ(keychain()->deleteItem(added.item), Status::Success);
    EXPECT_EQ(keychain()->deleteItem(added.item), Status::ItemNotFound);
    EXPECT_EQ(modify(added.item, KeychainTag::Account, "bob"), Status::ItemNotFound);
}

TEST_F(KeychainTest, ChangesNothingWhileItIsLocked)
{
    const auto item = add(u"alice"_qs, u"pw"_qs);
    ASSERT_TRUE(item);
    ASSERT_EQ(Generic::lockKeychain(), Status::Success);
    Status status{};
    EXPECT_FALSE(Generic::genericKeychainItemForService(service, u"alice"_qs, &status));
    EXPECT_EQ(status, Status::Locked);
    EXPECT_FALSE(add(u"bob"_qs, u"pw"_qs, &status));
    EXPECT_EQ(status, Status::Locked);
    item->setUsername(u"carol"_qs);
    item->removeFromKeychain();
    EXPECT_EQ(item->username(), u"carol"_qs);
    EXPECT_NO_THROW(item->setUsername(u"dave"_qs)) << "a refused removal must keep the item";
}

TEST_F(KeychainTest, IsUsedByTwoThreadsAtOnce)
{
    std::atomic<int> added = 0;
    const auto work = [&](const QString &own) {
        for (int round = 0; round < 5; ++round) {
            if (add(u"shared %1"_qs.arg(round), own)) ++added;
            const auto item = add(own + QString::number(round), own);
            ASSERT_TRUE(item);
            item->setPassword(own + u'!');
            EXPECT_EQ(stored(own + QString::number(round)), own + u'!');
        }
    };
    std::thread one(work, u"one"_qs);
    std::thread two(work, u"two"_qs);
    one.join();
    two.join();
    EXPECT_EQ(added, 5) << "each shared name is one thread's alone";
}

TEST_F(KeychainTest, SaysInWhichStateTheServiceIs)
{
    struct Case {
        std::string name;
        std::function<void()> enter;
        Status find;
        Status add;
        Status unlock;
    };
    const std::string bus = session.environment().at("DBUS_SESSION_BUS_ADDRESS");
    for (const Case &c : {
             Case{"no service", [&] { session.stop(); }, Status::NoService, Status::NoService,
                  Status::NoService},
             Case{"no keyring", [&] { session.start(Keyring::None); }, Status::NoDefaultKeychain,
                  Status::NoDefaultKeychain, Status::NoDefaultKeychain},
             Case{"unlocked", [&] { session.start(); }, Status::ItemNotFound, Status::Success,
                  Status::Success},
             Case{"locked", [&] { session.start(Keyring::Locked); }, Status::Locked, Status::Locked,
                  Status::UnlockDeclined},
             Case{"unlocked again", [&] { session.start(); }, Status::Success, Status::DuplicateItem,
                  Status::Success},
             Case{"ended", [&] { session.stop(); }, Status::NoService, Status::NoService, Status::NoService},
             Case{"no bus", [] { setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus", 1); },
                  Status::NoService, Status::NoService, Status::NoService},
         }) {
        SCOPED_TRACE(c.name);
        c.enter();
        EXPECT_EQ(find(), c.find);
        EXPECT_EQ(addAlice(), c.add);
        EXPECT_EQ(keychain()->unlock(), c.unlock);
    }
    setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), 1);
}

TEST_F(KeychainTest, KnowsItsItemsAfterARestart)
{
    const auto item = Generic::addGenericKeychainItemForService(u"service"_qs, u"alice"_qs, u"pw"_qs);
    ASSERT_TRUE(item);
    session.start();
    item->setPassword(u"new"_qs);
    const auto found = Generic::genericKeychainItemForService(u"service"_qs, u"alice"_qs);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->password(), u"new"_qs);
    item->removeFromKeychain();
    EXPECT_EQ(find(), Status::ItemNotFound);
}

TEST_F(KeychainTest, DoesNotWaitForAServiceThatIsSilent)
{
    setKeychain(std::make_shared<SecretServiceKeychain>(300ms));
    const auto item = keychain()->addGenericPassword({"service", "bob"}, Secret("pw")).item;
    session.freeze();
    EXPECT_EQ(find(), Status::NotAnswering);
    EXPECT_EQ(addAlice(), Status::NotAnswering);
    EXPECT_EQ(keychain()->modifyAttributesAndData(item, {}, Secret("new")), Status::NotAnswering);
    EXPECT_EQ(keychain()->deleteItem(item), Status::NotAnswering);
    EXPECT_EQ(keychain()->lock(), Status::NotAnswering);
    EXPECT_EQ(keychain()->unlock(), Status::NotAnswering);
    session.thaw();

    setKeychain(std::make_shared<SecretServiceKeychain>());
    EXPECT_EQ(find(), Status::ItemNotFound) << "what was given up has been stored all the same";
    EXPECT_EQ(keychain()->findGenericPassword({"service", "bob"}).password.text(), u"pw"_qs);
}

TEST_F(KeychainTest, IsLeftWhenTheProgramQuits)
{
    setKeychain(std::make_shared<SecretServiceKeychain>(10min));
    session.freeze();
    std::atomic<bool> hasEnded = false;
    Status status{};
    std::thread waiting([&] {
        status = find();
        hasEnded = true;
    });
    while (!hasEnded) {
        keychain()->giveUp();
        std::this_thread::sleep_for(10ms);
    }
    waiting.join();
    EXPECT_EQ(status, Status::Cancelled);
    session.thaw();
}

TEST_F(KeychainTest, SharesItsPasswordsWithOtherPrograms)
{
    const auto remote = EMInternetKeychainItem::addInternetKeychainItemForServer(
        u"example.org"_qs, u"alice"_qs, u"sésame"_qs, u"/files"_qs, 2121, keychainProtocol::ftp);
    ASSERT_TRUE(remote);
    const CommandResult shown = runCommand({"secret-tool", "search", "--all", "server", "example.org"});
    const std::string all = shown.output + shown.errors;
    for (const char *line : {"label = Quillorent password of alice at example.org\n", "secret = sésame\n",
                             "attribute.account = alice\n", "attribute.path = /files\n",
                             "attribute.port = 2121\n", "attribute.protocol = ftp\n"})
        EXPECT_NE(all.find(line), std::string::npos) << line << "is not in\n" << all;
    remote->setLabel(u"Our files"_qs);
    EXPECT_NE(
        runCommand({"secret-tool", "search", "server", "example.org"}).output.find("label = Our files\n"),
        std::string::npos);

    const auto store = [](const std::string &account, const std::string &password) {
        const std::vector<std::string> command{"secret-tool", "store",   "--label=mine", "service",
                                               "service",     "account", account};
        return runCommand(command, {.input = password}).status;
    };
    ASSERT_EQ(store("bob", "pw"), 0);
    ASSERT_EQ(store("carol", "\xff\xfe"), 0);
    const auto bob = Generic::genericKeychainItemForService(u"service"_qs, u"bob"_qs);
    const auto carol = Generic::genericKeychainItemForService(u"service"_qs, u"carol"_qs);
    ASSERT_TRUE(bob && carol);
    EXPECT_EQ(bob->password(), u"pw"_qs);
    EXPECT_TRUE(carol->password().isNull()) << "bytes that are no text were taken for a password";
}
