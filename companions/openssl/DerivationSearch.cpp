#include "DerivationSearch.h"

#include "CipherName.h"
#include "smime/CryptoHandles.h"

#include <algorithm>
#include <limits>
#include <openssl/crypto.h>
#include <openssl/err.h>

namespace {

constexpr std::string_view saltMark = "Salted__";
constexpr std::size_t saltSize = 8;
constexpr std::size_t longestBlock = 16;
static_assert(saltMark.size() + saltSize + longestBlock == tellingSize);

constexpr std::array<std::string_view, 2> archiveSignatures{std::string_view("Rar!\x1a\x07\x01\x00", 8),
                                                            std::string_view("Rar!\x1a\x07\x00", 7)};

std::string_view textOf(Bytes bytes) { return {reinterpret_cast<const char *>(bytes.data()), bytes.size()}; }

/// The key with the initialisation vector behind it, as both derivations make them.
class KeyMaterial {
public:
    KeyMaterial() = default;
    ~KeyMaterial() { OPENSSL_cleanse(m_bytes.data(), m_bytes.size()); }
    KeyMaterial(const KeyMaterial &) = delete;
    KeyMaterial &operator=(const KeyMaterial &) = delete;

    bool derive(const EVP_CIPHER *cipher, const KeyDerivation &derivation, std::string_view password,
                Bytes salt)
    {
        const std::string digestName(derivation.digest);
        const CryptoHandle<EVP_MD> digest(EVP_MD_fetch(nullptr, digestName.c_str(), nullptr));
        if (!digest || password.size() > std::numeric_limits<int>::max()) return false;
        const int size = static_cast<int>(password.size());
        const int keySize = EVP_CIPHER_get_key_length(cipher);
        m_vector = m_bytes.data() + keySize;
        if (derivation.iterations == 0)
            return EVP_BytesToKey(cipher, digest.get(), salt.data(),
                                  reinterpret_cast<const unsigned char *>(password.data()), size, 1,
                                  m_bytes.data(), m_vector) > 0;
        return PKCS5_PBKDF2_HMAC(password.data(), size, salt.data(), static_cast<int>(salt.size()),
                                 static_cast<int>(derivation.iterations), digest.get(),
                                 keySize + EVP_CIPHER_get_iv_length(cipher), m_bytes.data()) > 0;
    }

    [[nodiscard]] const unsigned char *key() const { return m_bytes.data(); }
    [[nodiscard]] const unsigned char *vector() const { return m_vector; }

private:
    std::array<unsigned char, EVP_MAX_KEY_LENGTH + EVP_MAX_IV_LENGTH> m_bytes{};
    unsigned char *m_vector = m_bytes.data();
};

/// The block, decrypted; empty where the cipher won't.
std::string decrypt(const EVP_CIPHER *cipher, const KeyMaterial &material, Bytes block)
{
    const CryptoHandle<EVP_CIPHER_CTX> context(EVP_CIPHER_CTX_new());
    std::array<unsigned char, 2 * longestBlock> plain{};
    int size = 0;
    const bool isDone =
        context &&
        EVP_DecryptInit_ex(context.get(), cipher, nullptr, material.key(), material.vector()) > 0 &&
        EVP_CIPHER_CTX_set_padding(context.get(), 0) > 0 &&
        EVP_DecryptUpdate(context.get(), plain.data(), &size, block.data(), static_cast<int>(block.size())) >
            0;
    return isDone ? std::string(textOf({plain.data(), static_cast<std::size_t>(size)})) : std::string();
}

/// Whether the plain text begins as an archive does.
bool opensArchive(const EVP_CIPHER *cipher, const KeyDerivation &derivation, std::string_view password,
                  Bytes head)
{
    KeyMaterial material;
    if (!material.derive(cipher, derivation, password, head.subspan(saltMark.size(), saltSize))) return false;
    const auto blockSize = static_cast<std::size_t>(EVP_CIPHER_get_block_size(cipher));
    const Bytes block = head.subspan(saltMark.size() + saltSize, std::min(blockSize, longestBlock));
    const std::string plain = decrypt(cipher, material, block);
    return std::ranges::any_of(archiveSignatures,
                               [&plain](std::string_view each) { return plain.starts_with(each); });
}

/// The derivations to try, cheapest first.
std::vector<KeyDerivation> candidates(std::string_view digest)
{
    std::vector<KeyDerivation> all;
    for (KeyDerivation each : olderKeyDerivations) {
        if (!digest.empty()) each.digest = digest;
        all.push_back(each);
    }
    return all;
}

} // namespace

std::optional<KeyDerivation> findOlderDerivation(const std::string &cipher, Bytes head,
                                                 std::string_view password, std::string_view digest)
{
    if (head.size() < tellingSize || !textOf(head).starts_with(saltMark)) return std::nullopt;
    // Naming one provider keeps the library from loading the default one, too.
    const CryptoHandle<OSSL_PROVIDER> standard(OSSL_PROVIDER_load(nullptr, "default"));
    const CryptoHandle<OSSL_PROVIDER> legacy(
        needsLegacyProvider(cipher) ? OSSL_PROVIDER_load(nullptr, "legacy") : nullptr);
    const CryptoHandle<EVP_CIPHER> fetched(EVP_CIPHER_fetch(nullptr, cipher.c_str(), nullptr));

    std::optional<KeyDerivation> found;
    if (fetched && EVP_CIPHER_get_mode(fetched.get()) == EVP_CIPH_CBC_MODE) {
        const std::vector<KeyDerivation> all = candidates(digest);
        const auto first = std::ranges::find_if(all, [&](const KeyDerivation &each) {
            return opensArchive(fetched.get(), each, password, head);
        });
        if (first != all.end()) found = *first;
    }
    ERR_clear_error();
    return found;
}
