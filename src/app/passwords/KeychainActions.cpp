#include "app/QuillorentAppDelegate.h"
#include "keychain/EMGenericKeychainItem.h"
#include "keys/SecretRules.h"
#include "tools/Threads.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(passwords)
};

QString service() { return u"com.brolvanek.Quillorent.encrypt"_s; }

/// A field that nobody has written to holds an empty text, which is a name like any other to a keychain.
QString textOf(const outlets::TextField &field) { return field.text().isNull() ? u""_s : field.text(); }

/// What a request to the keychain comes to.
struct Answer {
    KeychainStatus status = KeychainStatus::Success;
    QString text{};                   ///< for the person who asked
    std::optional<Secret> password{}; ///< for the field; none: it keeps what it holds
    std::optional<Secret> stored{};   ///< what was taken from the field
    QString origin{};                 ///< the account that either of them is of; empty: of none
};

/// The words for an end that is told of by this tab's own account; any other end is the keychain's to
/// explain.
struct Answers {
    QString success;
    KeychainStatus expectedFailure;
    QString failure;
};

QString describe(KeychainStatus status, const Answers &words)
{
    if (status == KeychainStatus::Success) return words.success;
    return status == words.expectedFailure ? words.failure : keychain()->statusText(status);
}

/// The same for what a keychain gives: a null text is no text at all.
QString whyNotUsable(const QString &password)
{
    if (password.isNull())
        return Words::tr("It is no text, in UTF-8. Another program stored it: choose another account.");
    return whyBadPassword(password);
}

Answer fetch(const QString &account)
{
    const Answers words{Words::tr("The password of \"%1\" was fetched from the keychain.").arg(account),
                        KeychainStatus::ItemNotFound,
                        Words::tr("The keychain holds no password of \"%1\". Check the account name; or type "
                                  "the password and store it.")
                            .arg(account)};
    Answer answer;
    const auto item =
        EMGenericKeychainItem::genericKeychainItemForService(service(), account, &answer.status);
    answer.text = describe(answer.status, words);
    if (!item && answer.status == KeychainStatus::Success)
        answer.text = keychain()->statusText(KeychainStatus::Refused);
    if (!item) {
        // Only where there is none is it known that the field's text is not its password.
        if (answer.status == KeychainStatus::ItemNotFound) answer.password.emplace();
        return answer;
    }
    QString password = item->password();
    const QString refusal = whyNotUsable(password);
    if (!refusal.isEmpty())
        answer.text = Words::tr("What the keychain holds of \"%1\" is of no use. ").arg(account) + refusal;
    // An empty one is shown as what it is.
    if (refusal.isEmpty() || (password.isEmpty() && !password.isNull())) {
        answer.password = Secret::fromText(password);
        if (refusal.isEmpty()) answer.origin = account;
    }
    wipe(password);
    return answer;
}

Answer store(const QString &account, const Secret &secret)
{
    QString password = secret.text();
    // That it is not empty is for whoever uses it to see.
    const QString refusal = password.isEmpty() ? QString() : whyBadPassword(password);
    if (!refusal.isEmpty()) {
        wipe(password);
        return {KeychainStatus::InvalidValue, Words::tr("Nothing was stored. ") + refusal};
    }
    const Answers words{
        Words::tr("The password was stored in the keychain for \"%1\".").arg(account),
        KeychainStatus::DuplicateItem,
        Words::tr("The keychain holds a password of \"%1\" already, and it stays as it is. Choose another "
                  "account name, or remove the old one in your desktop's password program first.")
            .arg(account)};
    Answer answer;
    EMGenericKeychainItem::addGenericKeychainItemForService(service(), account, password, &answer.status);
    answer.text = describe(answer.status, words);
    if (answer.status == KeychainStatus::Success && !password.isEmpty()) {
        answer.stored = Secret::fromText(password);
        answer.origin = account;
    }
    wipe(password);
    return answer;
}

/// Unlocks, and then fetches where there is an account to fetch for and nothing typed that would be lost.
Answer unlock(const QString &account, bool isFetchWanted)
{
    Answer answer;
    answer.status = EMKeychainItem::unlockKeychain();
    if (answer.status == KeychainStatus::Success && isFetchWanted) return fetch(account);
    answer.text = answer.status == KeychainStatus::Success ? Words::tr("The keychain is unlocked.")
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
    keychainText01.setText(Words::tr("Asking the keychain…"));
    keychainUnlock01.setHidden(true);
    keychainIndicator01.startAnimation();
    detachThread(u"keychain"_s, [this, request, ask] {
        const Answer answer = ask();
        m_keychainRequests.apply(request, [&] {
            keychainText01.setText(answer.text);
            keychainUnlock01.setHidden(!isLocked(answer.status));
            outlets::SecretField &field = shownKeychainField();
            if (answer.password) field.setText(answer.password->text());
            // What was typed in the meantime is not what was stored.
            const bool isStored =
                answer.stored && Secret::fromText(field.text()).bytes() == answer.stored->bytes();
            if (answer.password || isStored) keychainOrigin.setText(answer.origin);
        });
        keychainIndicator01.stopAnimation();
    });
}

outlets::SecretField &QuillorentAppDelegate::shownKeychainField()
{
    return checkBox02.isOn() ? keychainPass : keychainClear;
}

void QuillorentAppDelegate::passButton01Action()
{
    const QString account = textOf(keychainUser);
    askKeychain([account] { return fetch(account); });
    currentRecord().setValue(u"lastkeychainuser"_s, account);
}

void QuillorentAppDelegate::passButton02Action()
{
    const QString account = textOf(keychainUser);
    const auto password = std::make_shared<Secret>(Secret::fromText(shownKeychainField().text()));
    askKeychain([account, password] { return store(account, *password); });
    currentRecord().setValue(u"lastkeychainuser"_s, account);
}

void QuillorentAppDelegate::keychainUnlock01Action()
{
    const QString account = textOf(keychainUser);
    const bool wouldLose = !shownKeychainField().isEmpty() && keychainOrigin.text().isEmpty();
    const bool isFetchWanted = !account.isEmpty() && !wouldLose;
    askKeychain([account, isFetchWanted] { return unlock(account, isFetchWanted); });
}

void QuillorentAppDelegate::keychainFieldEdited() { keychainOrigin.setText({}); }

void QuillorentAppDelegate::forgetKeychainAnswers()
{
    m_keychainRequests.drop();
    keychainText01.setText({});
    keychainUnlock01.setHidden(true);
}
