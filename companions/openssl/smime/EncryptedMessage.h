#pragma once

#include "ByteReader.h"
#include "Crypto.h"

class KeyOpener;
struct Certificate;

enum class MessageForm {
    Smime, ///< a MIME header and base64 text: RFC 8551, section 3.3
    Der,   ///< the binary ContentInfo by itself, in DER or BER
};

/// Decrypts a message of EnvelopedData (RFC 5652, section 6, and RFC 2315, section 10) from front to back, in
/// memory that does not depend on its size, and checks that it is whole and that nothing follows. What
/// `output` got is worth nothing before this has returned true. False: `fault` is set, or `output` failed.
[[nodiscard]] bool decryptMessage(ByteSource &input, MessageForm form, KeyOpener &keys, ByteSink &output,
                                  Fault &fault);

/// Whether the certificate's key is of the kind that encryptMessage() takes.
[[nodiscard]] bool canReceive(const Certificate &certificate);

/// Makes a message of EnvelopedData (RFC 2315, section 10) that the private key of each certificate opens,
/// from front to back, in memory that does not depend on its size. The content stays as it is, byte for byte.
/// False: `fault` is set, or `output` failed.
[[nodiscard]] bool encryptMessage(ByteSource &input, MessageForm form,
                                  const std::vector<Certificate> &recipients, const EVP_CIPHER *cipher,
                                  ByteSink &output, Fault &fault);
