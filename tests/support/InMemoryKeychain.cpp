#include "InMemoryKeychain.h"

#include <algorithm>

struct InMemoryKeychain::Entry {
    Attributes attributes;
    quint32 authentication;
    Secret password;
};

struct InMemoryKeychain::Reference : KeychainItemReference {
    explicit Reference(std::shared_ptr<Entry> referenced) : entry(std::move(referenced)) {}
    std::shared_ptr<Entry> entry;
};

namespace {

template <class Number>
QByteArray bytesOf(Number number)
{
    return {reinterpret_cast<const char *>(&number), sizeof number};
}

bool canBeKept(KeychainTag tag, const QByteArray &value)
{
    if (tag == KeychainTag::Port || tag == KeychainTag::Protocol) return value.size() == 4;
    return value.isValidUtf8() && !value.contains('\0');
}

} // namespace

InMemoryKeychain::Attributes InMemoryKeychain::attributesOf(const GenericPasswordKey &key)
{
    return {{KeychainTag::Service, key.service}, {KeychainTag::Account, key.account}};
}

InMemoryKeychain::Attributes InMemoryKeychain::attributesOf(const InternetPasswordKey &key)
{
    return {{KeychainTag::Server, key.server},
            {KeychainTag::Account, key.account},
            {KeychainTag::Path, key.path},
            {KeychainTag::Port, bytesOf(qint32{key.port})},
            {KeychainTag::Protocol, bytesOf(key.protocol)}};
}

KeychainStatus InMemoryKeychain::state() const
{
    if (failure != KeychainStatus::Success) return failure;
    return m_isLocked ? KeychainStatus::Locked : KeychainStatus::Success;
}

std::shared_ptr<InMemoryKeychain::Entry> InMemoryKeychain::entryOf(const Attributes &attributes,
                                                                   quint32 authentication) const
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&](const auto &candidate) {
        Attributes present = candidate->attributes;
        present.erase(KeychainTag::Label);
        return present == attributes &&
               (authentication == keychainAuthentication::any || authentication == candidate->authentication);
    });
    return entry == m_entries.end() ? nullptr : *entry;
}

KeychainAnswer InMemoryKeychain::find(const Attributes &attributes, quint32 authentication)
{
    const std::lock_guard lock(m_mutex);
    for (const auto &[tag, value] : attributes)
        if (!canBeKept(tag, value)) return {KeychainStatus::InvalidValue};
    if (state() != KeychainStatus::Success) return {state()};
    const auto entry = entryOf(attributes, authentication);
    if (!entry) return {KeychainStatus::ItemNotFound};
    return {KeychainStatus::Success, std::make_shared<Reference>(entry), Secret(entry->password.bytes())};
}

KeychainAnswer InMemoryKeychain::add(const Attributes &attributes, quint32 authentication, Secret password)
{
    const std::lock_guard lock(m_mutex);
    for (const auto &[tag, value] : attributes)
        if (!canBeKept(tag, value)) return {KeychainStatus::InvalidValue};
    if (state() != KeychainStatus::Success) return {state()};
    if (entryOf(attributes, authentication)) return {KeychainStatus::DuplicateItem};
    m_entries.push_back(std::make_shared<Entry>(Entry{attributes, authentication, std::move(password)}));
    return {KeychainStatus::Success, std::make_shared<Reference>(m_entries.back())};
}

KeychainAnswer InMemoryKeychain::findGenericPassword(const GenericPasswordKey &key)
{
    return find(attributesOf(key), keychainAuthentication::any);
}

KeychainAnswer InMemoryKeychain::findInternetPassword(const InternetPasswordKey &key)
{
    return find(attributesOf(key), key.authentication);
}

KeychainAnswer InMemoryKeychain::addGenericPassword(const GenericPasswordKey &key, Secret password)
{
    return add(attributesOf(key), keychainAuthentication::any, std::move(password));
}

KeychainAnswer InMemoryKeychain::addInternetPassword(const InternetPasswordKey &key, Secret password)
{
    return add(attributesOf(key), key.authentication, std::move(password));
}

KeychainStatus InMemoryKeychain::modifyAttributesAndData(const KeychainItemHandle &item,
                                                         const QList<KeychainAttribute> &attributes,
                                                         std::optional<Secret> data)
{
    const std::lock_guard lock(m_mutex);
    const auto known = std::dynamic_pointer_cast<const Reference>(item);
    if (!known) return KeychainStatus::InvalidItem;
    if (state() != KeychainStatus::Success) return state();
    if (std::find(m_entries.begin(), m_entries.end(), known->entry) == m_entries.end())
        return KeychainStatus::ItemNotFound;

    Attributes changed = known->entry->attributes;
    for (const auto &[tag, value] : attributes) {
        if (!canBeKept(tag, value)) return KeychainStatus::InvalidValue;
        if (tag != KeychainTag::Label && !changed.contains(tag)) return KeychainStatus::NoSuchAttribute;
        changed[tag] = value;
    }
    Attributes key = changed;
    key.erase(KeychainTag::Label);
    const auto same = entryOf(key, known->entry->authentication);
    if (same && same != known->entry) return KeychainStatus::DuplicateItem;
    known->entry->attributes = changed;
    if (data) known->entry->password = std::move(*data);
    return KeychainStatus::Success;
}

KeychainStatus InMemoryKeychain::deleteItem(const KeychainItemHandle &item)
{
    const std::lock_guard lock(m_mutex);
    const auto known = std::dynamic_pointer_cast<const Reference>(item);
    if (!known) return KeychainStatus::InvalidItem;
    if (state() != KeychainStatus::Success) return state();
    return std::erase(m_entries, known->entry) ? KeychainStatus::Success : KeychainStatus::ItemNotFound;
}

KeychainStatus InMemoryKeychain::lock()
{
    const std::lock_guard lock(m_mutex);
    if (failure != KeychainStatus::Success) return failure;
    m_isLocked = true;
    return KeychainStatus::Success;
}

KeychainStatus InMemoryKeychain::unlock()
{
    const std::lock_guard lock(m_mutex);
    if (failure != KeychainStatus::Success) return failure;
    if (!m_isLocked) return KeychainStatus::Success;
    if (unlocking == KeychainStatus::Success) m_isLocked = false;
    return unlocking;
}
