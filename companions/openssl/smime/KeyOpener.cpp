#include "KeyOpener.h"

#include "KeyFile.h"
#include "KeyPadding.h"
#include "Recipient.h"

#include <algorithm>
#include <openssl/crypto.h>
#include <openssl/err.h>
#include <optional>
#include <utility>

using namespace std::string_literals;

namespace {

// A message may come with any number of recipients; that the key opens more than one entry is rare.
constexpr std::size_t maximumOpened = 16;

std::optional<ContentKey> open(EVP_PKEY &privateKey, const Recipient &recipient)
{
    const CryptoHandle<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new(&privateKey, nullptr));
    const bool isReady = context && EVP_PKEY_decrypt_init(context.get()) > 0 &&
                         setPadding(context.get(), *recipient.algorithm);
    if (!isReady) return std::nullopt;

    std::size_t size = 0;
    const std::vector<std::uint8_t> &from = recipient.encryptedKey;
    if (EVP_PKEY_decrypt(context.get(), nullptr, &size, from.data(), from.size()) <= 0) return std::nullopt;
    std::vector<std::uint8_t> bytes(size);
    const int isOpened = EVP_PKEY_decrypt(context.get(), bytes.data(), &size, from.data(), from.size());
    if (isOpened <= 0) return std::nullopt;
    OPENSSL_cleanse(bytes.data() + size, bytes.size() - size);
    bytes.resize(size);
    return ContentKey(std::move(bytes));
}

} // namespace

ContentKey::~ContentKey() { OPENSSL_cleanse(m_bytes.data(), m_bytes.size()); }

bool KeyOpener::isRsa() const { return EVP_PKEY_is_a(m_privateKey.handle.get(), "RSA") == 1; }

void KeyOpener::offer(const Recipient &recipient)
{
    m_hasMetRsa = true;
    const bool isNamed = m_certificate && recipient.isNamedBy(*m_certificate->handle);
    m_hasMetCertificate = m_hasMetCertificate || isNamed;
    if (m_certificate && m_scope == Scope::Certificate && !isNamed) return;

    if (!isRsa() || m_opened.size() == maximumOpened) return;
    if (auto opened = open(*m_privateKey.handle, recipient)) m_opened.push_back(std::move(*opened));
    ERR_clear_error();
}

const ContentKey *KeyOpener::contentKey(std::size_t size) const
{
    const auto found =
        std::ranges::find_if(m_opened, [size](const ContentKey &key) { return key.bytes().size() == size; });
    return found == m_opened.end() ? nullptr : &*found;
}

std::string KeyOpener::refusal() const
{
    if (m_other && (!isRsa() || !m_hasMetRsa))
        return (*m_other == OtherRecipient::Agreement ? "is for an elliptic-curve key"
                                                      : "is for a password or a key that both sides have"s) +
               ", not for an RSA key, and can't be opened here: use \"openssl cms -decrypt\"";
    if (!isRsa()) return "cannot be opened with the private key " + m_privateKey.file + ": it is no RSA key";
    if (m_certificate && !m_hasMetCertificate) return "is not for the certificate " + m_certificate->file;
    const bool isOther =
        m_certificate && X509_check_private_key(m_certificate->handle.get(), m_privateKey.handle.get()) != 1;
    ERR_clear_error();
    if (isOther)
        return "was not opened: the private key " + m_privateKey.file +
               " does not belong to the certificate " + m_certificate->file;
    return "cannot be opened with the private key " + m_privateKey.file;
}
