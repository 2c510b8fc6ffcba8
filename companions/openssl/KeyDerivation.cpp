#include "KeyDerivation.h"

#include "WipedBytes.h"

std::vector<std::string> derivationOptions(const KeyDerivation &derivation, bool withDigest)
{
    std::vector<std::string> options;
    if (derivation.iterations > 0) options = {"-pbkdf2", "-iter", std::to_string(derivation.iterations)};
    if (withDigest) options.insert(options.end(), {"-md", std::string(derivation.digest)});
    return options;
}

CryptoHandle<EVP_MD> fetchDigest(std::string_view name)
{
    return CryptoHandle<EVP_MD>(EVP_MD_fetch(nullptr, std::string(name).c_str(), nullptr));
}

KeyMaterial::~KeyMaterial() { base::wipe(m_bytes.data(), m_bytes.size()); }

bool KeyMaterial::derive(const EVP_CIPHER *cipher, const KeyDerivation &derivation, std::string_view password,
                         Bytes salt)
{
    const CryptoHandle<EVP_MD> digest = fetchDigest(derivation.digest);
    if (!digest) return false;
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
