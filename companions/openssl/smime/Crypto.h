#pragma once

#include "ByteReader.h"

#include <algorithm>
#include <memory>
#include <openssl/bio.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pkcs7.h>
#include <openssl/provider.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

/// Frees what libcrypto gave away.
struct CryptoDeleter {
    void operator()(BIO *bio) const { BIO_free(bio); }
    void operator()(EVP_CIPHER *cipher) const { EVP_CIPHER_free(cipher); }
    void operator()(EVP_CIPHER_CTX *context) const { EVP_CIPHER_CTX_free(context); }
    void operator()(EVP_MD *digest) const { EVP_MD_free(digest); }
    void operator()(EVP_PKEY *key) const { EVP_PKEY_free(key); }
    void operator()(EVP_PKEY_CTX *context) const { EVP_PKEY_CTX_free(context); }
    void operator()(OSSL_PROVIDER *provider) const { OSSL_PROVIDER_unload(provider); }
    void operator()(PKCS7 *message) const { PKCS7_free(message); }
    void operator()(PKCS7_ISSUER_AND_SERIAL *name) const { PKCS7_ISSUER_AND_SERIAL_free(name); }
    void operator()(RSA_OAEP_PARAMS *settings) const { RSA_OAEP_PARAMS_free(settings); }
    void operator()(STACK_OF(X509) * certificates) const { sk_X509_free(certificates); }
    void operator()(X509 *certificate) const { X509_free(certificate); }
    void operator()(X509_ALGOR *algorithm) const { X509_ALGOR_free(algorithm); }
};

template <typename Type>
using CryptoHandle = std::unique_ptr<Type, CryptoDeleter>;

/// Encrypts or decrypts what is written to it, and hands it on.
class CipherSink final : public ByteSink {
public:
    explicit CipherSink(ByteSink &next)
        : m_next(next), m_context(EVP_CIPHER_CTX_new()), m_bytes(pieceSize + EVP_MAX_BLOCK_LENGTH)
    {
    }

    /// To be set up before anything is written; null: there is no memory for it.
    [[nodiscard]] EVP_CIPHER_CTX *context() const { return m_context.get(); }

    /// False: the cipher refuses it, or the other sink failed.
    [[nodiscard]] bool write(Bytes bytes) override
    {
        while (!bytes.empty()) {
            const Bytes piece = bytes.first(std::min(bytes.size(), pieceSize));
            int size = 0;
            if (EVP_CipherUpdate(m_context.get(), m_bytes.data(), &size, piece.data(),
                                 static_cast<int>(piece.size())) <= 0 ||
                !handOn(size))
                return false;
            bytes = bytes.subspan(piece.size());
        }
        return true;
    }

    /// Hands on the last block. False too where it can't be decrypted: its padding is wrong, or it isn't
    /// whole.
    [[nodiscard]] bool finish()
    {
        int size = 0;
        const bool isWhole = EVP_CipherFinal_ex(m_context.get(), m_bytes.data(), &size) > 0;
        ERR_clear_error();
        return isWhole && handOn(size);
    }

private:
    static constexpr std::size_t pieceSize = 262'144; // in bytes

    bool handOn(int size)
    {
        return size == 0 || m_next.write({m_bytes.data(), static_cast<std::size_t>(size)});
    }

    ByteSink &m_next;
    CryptoHandle<EVP_CIPHER_CTX> m_context;
    base::WipedBytes m_bytes;
};
