// The service in the states that a desktop brings it into.

#include "SecretService.h"
#include "Command.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keychain/EMInternetKeychainItem.h"
#include "keychain/SecretServiceKeychain.h"

#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;
using Generic = EMGenericKeychainItem;
using Keyring = SecretService::Keyring;
using Status = KeychainStatus;

namespace {

const GenericPasswordKey alice{"service", "alice"};

class SecretServiceTest : public testing::Test {
protected:
    void SetUp() override { setKeychain(std::make_shared<SecretServiceKeychain>()); }
    void TearDown() override { setKeychain(nullptr); }

    SecretService session;
};

Status find() { return keychain()->findGenericPassword(alice).status; }
Status add() { return keychain()->addGenericPassword(alice, Secret("pw")).status; }

} // namespace

TEST_F(SecretServiceTest, SaysInWhichStateTheServiceIs)
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
             Case{"no service", [] {}, Status::NoService, Status::NoService, Status::NoService},
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
        EXPECT_EQ(add(), c.add);
        EXPECT_EQ(keychain()->unlock(), c.unlock);
    }
    setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), 1);
}

TEST_F(SecretServiceTest, KnowsItsItemsAfterARestart)
{
    session.start();
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

TEST_F(SecretServiceTest, DoesNotWaitForAServiceThatIsSilent)
{
    session.start();
    setKeychain(std::make_shared<SecretServiceKeychain>(300ms));
    const auto item = keychain()->addGenericPassword({"service", "bob"}, Secret("pw")).item;
    session.freeze();
    EXPECT_EQ(find(), Status::NotAnswering);
    EXPECT_EQ(add(), Status::NotAnswering);
    EXPECT_EQ(keychain()->modifyAttributesAndData(item, {}, Secret("new")), Status::NotAnswering);
    EXPECT_EQ(keychain()->deleteItem(item), Status::NotAnswering);
    EXPECT_EQ(keychain()->lock(), Status::NotAnswering);
    EXPECT_EQ(keychain()->unlock(), Status::NotAnswering);
    session.thaw();

    setKeychain(std::make_shared<SecretServiceKeychain>());
    EXPECT_EQ(find(), Status::ItemNotFound) << "what was given up has been stored all the same";
    EXPECT_EQ(keychain()->findGenericPassword({"service", "bob"}).password.text(), u"pw"_qs);
}

TEST_F(SecretServiceTest, IsLeftWhenTheProgramQuits)
{
    session.start();
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

TEST_F(SecretServiceTest, SharesItsPasswordsWithOtherPrograms)
{
    session.start();
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
