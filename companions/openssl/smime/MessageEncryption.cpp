#include "MessageEncryption.h"

#include "BackgroundSink.h"
#include "Base64Sink.h"
#include "Fault.h"
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

int writeToSink(BIO *bio, const char *data, int size)
{
    auto &sink = *static_cast<ByteSink *>(BIO_get_data(bio));
    return size >= 0 && writeText(sink, {data, static_cast<std::size_t>(size)}) ? size : -1;
}

long control(BIO *, int command, long, void *) { return command == BIO_CTRL_FLUSH ? 1 : 0; }

CryptoHandle<BIO_METHOD> makeSinkMethod()
{
    CryptoHandle<BIO_METHOD> method(BIO_meth_new(BIO_get_new_index() | BIO_TYPE_SOURCE_SINK, "sink"));
    if (method) {
        BIO_meth_set_write(method.get(), writeToSink);
        BIO_meth_set_ctrl(method.get(), control);
    }
    return method;
}

/// The library's end of a sink; null: there is no memory for it.
CryptoHandle<BIO> openSink(ByteSink &sink)
{
    static const CryptoHandle<BIO_METHOD> method = makeSinkMethod();
    CryptoHandle<BIO> bio(method ? BIO_new(method.get()) : nullptr);
    if (!bio) return bio;
    BIO_set_data(bio.get(), &sink);
    BIO_set_init(bio.get(), 1);
    return bio;
}

CryptoHandle<PKCS7> makeEnvelope(const std::vector<Certificate> &recipients, const EVP_CIPHER *cipher)
{
    const CryptoHandle<STACK_OF(X509)> stack(sk_X509_new_null());
    for (const Certificate &each : recipients)
        if (!stack || sk_X509_push(stack.get(), each.handle.get()) <= 0) return nullptr;
    return CryptoHandle<PKCS7>(PKCS7_encrypt(stack.get(), nullptr, cipher, PKCS7_BINARY | PKCS7_STREAM));
}

/// Writes the binary form. False: the input or the output failed.
bool writeEnvelope(PKCS7 &envelope, ByteSource &input, BIO &output)
{
    BIO *chain = BIO_new_PKCS7(&output, &envelope);
    if (!chain) return false;
    bool isWritten = true;
    for (Bytes piece; isWritten && !(piece = input.read()).empty();) {
        const int size = static_cast<int>(piece.size());
        isWritten = BIO_write(chain, piece.data(), size) == size;
    }
    isWritten = isWritten && BIO_flush(chain) > 0;
    while (chain != &output) {
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
    BackgroundSink rear(isText ? static_cast<ByteSink &>(text) : output);
    const CryptoHandle<BIO> sink = openSink(rear);
    const CryptoHandle<PKCS7> envelope = makeEnvelope(recipients, cipher);
    const bool isWritten = sink && envelope && (!isText || writeText(output, header)) &&
                           writeEnvelope(*envelope, input, *sink) && !fault.isSet() && rear.finish() &&
                           (!isText || (text.finish() && writeText(output, "\n")));
    ERR_clear_error();
    return isWritten || fault.report("cannot be encrypted: libcrypto refuses it");
}
