#pragma once

#include "CryptoHandles.h"
#include "EncryptedMessage.h"

#include <vector>

struct Certificate;

/// Whether the certificate's key is of the kind that encryptMessage() takes.
[[nodiscard]] bool canReceive(const Certificate &certificate);

/// Makes a message of EnvelopedData (RFC 2315, section 10) that the private key of each certificate opens,
/// from front to back, in memory that does not depend on its size. The content stays as it is, byte for byte.
/// False: `fault` is set, or `output` failed.
[[nodiscard]] bool encryptMessage(ByteSource &input, MessageForm form,
                                  const std::vector<Certificate> &recipients, const EVP_CIPHER *cipher,
                                  ByteSink &output, Fault &fault);
