#include "KeyOpener.h"

#include "KeyFile.h"
#include "Recipient.h"

#include <algorithm>
#include <openssl/crypto.h>
#include <openssl/err.h>
#include <optional>
#include <utility>

namespace {

// A message may come with any number of recipients; that the key opens more than one entry is rare.
constexpr std::size_t maximumOpened = 16;

std::optional<ContentKey> open(EVP_PKEY &privateKey, const Recipient &recipient)
{
    const CryptoHandle<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new(&privateKey, nullptr));
    if (!context || EVP_PKEY_decrypt_init(context.get()) <= 0) return std::nullopt;
    // By itself libcrypto, from 3.2 on, hands out a random key where the private key is the wrong one.
    EVP_PKEY_CTX_ctrl_str(context.get(), "rsa_pkcs1_implicit_rejection", "0");

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

void KeyOpener::offer(const Recipient &recipient)
{
    const bool isNamed = m_certificate && recipient.isNamedBy(*m_certificate->handle);
    m_hasMetCertificate = m_hasMetCertificate || isNamed;
    if (m_certificate && m_scope == Scope::Certificate && !isNamed) return;

    EVP_PKEY &key = *m_privateKey.handle;
    const bool canOpen = EVP_PKEY_is_a(&key, "RSA") && recipient.algorithm == NID_rsaEncryption;
    if (!canOpen || m_opened.size() == maximumOpened) return;
    if (auto opened = open(key, recipient)) m_opened.push_back(std::move(*opened));
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
    if (m_certificate && !m_hasMetCertificate) return "is not for the certificate " + m_certificate->file;
    const bool isOther =
        m_certificate && X509_check_private_key(m_certificate->handle.get(), m_privateKey.handle.get()) != 1;
    ERR_clear_error();
    if (isOther)
        return "was not opened: the private key " + m_privateKey.file +
               " does not belong to the certificate " + m_certificate->file;
    return "cannot be opened with the private key " + m_privateKey.file;
}
