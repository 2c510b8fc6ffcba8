#include "EncryptedMessage.h"

#include "Base64.h"
#include "KeyFile.h"

#include <openssl/err.h>
#include <string_view>

namespace {

// As the system's tool writes it.
constexpr std::string_view header =
    "MIME-Version: 1.0\n"
    "Content-Disposition: attachment; filename=\"smime.p7m\"\n"
    "Content-Type: application/x-pkcs7-mime; smime-type=enveloped-data; name=\"smime.p7m\"\n"
    "Content-Transfer-Encoding: base64\n"
    "\n";

bool writeText(ByteSink &output, std::string_view text)
{
    return output.write({reinterpret_cast<const std::uint8_t *>(text.data()), text.size()});
}

/// Hands on what the library has written.
bool handOn(BIO &written, ByteSink &output)
{
    char *text = nullptr;
    const long size = BIO_get_mem_data(&written, &text);
    const bool isTaken = writeText(output, {text, static_cast<std::size_t>(size)});
    return BIO_reset(&written) > 0 && isTaken;
}

CryptoHandle<PKCS7> makeEnvelope(const std::vector<Certificate> &recipients, const EVP_CIPHER *cipher)
{
    const CryptoHandle<STACK_OF(X509)> stack(sk_X509_new_null());
    for (const Certificate &each : recipients)
        if (!stack || sk_X509_push(stack.get(), each.handle.get()) <= 0) return nullptr;
    return CryptoHandle<PKCS7>(PKCS7_encrypt(stack.get(), nullptr, cipher, PKCS7_BINARY | PKCS7_STREAM));
}

/// Writes the binary form. False: the input or the output failed.
bool writeEnvelope(PKCS7 &envelope, ByteSource &input, ByteSink &output)
{
    const CryptoHandle<BIO> written(BIO_new(BIO_s_mem()));
    BIO *chain = written ? BIO_new_PKCS7(written.get(), &envelope) : nullptr;
    if (!chain) return false;
    bool isWritten = true;
    for (Bytes piece; isWritten && !(piece = input.read()).empty();) {
        const int size = static_cast<int>(piece.size());
        isWritten = BIO_write(chain, piece.data(), size) == size && handOn(*written, output);
    }
    isWritten = isWritten && BIO_flush(chain) > 0 && handOn(*written, output);
    while (chain != written.get()) {
        BIO *const next = BIO_pop(chain);
        BIO_free(chain);
        chain = next;
    }
    return isWritten;
}

} // namespace

bool canReceive(const Certificate &certificate)
{
    const EVP_PKEY *const key = certificate.handle ? X509_get0_pubkey(certificate.handle.get()) : nullptr;
    return key && EVP_PKEY_get_base_id(key) == EVP_PKEY_RSA;
}

bool encryptMessage(ByteSource &input, MessageForm form, const std::vector<Certificate> &recipients,
                    const EVP_CIPHER *cipher, ByteSink &output, Fault &fault)
{
    const bool isText = form == MessageForm::Smime;
    Base64Sink text(output);
    base::BackgroundSink rear(isText ? static_cast<ByteSink &>(text) : output);
    const CryptoHandle<PKCS7> envelope = makeEnvelope(recipients, cipher);
    const bool isWritten = envelope && (!isText || writeText(output, header)) &&
                           writeEnvelope(*envelope, input, rear) && !fault.isSet() && rear.finish() &&
                           (!isText || (text.finish() && writeText(output, "\n")));
    ERR_clear_error();
    return isWritten || fault.report("cannot be encrypted: libcrypto refuses it");
}
