#include "KeyOpener.h"

#include "BerReader.h"

#include <cerrno>
#include <openssl/err.h>
#include <openssl/objects.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

using namespace std::string_literals;

namespace {

struct PassPhraseRequest {
    std::optional<std::string_view> passPhrase;
    bool isMade = false;
};

/// Gives libcrypto the pass phrase when it comes upon a key that needs one.
int answer(char *buffer, int size, int, void *data)
{
    auto &request = *static_cast<PassPhraseRequest *>(data);
    request.isMade = true;
    if (!request.passPhrase || request.passPhrase->size() > static_cast<std::size_t>(size)) return -1;
    std::ranges::copy(*request.passPhrase, buffer);
    return static_cast<int>(request.passPhrase->size());
}

CryptoHandle<BIO> openFile(const std::string &file, std::string &problem)
{
    errno = 0;
    CryptoHandle<BIO> opened(BIO_new_file(file.c_str(), "rb"));
    if (!opened) problem = "cannot open " + file + ": " + std::generic_category().message(errno);
    ERR_clear_error();
    return opened;
}

CryptoHandle<EVP_PKEY> decode(BIO *bio, PassPhraseRequest &request)
{
    CryptoHandle<EVP_PKEY> key(PEM_read_bio_PrivateKey(bio, nullptr, answer, &request));
    if (key || request.isMade || BIO_seek(bio, 0) != 0) return key;
    key.reset(d2i_PrivateKey_bio(bio, nullptr));
    if (key || BIO_seek(bio, 0) != 0) return key;
    key.reset(d2i_PKCS8PrivateKey_bio(bio, nullptr, answer, &request));
    return key;
}

// In bytes, far more than any of these is: an RSA key of 16384 bits makes 2048.
constexpr std::size_t maximumField = 16384;

/// The next element; null, and reported, where it is none of that kind.
template <typename Type>
Type *decodeNext(BerReader &ber, Type *(*decode)(Type **, const unsigned char **, long))
{
    std::vector<std::uint8_t> encoding;
    if (!ber.collect(encoding, maximumField)) return nullptr;
    const unsigned char *next = encoding.data();
    Type *const decoded = decode(nullptr, &next, static_cast<long>(encoding.size()));
    if (!decoded) ber.reportDamage();
    return decoded;
}

bool readIdentifier(BerReader &ber, Recipient &recipient)
{
    if (ber.peek() == ber::context(0))
        return ber.readOctets(ber::context(0), recipient.keyIdentifier, maximumField);
    recipient.name.reset(decodeNext<PKCS7_ISSUER_AND_SERIAL>(ber, d2i_PKCS7_ISSUER_AND_SERIAL));
    return recipient.name != nullptr;
}

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

/// Prepares the decryption of a recipient's key by an RSA key as the algorithm says: RSAES-PKCS1-v1_5, or
/// RSAES-OAEP (RFC 8017, section 7) with its digests and its label. False: it is none of these, or its
/// settings make no sense.
bool setPadding(EVP_PKEY_CTX *context, const X509_ALGOR &algorithm)
{
    if (nidOf(algorithm) == NID_rsaesOaep) return setOaep(context, algorithm);
    if (nidOf(algorithm) != NID_rsaEncryption) return false;
    // By itself libcrypto, from 3.2 on, hands out a random key where the private key is the wrong one.
    EVP_PKEY_CTX_ctrl_str(context, "rsa_pkcs1_implicit_rejection", "0");
    return true;
}

// A message may come with any number of recipients; that the key opens more than one entry is rare.
constexpr std::size_t maximumOpened = 16;

/// Empty where the private key doesn't open it.
base::WipedBytes open(EVP_PKEY &privateKey, const Recipient &recipient)
{
    const CryptoHandle<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new(&privateKey, nullptr));
    const bool isReady = context && EVP_PKEY_decrypt_init(context.get()) > 0 &&
                         setPadding(context.get(), *recipient.algorithm);
    if (!isReady) return {};

    std::size_t size = 0;
    const std::vector<std::uint8_t> &from = recipient.encryptedKey;
    if (EVP_PKEY_decrypt(context.get(), nullptr, &size, from.data(), from.size()) <= 0) return {};
    base::WipedBytes room(size);
    if (EVP_PKEY_decrypt(context.get(), room.data(), &size, from.data(), from.size()) <= 0) return {};
    base::WipedBytes key(size);
    std::copy_n(room.data(), size, key.data());
    return key;
}

} // namespace

PrivateKey readPrivateKey(const std::string &file, std::optional<std::string_view> passPhrase,
                          std::string &problem)
{
    PrivateKey key{nullptr, file};
    const CryptoHandle<BIO> bio = openFile(file, problem);
    if (!bio) return key;
    PassPhraseRequest request{passPhrase};
    key.handle = decode(bio.get(), request);
    ERR_clear_error();
    if (key.handle) return key;
    if (!request.isMade)
        problem = file + " holds no private key";
    else if (passPhrase)
        problem = "the pass phrase does not open the private key " + file;
    else
        problem = "the private key " + file +
                  " is protected by a pass phrase: use a copy of the key that has none, or -passin";
    return key;
}

Certificate readCertificate(const std::string &file, std::string &problem)
{
    Certificate certificate{nullptr, file};
    const CryptoHandle<BIO> bio = openFile(file, problem);
    if (!bio) return certificate;
    certificate.handle.reset(PEM_read_bio_X509_AUX(bio.get(), nullptr, nullptr, nullptr));
    if (!certificate.handle && BIO_seek(bio.get(), 0) == 0)
        certificate.handle.reset(d2i_X509_bio(bio.get(), nullptr));
    ERR_clear_error();
    if (!certificate.handle) problem = file + " holds no certificate";
    return certificate;
}

bool Recipient::isNamedBy(X509 &certificate) const
{
    if (name)
        return X509_NAME_cmp(name->issuer, X509_get_issuer_name(&certificate)) == 0 &&
               ASN1_INTEGER_cmp(name->serial, X509_get0_serialNumber(&certificate)) == 0;
    const ASN1_OCTET_STRING *const own = X509_get0_subject_key_id(&certificate);
    if (!own) return false;
    const Bytes ownBytes(ASN1_STRING_get0_data(own), static_cast<std::size_t>(ASN1_STRING_length(own)));
    return std::ranges::equal(keyIdentifier, ownBytes);
}

bool readRecipient(BerReader &ber, Recipient &recipient)
{
    if (!ber.enter(ber::sequence) || !ber.skipNumber() || !readIdentifier(ber, recipient)) return false;
    recipient.algorithm.reset(decodeNext<X509_ALGOR>(ber, d2i_X509_ALGOR));
    return recipient.algorithm && ber.readOctets(ber::octetString, recipient.encryptedKey, maximumField) &&
           ber.leave();
}

void KeyOpener::offer(const Recipient &recipient)
{
    m_hasMetRsa = true;
    const bool isNamed = m_certificate && recipient.isNamedBy(*m_certificate->handle);
    m_hasMetCertificate = m_hasMetCertificate || isNamed;
    if (m_certificate && m_scope == Scope::Certificate && !isNamed) return;

    if (!isRsa() || m_opened.size() == maximumOpened) return;
    base::WipedBytes opened = open(*m_privateKey.handle, recipient);
    if (opened.size() > 0) m_opened.push_back(std::move(opened));
    ERR_clear_error();
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
