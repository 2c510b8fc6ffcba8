#pragma once

#include <memory>
#include <openssl/bio.h>
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
