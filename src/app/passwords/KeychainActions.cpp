#include "app/QuillorentAppDelegate.h"
#include "keychain/EMGenericKeychainItem.h"
#include "tools/Threads.h"

namespace {

QString service() { return u"com.brolvanek.Quillorent.encrypt"_qs; }

/// A field that nobody has written to holds an empty text, which is a name like any other to a keychain.
QString textOf(const outlets::TextField &field) { return field.text().isNull() ? u""_qs : field.text(); }

/// What a request to the keychain comes to.
struct Answer {
    KeychainStatus status = KeychainStatus::Success;
    QString text{};                    ///< for the person who asked
    std::optional<QString> password{}; ///< for the field, where it was asked for
};

/// The words for an end that is told of by this tab's own account; any other end is the keychain's to
/// explain.
struct Words {
    QString success;
    KeychainStatus expectedFailure;
    QString failure;
};

QString describe(KeychainStatus status, const Words &words)
{
    if (status == KeychainStatus::Success) return words.success;
    return status == words.expectedFailure ? words.failure : keychain()->statusText(status);
}

Answer fetch(const QString &account)
{
    const Words words{u"The password of \"%1\" was fetched from the keychain."_qs.arg(account),
                      KeychainStatus::ItemNotFound,
                      u"The keychain holds no password of \"%1\". Check the account name; or type the "
                      "password and store it."_qs.arg(account)};
    KeychainStatus status{};
    const auto item = EMGenericKeychainItem::genericKeychainItemForService(service(), account, &status);
    return {status, describe(status, words), item ? item->password() : QString()};
}

Answer store(const QString &account, const QString &password)
{
    const Words words{
        u"The password was stored in the keychain for \"%1\"."_qs.arg(account), KeychainStatus::DuplicateItem,
        u"The keychain holds a password of \"%1\" already, and it stays as it is. Choose another "
        "account name, or remove the old one in your desktop's password program "
        "first."_qs.arg(account)};
    KeychainStatus status{};
    EMGenericKeychainItem::addGenericKeychainItemForService(service(), account, password, &status);
    return {status, describe(status, words)};
}

/// Unlocks, and then fetches where there is an account to fetch for and nothing typed that would be lost.
Answer unlock(const QString &account, bool isFetchWanted)
{
    Answer answer{.status = EMKeychainItem::unlockKeychain()};
    if (answer.status == KeychainStatus::Success && isFetchWanted) return fetch(account);
    answer.text = answer.status == KeychainStatus::Success ? u"The keychain is unlocked."_qs
                                                           : keychain()->statusText(answer.status);
    return answer;
}

bool isLocked(KeychainStatus status)
{
    return status == KeychainStatus::Locked || status == KeychainStatus::UnlockDeclined;
}

} // namespace

// A keychain may take its time, or never answer: it is asked on a thread of its own, and what it says shows
// when it comes, unless something newer was asked meanwhile.
template <class Ask>
void QuillorentAppDelegate::askKeychain(Ask ask)
{
    const int request = m_keychainRequests.begin();
    keychainText01.setText(u"Asking the keychain…"_qs);
    keychainUnlock01.setHidden(true);
    keychainIndicator01.startAnimation();
    detachThread(u"keychain"_qs, [this, request, ask] {
        const Answer answer = ask();
        m_keychainRequests.apply(request, [&] {
            keychainText01.setText(answer.text);
            keychainUnlock01.setHidden(!isLocked(answer.status));
            if (answer.password) shownKeychainField().setText(*answer.password);
        });
        keychainIndicator01.stopAnimation();
    });
}

outlets::TextField &QuillorentAppDelegate::shownKeychainField()
{
    return checkBox02.isOn() ? keychainPass : keychainClear;
}

void QuillorentAppDelegate::passButton01Action()
{
    const QString account = textOf(keychainUser);
    askKeychain([account] { return fetch(account); });
    currentRecord().setValue(u"lastkeychainuser"_qs, account);
}

void QuillorentAppDelegate::passButton02Action()
{
    const QString account = textOf(keychainUser);
    askKeychain([account, password = textOf(shownKeychainField())] { return store(account, password); });
    currentRecord().setValue(u"lastkeychainuser"_qs, account);
}

void QuillorentAppDelegate::keychainUnlock01Action()
{
    const QString account = textOf(keychainUser);
    const bool isFetchWanted = !account.isEmpty() && shownKeychainField().text().isEmpty();
    askKeychain([account, isFetchWanted] { return unlock(account, isFetchWanted); });
}

void QuillorentAppDelegate::forgetKeychainAnswers()
{
    m_keychainRequests.drop();
    keychainText01.setText({});
    keychainUnlock01.setHidden(true);
}
