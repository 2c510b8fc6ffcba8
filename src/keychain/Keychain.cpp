#include "keychain/Keychain.h"

#include "keychain/SecretServiceKeychain.h"

#include <QCoreApplication>
#include <mutex>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(keychain)
};

struct CurrentKeychain {
    std::mutex mutex;
    std::shared_ptr<Keychain> keychain;
};

// Never destroyed: a worker may ask for it while the program ends.
CurrentKeychain &current()
{
    static auto *current = new CurrentKeychain;
    return *current;
}

} // namespace

std::shared_ptr<Keychain> keychain()
{
    const std::lock_guard lock(current().mutex);
    if (!current().keychain) current().keychain = std::make_shared<SecretServiceKeychain>();
    return current().keychain;
}

void setKeychain(std::shared_ptr<Keychain> replacement)
{
    const std::lock_guard lock(current().mutex);
    current().keychain.swap(replacement);
}

QString Keychain::statusText(KeychainStatus status) const
{
    switch (status) {
    case KeychainStatus::Success:
        return Words::tr("The keychain did what it was asked to.");
    case KeychainStatus::ItemNotFound:
        return Words::tr("The keychain holds no such password.");
    case KeychainStatus::DuplicateItem:
        return Words::tr("The keychain holds a password of that name already. It stays as it is: remove it "
                         "with your desktop's password program first, or choose another account name.");
    case KeychainStatus::NoService:
        return Words::tr("No keychain service runs in this session. Start one (any Secret Service will do), "
                         "or type the password.");
    case KeychainStatus::NoDefaultKeychain:
        return Words::tr(
            "The keychain service has no default keychain. Create one with your desktop's password program.");
    case KeychainStatus::Locked:
        return Words::tr("The keychain is locked. Unlock it and try again.");
    case KeychainStatus::UnlockDeclined:
        return Words::tr("The keychain is still locked: its password was not given, or it could not be asked "
                         "for. Try again, or unlock it with your desktop's password program.");
    case KeychainStatus::Refused:
        return Words::tr(
            "The keychain service refused. Look at your desktop's password program for the reason.");
    case KeychainStatus::NotAnswering:
        return Words::tr("The keychain service does not answer. Try again later, or restart it; whether it "
                         "stored something shows when it answers again.");
    case KeychainStatus::Cancelled:
        return Words::tr("The keychain was not waited for any longer.");
    case KeychainStatus::InvalidItem:
        return Words::tr("That password is not in the keychain.");
    case KeychainStatus::NoSuchAttribute:
        return Words::tr("A password of this kind does not have that attribute.");
    case KeychainStatus::InvalidValue:
        return Words::tr("The keychain can't hold that name: it is missing, or is no proper text.");
    }
    return {};
}
