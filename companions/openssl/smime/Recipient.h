#pragma once

#include "CryptoHandles.h"

#include <cstdint>
#include <vector>

class BerReader;

/// One of those whom a message is for: KeyTransRecipientInfo of RFC 5652, section 6.2.1.
struct Recipient {
    /// What tells the recipient's certificate from others; null: it goes by its key's identifier.
    CryptoHandle<PKCS7_ISSUER_AND_SERIAL> name;
    std::vector<std::uint8_t> keyIdentifier;
    /// What encrypted the key; it is there in every one that was read.
    CryptoHandle<X509_ALGOR> algorithm;
    std::vector<std::uint8_t> encryptedKey;

    [[nodiscard]] bool isNamedBy(X509 &certificate) const;
};

/// Reads the next element, a recipient of the kind that goes by a certificate. False, and reported: it is
/// damaged.
[[nodiscard]] bool readRecipient(BerReader &ber, Recipient &recipient);
