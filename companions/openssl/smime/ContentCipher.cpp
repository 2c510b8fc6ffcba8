#include "ContentCipher.h"

#include "Fault.h"
#include "KeyOpener.h"

#include <openssl/err.h>
#include <openssl/objects.h>
#include <string>

ContentCipher::ContentCipher(ByteSink &output, Fault &fault) : m_fault(fault), m_sink(output) {}

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

    const bool isReady =
        m_sink.context() &&
        EVP_DecryptInit_ex(m_sink.context(), m_cipher.get(), nullptr, nullptr, nullptr) > 0 &&
        EVP_CIPHER_asn1_to_param(m_sink.context(), algorithm->parameter) > 0;
    ERR_clear_error();
    return isReady || m_fault.report("is damaged: the settings of its cipher make no sense");
}

std::size_t ContentCipher::keySize() const
{
    return static_cast<std::size_t>(EVP_CIPHER_CTX_get_key_length(m_sink.context()));
}

bool ContentCipher::start(const ContentKey &key)
{
    return EVP_DecryptInit_ex(m_sink.context(), nullptr, nullptr, key.bytes().data(), nullptr) > 0 ||
           m_fault.report("is encrypted with a key that its cipher does not take");
}

bool ContentCipher::decrypt(Bytes encrypted)
{
    return m_sink.write(encrypted) || m_fault.report("cannot be decrypted");
}

bool ContentCipher::finish()
{
    return m_sink.finish() || m_fault.report("is damaged: what it holds cannot be decrypted to its end");
}
