#include "CipherName.h"

#include <algorithm>
#include <array>
#include <openssl/err.h>
#include <strings.h>

namespace {

struct CipherFamily {
    std::string_view name;
    bool isLegacy;
};

// A longer name comes before the one that it begins with. Triple DES is not a legacy cipher, single DES is.
constexpr std::array families{
    CipherFamily{"aes", false},      CipherFamily{"aria", false},    CipherFamily{"camellia", false},
    CipherFamily{"sm4", false},      CipherFamily{"des3", false},    CipherFamily{"des-ede", false},
    CipherFamily{"chacha20", false}, CipherFamily{"des", true},      CipherFamily{"desx", true},
    CipherFamily{"bf", true},        CipherFamily{"blowfish", true}, CipherFamily{"cast", true},
    CipherFamily{"idea", true},      CipherFamily{"rc2", true},      CipherFamily{"rc4", true},
    CipherFamily{"rc5", true},       CipherFamily{"seed", true}};

/// Whether what follows the family's name is a key size or a mode, as in `aes256`, `cast5-cbc` and `rc4-40`.
bool isVariant(std::string_view rest)
{
    return rest.empty() || rest.front() == '-' || (rest.front() >= '0' && rest.front() <= '9');
}

const CipherFamily *familyOf(std::string_view cipher)
{
    const auto belongs = [cipher](const CipherFamily &family) {
        const std::size_t size = family.name.size();
        return cipher.size() >= size && strncasecmp(cipher.data(), family.name.data(), size) == 0 &&
               isVariant(cipher.substr(size));
    };
    const auto found = std::ranges::find_if(families, belongs);
    return found == families.end() ? nullptr : &*found;
}

/// Whether bytes in any pieces, a key and an initialisation vector are all that it takes.
bool isPlain(const EVP_CIPHER *cipher)
{
    constexpr std::array modes{EVP_CIPH_STREAM_CIPHER, EVP_CIPH_ECB_MODE, EVP_CIPH_CBC_MODE,
                               EVP_CIPH_CFB_MODE,      EVP_CIPH_OFB_MODE, EVP_CIPH_CTR_MODE};
    constexpr unsigned long others = EVP_CIPH_FLAG_AEAD_CIPHER | EVP_CIPH_FLAG_CTS;
    return std::ranges::count(modes, EVP_CIPHER_get_mode(cipher)) > 0 &&
           (EVP_CIPHER_get_flags(cipher) & others) == 0;
}

} // namespace

bool isCipher(std::string_view name) { return familyOf(name) != nullptr; }

bool needsLegacyProvider(std::string_view cipher)
{
    const CipherFamily *const family = familyOf(cipher);
    return family && family->isLegacy;
}

LibraryCipher::LibraryCipher(std::string_view name)
    // Naming one provider keeps the library from loading the default one, too.
    : m_standard(OSSL_PROVIDER_load(nullptr, "default"))
    , m_legacy(needsLegacyProvider(name) ? OSSL_PROVIDER_load(nullptr, "legacy") : nullptr)
    , m_cipher(EVP_CIPHER_fetch(nullptr, std::string(name).c_str(), nullptr))
{
    ERR_clear_error();
    if (m_cipher && !isPlain(m_cipher.get())) m_cipher.reset();
}
