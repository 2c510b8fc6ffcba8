#include "KeyPadding.h"

#include <openssl/objects.h>
#include <openssl/rsa.h>

namespace {

int nidOf(const X509_ALGOR &algorithm) { return OBJ_obj2nid(algorithm.algorithm); }

/// None named: SHA-1, RFC 8017, A.2.1. Null: libcrypto does not know it.
const EVP_MD *digestOf(const X509_ALGOR *algorithm)
{
    return algorithm ? EVP_get_digestbyobj(algorithm->algorithm) : EVP_sha1();
}

/// The digest of the mask; the only function for masks is MGF1.
const EVP_MD *maskDigestOf(const RSA_OAEP_PARAMS &settings)
{
    if (!settings.maskGenFunc) return digestOf(nullptr);
    if (nidOf(*settings.maskGenFunc) != NID_mgf1) return nullptr;
    const CryptoHandle<X509_ALGOR> digest(static_cast<X509_ALGOR *>(
        ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(X509_ALGOR), settings.maskGenFunc->parameter)));
    return digest ? digestOf(digest.get()) : nullptr;
}

bool setLabel(EVP_PKEY_CTX *context, const X509_ALGOR *source)
{
    if (!source) return true;
    const ASN1_TYPE *const value = source->parameter;
    if (nidOf(*source) != NID_pSpecified || !value || value->type != V_ASN1_OCTET_STRING) return false;
    const ASN1_OCTET_STRING *const octets = value->value.octet_string;
    const int size = ASN1_STRING_length(octets);
    if (size == 0) return true;
    void *const label = OPENSSL_memdup(ASN1_STRING_get0_data(octets), static_cast<std::size_t>(size));
    if (EVP_PKEY_CTX_set0_rsa_oaep_label(context, label, size) > 0) return true; // it is the context's now
    OPENSSL_free(label);
    return false;
}

bool setOaep(EVP_PKEY_CTX *context, const X509_ALGOR &algorithm)
{
    const CryptoHandle<RSA_OAEP_PARAMS> settings(static_cast<RSA_OAEP_PARAMS *>(
        ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(RSA_OAEP_PARAMS), algorithm.parameter)));
    if (!settings) return false;
    const EVP_MD *const digest = digestOf(settings->hashFunc);
    const EVP_MD *const maskDigest = maskDigestOf(*settings);
    return digest && maskDigest && EVP_PKEY_CTX_set_rsa_padding(context, RSA_PKCS1_OAEP_PADDING) > 0 &&
           EVP_PKEY_CTX_set_rsa_oaep_md(context, digest) > 0 &&
           EVP_PKEY_CTX_set_rsa_mgf1_md(context, maskDigest) > 0 && setLabel(context, settings->pSourceFunc);
}

} // namespace

bool setPadding(EVP_PKEY_CTX *context, const X509_ALGOR &algorithm)
{
    if (nidOf(algorithm) == NID_rsaesOaep) return setOaep(context, algorithm);
    if (nidOf(algorithm) != NID_rsaEncryption) return false;
    // By itself libcrypto, from 3.2 on, hands out a random key where the private key is the wrong one.
    EVP_PKEY_CTX_ctrl_str(context, "rsa_pkcs1_implicit_rejection", "0");
    return true;
}
