#include "keychain/Keychain.h"

#include "keychain/SecretServiceKeychain.h"

#include <mutex>

namespace {

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
        return u"The keychain did what it was asked to."_qs;
    case KeychainStatus::ItemNotFound:
        return u"The keychain holds no such password."_qs;
    case KeychainStatus::DuplicateItem:
        return u"The keychain holds a password of that name already. It stays as it is: remove it with your "
               u"desktop's password program first, or choose another account name."_qs;
    case KeychainStatus::NoService:
        return u"No keychain service runs in this session. Start one (any Secret Service will do), or type "
               u"the password."_qs;
    case KeychainStatus::NoDefaultKeychain:
        return u"The keychain service has no default keychain. Create one with your desktop's password "
               u"program."_qs;
    case KeychainStatus::Locked:
        return u"The keychain is locked. Unlock it and try again."_qs;
    case KeychainStatus::UnlockDeclined:
        return u"The keychain is still locked: its password was not given, or it could not be asked for. "
               u"Try again, or unlock it with your desktop's password program."_qs;
    case KeychainStatus::Refused:
        return u"The keychain service refused. Look at your desktop's password program for the reason."_qs;
    case KeychainStatus::NotAnswering:
        return u"The keychain service does not answer. Try again later, or restart it; whether it stored "
               u"something shows when it answers again."_qs;
    case KeychainStatus::Cancelled:
        return u"The keychain was not waited for any longer."_qs;
    case KeychainStatus::InvalidItem:
        return u"That password is not in the keychain."_qs;
    case KeychainStatus::NoSuchAttribute:
        return u"A password of this kind does not have that attribute."_qs;
    case KeychainStatus::InvalidValue:
        return u"The keychain can't hold that name: it is missing, or is no proper text."_qs;
    }
    return {};
}
