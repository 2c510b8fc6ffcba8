#include "Recipient.h"

#include "BerReader.h"

#include <algorithm>
#include <openssl/x509v3.h>

namespace {

// In bytes, far more than any of these is: an RSA key of 16384 bits makes 2048.
constexpr std::size_t maximumSize = 16384;

bool readIdentifier(BerReader &ber, Recipient &recipient)
{
    if (ber.peek() == ber::context(0))
        return ber.readOctets(ber::context(0), recipient.keyIdentifier, maximumSize);
    std::vector<std::uint8_t> encoding;
    if (!ber.collect(encoding, maximumSize)) return false;
    const unsigned char *next = encoding.data();
    recipient.name.reset(d2i_PKCS7_ISSUER_AND_SERIAL(nullptr, &next, static_cast<long>(encoding.size())));
    return recipient.name || ber.reportDamage();
}

bool readAlgorithm(BerReader &ber, Recipient &recipient)
{
    std::vector<std::uint8_t> encoding;
    if (!ber.collect(encoding, maximumSize)) return false;
    const unsigned char *next = encoding.data();
    recipient.algorithm.reset(d2i_X509_ALGOR(nullptr, &next, static_cast<long>(encoding.size())));
    return recipient.algorithm || ber.reportDamage();
}

} // namespace

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
    return ber.enter(ber::sequence) && ber.skipNumber() && readIdentifier(ber, recipient) &&
           readAlgorithm(ber, recipient) &&
           ber.readOctets(ber::octetString, recipient.encryptedKey, maximumSize) && ber.leave();
}
