#pragma once

#include "CryptoHandles.h"

/// Prepares the decryption of a recipient's key by an RSA key as the algorithm says: RSAES-PKCS1-v1_5, or
/// RSAES-OAEP (RFC 8017, section 7) with its digests and its label. False: it is none of these, or its
/// settings make no sense.
[[nodiscard]] bool setPadding(EVP_PKEY_CTX *context, const X509_ALGOR &algorithm);
