#include "ContentCipher.h"

#include "Fault.h"
#include "KeyOpener.h"

#include <algorithm>
#include <openssl/err.h>
#include <openssl/objects.h>
#include <string>

namespace {

constexpr std::size_t bufferSize = 262144; // in bytes
constexpr std::size_t pieceSize = 65536;

} // namespace

ContentCipher::ContentCipher(ByteSink &output, Fault &fault)
    : m_output(output), m_fault(fault), m_context(EVP_CIPHER_CTX_new()), m_decrypted(bufferSize)
{
}

bool ContentCipher::setAlgorithm(Bytes encoding)
{
    const unsigned char *next = encoding.data();
    const CryptoHandle<X509_ALGOR> algorithm(
        d2i_X509_ALGOR(nullptr, &next, static_cast<long>(encoding.size())));
    if (!algorithm) return m_fault.report("is damaged: it names no cipher");

    const char *const name = OBJ_nid2ln(OBJ_obj2nid(algorithm->algorithm));
    m_cipher.reset(EVP_CIPHER_fetch(nullptr, name, nullptr));
    // Ciphers with a tag of authenticity have no place for it in such a message.
    const bool isUsable = m_cipher && !(EVP_CIPHER_get_flags(m_cipher.get()) & EVP_CIPH_FLAG_AEAD_CIPHER);
    if (!isUsable)
        return m_fault.report(std::string("is encrypted with a cipher that can't be used here: ") + name);

    const bool isReady = m_context &&
                         EVP_DecryptInit_ex(m_context.get(), m_cipher.get(), nullptr, nullptr, nullptr) > 0 &&
                         EVP_CIPHER_asn1_to_param(m_context.get(), algorithm->parameter) > 0;
    ERR_clear_error();
    return isReady || m_fault.report("is damaged: the settings of its cipher make no sense");
}

std::size_t ContentCipher::keySize() const
{
    return static_cast<std::size_t>(EVP_CIPHER_CTX_get_key_length(m_context.get()));
}

bool ContentCipher::start(const ContentKey &key)
{
    return EVP_DecryptInit_ex(m_context.get(), nullptr, nullptr, key.bytes().data(), nullptr) > 0 ||
           m_fault.report("is encrypted with a key that its cipher does not take");
}

bool ContentCipher::decrypt(Bytes encrypted)
{
    while (!encrypted.empty()) {
        const Bytes piece = encrypted.first(std::min(encrypted.size(), pieceSize));
        if (m_decrypted.size() - m_size < piece.size() + EVP_MAX_BLOCK_LENGTH && !flush()) return false;
        int written = 0;
        if (EVP_DecryptUpdate(m_context.get(), m_decrypted.data() + m_size, &written, piece.data(),
                              static_cast<int>(piece.size())) <= 0)
            return m_fault.report("cannot be decrypted");
        m_size += static_cast<std::size_t>(written);
        encrypted = encrypted.subspan(piece.size());
    }
    return true;
}

bool ContentCipher::finish()
{
    if (!flush()) return false;
    int written = 0;
    const bool isWhole = EVP_DecryptFinal_ex(m_context.get(), m_decrypted.data(), &written) > 0;
    ERR_clear_error();
    if (!isWhole) return m_fault.report("is damaged: what it holds cannot be decrypted to its end");
    m_size = static_cast<std::size_t>(written);
    return flush();
}

bool ContentCipher::flush()
{
    const bool isWritten = m_size == 0 || m_output.write({m_decrypted.data(), m_size});
    m_size = 0;
    return isWritten;
}
