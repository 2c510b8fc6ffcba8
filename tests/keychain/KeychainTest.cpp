// The desktop's keychain, in the states that a desktop brings it into, and the items on top of it.

#include "SecretService.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keychain/EMInternetKeychainItem.h"
#include "keychain/SecretServiceKeychain.h"

#include <future>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;
using Generic = EMGenericKeychainItem;
using Internet = EMInternetKeychainItem;
using Keyring = SecretService::Keyring;
using Status = KeychainStatus;

namespace {

const QString service = u"com.brolvanek.Quillorent.encrypt"_s;

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

/// "none" where there is none.
QString stored(const QString &account, const QString &ofService = service, Status *status = nullptr)
{
    const auto item = Generic::genericKeychainItemForService(ofService, account, status);
    return !item || item->password().isNull() ? u"none"_s : u"it is "_s + item->password();
}

Status statusOf(const QString &account)
{
    Status status{};
    stored(account, service, &status);
    return status;
}

Status statusOfAdding(const QString &account, const QString &password = u"pw"_s)
{
    Status status{};
    add(account, password, &status);
    return status;
}

std::shared_ptr<Internet> addInternet(const QString &server, const QString &path, int port, quint32 protocol)
{
    return Internet::addInternetKeychainItemForServer(server, u"alice"_s, u"of "_s + server, path, port,
                                                      protocol);
}

std::shared_ptr<Internet> findInternet(const QString &server, const QString &path, int port, quint32 protocol)
{
    return Internet::internetKeychainItemForServer(server, u"alice"_s, path, port, protocol);
}

/// The same characters in another place.
QString equalCopy(const QString &text) { return QString(text.constData(), text.size()); }

std::string failureOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const KeychainAssertionFailure &caught) {
        return std::string(caught.sourceFile) + ": " + caught.what();
    }
    return "none";
}

QStringList &logged()
{
    static QStringList lines;
    return lines;
}

void keepLog(QtMsgType, const QMessageLogContext &, const QString &text) { logged().append(text); }

} // namespace

TEST_F(KeychainTest, GivesBackWhatItKeepsAndOverwritesNothing)
{
    for (const QString &password :
         {u"correct horse"_s, u""_s, u"pâss wörd ✓ \U0001F511"_s, u" two\nlines\t"_s, QString(5000, u'x')}) {
        const QString account = u"account %1 ü"_s.arg(password.size());
        EXPECT_EQ(stored(account), u"none"_s);
        const auto added = add(account, password);
        ASSERT_TRUE(added);
        EXPECT_EQ(added->username() + added->serviceName(), account + service);
        EXPECT_TRUE(added->label().isNull());
        EXPECT_EQ(statusOfAdding(account, u"another"_s), Status::DuplicateItem);
        EXPECT_EQ(stored(account), u"it is "_s + password);
        EXPECT_EQ(stored(account, u"other"_s), u"none"_s);
    }
    // Nor does a change make two of what can't be told apart.
    const auto bob = add(u"bob"_s, u"bob's"_s);
    ASSERT_TRUE(add(u"alice"_s, u"pw"_s) && bob);
    bob->setUsername(u"alice"_s);
    EXPECT_EQ(stored(u"bob"_s), u"it is bob's"_s);
}

TEST_F(KeychainTest, FindsInternetPasswordsByAllTheirParts)
{
    const quint32 ftp = keychainProtocol::ftp;
    const quint32 ftpAccount = keychainProtocol::ftpAccount;
    const auto item = addInternet(u"host"_s, {}, 70000, ftpAccount);
    ASSERT_TRUE(item && addInternet(u"deep"_s, u"/a b"_s, 21, ftp));
    EXPECT_FALSE(addInternet(u"host"_s, u""_s, 70000, ftpAccount)) << "a null path is the empty one";
    const quint32 none = 0; // is found
    for (const auto &[server, path, port, protocol, foundProtocol] : {
             std::tuple{u"host"_s, QString(), 70000, ftpAccount, ftpAccount},
             {u"host"_s, u""_s, 70000 & 0xFFFF, ftp, ftpAccount},
             {u"host"_s, {}, 21, ftp, none},
             {u"host"_s, u"/"_s, 70000, ftp, none},
             {u"deep"_s, u"/a b"_s, 21 + 65536, ftp, ftp},
             {u"deep"_s, {}, 21, ftp, none},
             {u"deep"_s, u"/a b"_s, 21, ftpAccount, none},
         }) {
        SCOPED_TRACE(testing::Message() << server.toStdString() << ' ' << port << ' ' << protocol);
        const auto found = findInternet(server, path, port, protocol);
        ASSERT_EQ(found != nullptr, foundProtocol != none);
        if (!found) continue;
        EXPECT_EQ(found->protocol(), foundProtocol);
        EXPECT_EQ(found->port(), port);
        EXPECT_EQ(found->path().isNull(), path.isNull());
        EXPECT_EQ(found->password(), u"of "_s + server);
    }
    item->setServer(u"server"_s);
    item->setPath(u"/path"_s);
    item->setPort(2121);
    item->setProtocol(fourCharacterCode("ftps"));
    EXPECT_TRUE(findInternet(u"server"_s, u"/path"_s, 2121, fourCharacterCode("ftps")));
}

TEST_F(KeychainTest, WritesEachPropertyAtOnce)
{
    const auto item = add(u"alice"_s, u"old"_s);
    ASSERT_TRUE(item);
    session.start(); // it knows its items by their attributes
    item->setUsername(u"bob"_s);
    item->setServiceName(u"elsewhere"_s);
    item->setPassword(u"new"_s);
    EXPECT_EQ(stored(u"bob"_s, u"elsewhere"_s), u"it is new"_s);
    EXPECT_EQ(stored(u"alice"_s), u"none"_s);
    item->setPassword({});
    EXPECT_EQ(stored(u"bob"_s, u"elsewhere"_s), u"it is new"_s);
    EXPECT_TRUE(item->password().isNull());

    // The same object says that nothing changed; an equal one is written.
    const auto one = add(equalCopy(u"carol"_s), u"pw"_s);
    const auto other = Generic::genericKeychainItemForService(service, u"carol"_s);
    ASSERT_TRUE(one && other);
    other->setUsername(u"dave"_s);
    one->setUsername(one->username());
    EXPECT_EQ(stored(u"carol"_s), u"none"_s);
    one->setUsername(equalCopy(one->username()));
    EXPECT_EQ(stored(u"carol"_s), u"it is pw"_s);
}

TEST_F(KeychainTest, RemovesAnItemOnceAndNoneWhileItIsLocked)
{
    const auto item = add(u"alice"_s, u"pw"_s);
    ASSERT_TRUE(item);
    ASSERT_EQ(Generic::lockKeychain(), Status::Success);
    item->setUsername(u"carol"_s);
    item->removeFromKeychain();
    EXPECT_EQ(item->username(), u"carol"_s);
    EXPECT_EQ(failureOf([&] { item->setUsername(u"alice"_s); }), "none") << "the item is not gone";
    session.start();
    EXPECT_EQ(stored(u"alice"_s), u"it is pw"_s);

    item->removeFromKeychain();
    EXPECT_EQ(statusOf(u"alice"_s), Status::ItemNotFound);
    EXPECT_EQ(
        failureOf([&] { item->removeFromKeychain(); }),
        "EMKeychainItem: Core keychain item is nil. You cannot remove a keychain item that is not in the "
        "keychain already.");
    for (const QString &name : {u"bob"_s, u"carol"_s}) // twice: the failure must not leave it locked
        EXPECT_EQ(
            failureOf([&] { item->setUsername(name); }),
            "EMKeychainItem: Core keychain item is nil. You cannot modify a keychain item that is not in "
            "the keychain.");
    EXPECT_EQ(failureOf([&] { item->setPassword(u"new"_s); }), "none");
}

TEST_F(KeychainTest, RefusesWhatNoItemHasAndSaysWhy)
{
    Generic::setLogsErrors(true);
    logged().clear();
    const QtMessageHandler before = qInstallMessageHandler(keepLog);
    EXPECT_EQ(statusOf({}), Status::InvalidValue);
    EXPECT_EQ(statusOfAdding(u"alice"_s, {}), Status::InvalidValue);
    EXPECT_FALSE(findInternet({}, {}, 0, 0));
    EXPECT_TRUE(logged().isEmpty()) << "an argument that is missing is no error";
    EXPECT_EQ(statusOf(u"alice"_s), Status::ItemNotFound);
    EXPECT_EQ(statusOf(u"nul\0l"_s), Status::InvalidValue);
    EXPECT_EQ(statusOfAdding(u"nul\0l"_s, u"sesame"_s), Status::InvalidValue);
    qInstallMessageHandler(before);
    ASSERT_EQ(logged().size(), 3);
    EXPECT_EQ(logged().first(), u"Error (genericKeychainItemForService:withUsername:) - %1"_s.arg(
                                    keychain()->statusText(Status::ItemNotFound)));
    EXPECT_FALSE(logged().join(u' ').contains(u"sesame"));

    EXPECT_EQ(keychain()->modifyAttributesAndData(nullptr, {}, std::nullopt), Status::InvalidItem);
    EXPECT_EQ(keychain()->deleteItem(nullptr), Status::InvalidItem);
}

TEST_F(KeychainTest, SaysInWhichStateTheServiceIs)
{
    using Enter = std::function<void()>;
    const std::string bus = getenv("DBUS_SESSION_BUS_ADDRESS");
    const Status noService = Status::NoService;
    const Status noKeyring = Status::NoDefaultKeychain;
    for (const auto &[name, enter, find, add, unlock] : {
             std::tuple{"no service", Enter([&] { session.stop(); }), noService, noService, noService},
             {"no keyring", [&] { session.start(Keyring::None); }, noKeyring, noKeyring, noKeyring},
             {"unlocked", [&] { session.start(); }, Status::ItemNotFound, Status::Success, Status::Success},
             {"locked", [&] { session.start(Keyring::Locked); }, Status::Locked, Status::Locked,
              Status::UnlockDeclined},
             {"again", [&] { session.start(); }, Status::Success, Status::DuplicateItem, Status::Success},
             {"no bus", [] { setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus", 1); }, noService,
              noService, noService},
         }) {
        SCOPED_TRACE(name);
        enter();
        EXPECT_EQ(statusOf(u"alice"_s), find);
        EXPECT_EQ(statusOfAdding(u"alice"_s), add);
        EXPECT_EQ(keychain()->unlock(), unlock);
    }
    setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), 1);
}

TEST_F(KeychainTest, DoesNotWaitForAServiceThatIsSilent)
{
    setKeychain(std::make_shared<SecretServiceKeychain>(300ms));
    const auto item = keychain()->addGenericPassword({"service", "bob"}, Secret("pw")).item;
    session.freeze();
    for (const Status status :
         {statusOf(u"alice"_s), statusOfAdding(u"alice"_s), keychain()->deleteItem(item),
          keychain()->modifyAttributesAndData(item, {}, Secret("new")), keychain()->lock(),
          keychain()->unlock()})
        EXPECT_EQ(status, Status::NotAnswering);
    session.thaw();
    setKeychain(std::make_shared<SecretServiceKeychain>());
    EXPECT_EQ(statusOf(u"alice"_s), Status::ItemNotFound) << "what was given up has been stored all the same";
    EXPECT_EQ(stored(u"bob"_s, u"service"_s), u"it is pw"_s);

    // Nor is it waited for when the program quits.
    setKeychain(std::make_shared<SecretServiceKeychain>(10min));
    session.freeze();
    auto asked = std::async(std::launch::async, [] { return statusOf(u"alice"_s); });
    while (asked.wait_for(10ms) != std::future_status::ready)
        keychain()->giveUp();
    EXPECT_EQ(asked.get(), Status::Cancelled);
    session.thaw();
}
