#include "keychain/SecretServiceKeychain.h"

#include "keychain/SecretServiceCalls.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <pthread.h>
#include <thread>

using secretService::Attributes;
using secretService::Cancellation;

namespace {

/// As people write it ("ftp" for "ftp "); a code that is no word as a number.
QByteArray codeText(quint32 code)
{
    QByteArray text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(code >> shift & 0xFFU);
    const bool isWord = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (!isWord) return "0x" + QByteArray::number(code, 16);
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

Attributes toAttributes(const GenericPasswordKey &key)
{
    return {{"service", key.service}, {"account", key.account}};
}

Attributes toAttributes(const InternetPasswordKey &key)
{
    Attributes attributes;
    attributes["server"] = key.server;
    attributes["account"] = key.account;
    attributes["path"] = key.path;
    attributes["port"] = QByteArray::number(key.port);
    attributes["protocol"] = codeText(key.protocol);
    if (key.authentication != keychainAuthentication::any)
        attributes["authentication"] = codeText(key.authentication);
    return attributes;
}

/// The service's library takes texts that end with a null character, and is silent about bytes that are not
/// UTF-8.
bool isText(const QByteArray &value) { return value.isValidUtf8() && !value.contains('\0'); }

bool areTexts(const Attributes &attributes)
{
    return std::all_of(attributes.begin(), attributes.end(),
                       [](const auto &attribute) { return isText(attribute.second); });
}

template <class Number>
std::optional<Number> toNumber(const QByteArray &bytes)
{
    Number number{};
    if (bytes.size() != sizeof number) return std::nullopt;
    std::memcpy(&number, bytes.constData(), sizeof number);
    return number;
}

/// The attribute's value as text; none where it has the wrong length.
std::optional<QByteArray> valueText(const KeychainAttribute &attribute)
{
    if (attribute.tag == KeychainTag::Port) {
        const auto port = toNumber<qint32>(attribute.value);
        return port ? std::optional(QByteArray::number(*port)) : std::nullopt;
    }
    if (attribute.tag == KeychainTag::Protocol) {
        const auto code = toNumber<quint32>(attribute.value);
        return code ? std::optional(codeText(*code)) : std::nullopt;
    }
    return attribute.value;
}

/// Empty for what is no attribute.
QByteArray nameOf(KeychainTag tag)
{
    switch (tag) {
    case KeychainTag::Account:
        return "account";
    case KeychainTag::Service:
        return "service";
    case KeychainTag::Server:
        return "server";
    case KeychainTag::Path:
        return "path";
    case KeychainTag::Port:
        return "port";
    case KeychainTag::Protocol:
        return "protocol";
    case KeychainTag::Label:
        break;
    }
    return {};
}

/// None where a value can't be kept.
std::optional<secretService::Changes> toChanges(const QList<KeychainAttribute> &attributes)
{
    secretService::Changes changes;
    for (const KeychainAttribute &attribute : attributes) {
        const std::optional<QByteArray> text = valueText(attribute);
        if (!text || !isText(*text)) return std::nullopt;
        if (attribute.tag == KeychainTag::Label)
            changes.label = text;
        else
            changes.attributes[nameOf(attribute.tag)] = *text;
    }
    return changes;
}

} // namespace

/// What callers wait on. The threads that ask share it, because they may outlast both the call and the
/// keychain.
struct SecretServiceKeychain::Waiting {
    std::mutex mutex;
    std::condition_variable changed;
    unsigned timesGivenUp = 0;
};

SecretServiceKeychain::SecretServiceKeychain(std::chrono::milliseconds answersWithin)
    : m_answersWithin(answersWithin), m_waiting(std::make_shared<Waiting>())
{
}

SecretServiceKeychain::~SecretServiceKeychain() = default;

KeychainAnswer SecretServiceKeychain::ask(Question question, std::optional<std::chrono::milliseconds> atMost)
{
    struct Call {
        Question question;
        Cancellation cancellation;
        std::optional<KeychainAnswer> answer;
    };
    const auto call = std::make_shared<Call>(Call{std::move(question), {}, {}});
    const std::shared_ptr<Waiting> waiting = m_waiting;

    // A thread of its own that may be left behind: not every wait of the service's library heeds a
    // cancellation. For the same reason quitting does not count it.
    std::thread([call, waiting] {
        pthread_setname_np(pthread_self(), "keychain");
        KeychainAnswer answer = call->question(call->cancellation);
        const std::lock_guard lock(waiting->mutex);
        call->question = nullptr; // a password may be in it
        call->answer = std::move(answer);
        waiting->changed.notify_all();
    }).detach();

    std::unique_lock lock(waiting->mutex);
    const unsigned before = waiting->timesGivenUp;
    const auto isOver = [&] { return call->answer || waiting->timesGivenUp != before; };
    if (!atMost)
        waiting->changed.wait(lock, isOver);
    else
        waiting->changed.wait_for(lock, *atMost, isOver);
    if (call->answer) return std::move(*call->answer);

    const KeychainStatus reason =
        waiting->timesGivenUp != before ? KeychainStatus::Cancelled : KeychainStatus::NotAnswering;
    lock.unlock();
    // Nothing is to be stored any more once the caller has been told otherwise.
    call->cancellation.cancel();
    return {reason};
}

void SecretServiceKeychain::giveUp()
{
    const std::lock_guard lock(m_waiting->mutex);
    ++m_waiting->timesGivenUp;
    m_waiting->changed.notify_all();
}

KeychainAnswer SecretServiceKeychain::findGenericPassword(const GenericPasswordKey &key)
{
    return find(toAttributes(key));
}

KeychainAnswer SecretServiceKeychain::findInternetPassword(const InternetPasswordKey &key)
{
    return find(toAttributes(key));
}

KeychainAnswer SecretServiceKeychain::addGenericPassword(const GenericPasswordKey &key, Secret password)
{
    return add(toAttributes(key), "Quillorent password of " + key.account, std::move(password));
}

KeychainAnswer SecretServiceKeychain::addInternetPassword(const InternetPasswordKey &key, Secret password)
{
    return add(toAttributes(key), "Quillorent password of " + key.account + " at " + key.server,
               std::move(password));
}

KeychainStatus SecretServiceKeychain::modifyAttributesAndData(const KeychainItemHandle &item,
                                                              const QList<KeychainAttribute> &attributes,
                                                              std::optional<Secret> data)
{
    const auto known = std::dynamic_pointer_cast<const secretService::Item>(item);
    if (!known) return KeychainStatus::InvalidItem;
    std::optional<secretService::Changes> changes = toChanges(attributes);
    if (!changes) return KeychainStatus::InvalidValue;
    if (data) changes->password = std::make_shared<const Secret>(std::move(*data));
    const auto question = [known, changes = std::move(*changes)](const Cancellation &cancellation) {
        return KeychainAnswer{secretService::modify(*known, changes, cancellation)};
    };
    return ask(question, m_answersWithin).status;
}

KeychainStatus SecretServiceKeychain::deleteItem(const KeychainItemHandle &item)
{
    const auto known = std::dynamic_pointer_cast<const secretService::Item>(item);
    if (!known) return KeychainStatus::InvalidItem;
    const auto question = [known](const Cancellation &cancellation) {
        return KeychainAnswer{secretService::remove(*known, cancellation)};
    };
    return ask(question, m_answersWithin).status;
}

KeychainStatus SecretServiceKeychain::lock()
{
    const auto question = [](const Cancellation &cancellation) {
        return KeychainAnswer{secretService::lock(cancellation)};
    };
    return ask(question, m_answersWithin).status;
}

KeychainStatus SecretServiceKeychain::unlock()
{
    // A person may take any time, a service that is there may not.
    const auto state = [](const Cancellation &cancellation) {
        return KeychainAnswer{secretService::state(cancellation)};
    };
    const KeychainStatus before = ask(state, m_answersWithin).status;
    if (before != KeychainStatus::Locked) return before;
    return ask([](const Cancellation &) { return KeychainAnswer{secretService::unlock()}; }, std::nullopt)
        .status;
}

KeychainAnswer SecretServiceKeychain::find(const Attributes &attributes)
{
    if (!areTexts(attributes)) return {KeychainStatus::InvalidValue};
    const auto question = [attributes](const Cancellation &cancellation) {
        return secretService::find(attributes, cancellation);
    };
    return ask(question, m_answersWithin);
}

KeychainAnswer SecretServiceKeychain::add(const Attributes &attributes, const QByteArray &label,
                                          Secret password)
{
    if (!areTexts(attributes)) return {KeychainStatus::InvalidValue};
    const auto kept = std::make_shared<const Secret>(std::move(password));
    const auto question = [attributes, label, kept](const Cancellation &cancellation) {
        return secretService::add(attributes, label, *kept, cancellation);
    };
    return ask(question, m_answersWithin);
}
