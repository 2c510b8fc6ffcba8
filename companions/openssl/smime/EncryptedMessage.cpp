#include "EncryptedMessage.h"

#include "Base64.h"
#include "BerReader.h"
#include "Crypto.h"
#include "KeyOpener.h"

#include <array>
#include <cctype>
#include <openssl/objects.h>

namespace {

// In bytes. Mail servers take no longer headers either.
constexpr std::size_t maximumHeader = 65536;

bool isBlank(char letter) { return letter == ' ' || letter == '\t'; }

/// Without blanks around it, in lower case (US-ASCII).
std::string plain(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return result;
}

/// Reads the header of an S/MIME message (RFC 8551, section 3.2) and the empty line after it. What returns
/// false has reported that it is none, or that what follows is no base64 text.
class HeaderReader {
public:
    HeaderReader(ByteReader &text, Fault &fault) : m_text(text), m_fault(fault) {}

    bool read()
    {
        std::string field;
        std::string line;
        while (readLine(line)) {
            // A line that begins with a blank goes on with the field before it.
            if (!line.empty() && isBlank(line.front()) && !field.empty()) {
                field += line;
                continue;
            }
            if (!field.empty() && !take(field)) return false;
            if (line.empty()) return m_isEnveloped || isNoMessage();
            field.swap(line);
        }
        return false;
    }

private:
    /// The next line without its end.
    bool readLine(std::string &line)
    {
        line.clear();
        while (const auto byte = m_text.get()) {
            if (m_text.position() > maximumHeader) return isNoMessage();
            if (*byte == '\n') {
                if (line.ends_with('\r')) line.pop_back();
                return true;
            }
            line += static_cast<char>(*byte);
        }
        return m_text.position() == 0 ? m_fault.report("is empty") : m_fault.reportCutShort();
    }

    bool take(std::string_view field)
    {
        const std::size_t colon = field.find(':');
        if (colon == std::string_view::npos) return isNoMessage();
        const std::string name = plain(field.substr(0, colon));
        const std::string_view rest = field.substr(colon + 1);
        const std::string value = plain(rest.substr(0, rest.find(';'))); // without parameters
        if (name == "content-type")
            m_isEnveloped = value == "application/x-pkcs7-mime" || value == "application/pkcs7-mime";
        if (name == "content-transfer-encoding" && value != "base64")
            return m_fault.report("is encoded as \"" + value + "\", not as base64");
        return true;
    }

    bool isNoMessage() { return m_fault.report("is no S/MIME message"); }

    ByteReader &m_text;
    Fault &m_fault;
    bool m_isEnveloped = false;
};

constexpr std::size_t maximumIdentifier = 64;   // in bytes, for an object identifier
constexpr std::size_t maximumAlgorithm = 16384; // in bytes, with its parameters

// 1.2.840.113549.1.7.3 (enveloped data), encoded
constexpr std::array<std::uint8_t, 11> envelopedData{0x06, 0x09, 0x2a, 0x86, 0x48, 0x86,
                                                     0xf7, 0x0d, 0x01, 0x07, 0x03};

// 1.2.840.113549.1.9.16.1.23 (authenticated enveloped data), encoded
constexpr std::array<std::uint8_t, 13> authenticatedData{0x06, 0x0b, 0x2a, 0x86, 0x48, 0x86, 0xf7,
                                                         0x0d, 0x01, 0x09, 0x10, 0x01, 0x17};

/// Reads ContentInfo and what is in it, down to the content.
class EnvelopeReader {
public:
    EnvelopeReader(ByteReader &bytes, KeyOpener &keys, ByteSink &output, Fault &fault)
        : m_ber(bytes, fault), m_keys(keys), m_sink(output), m_fault(fault)
    {
    }

    bool read()
    {
        return m_ber.enter(ber::sequence) && readType() && m_ber.enter(explicitContent) && readEnvelope() &&
               m_ber.leave() && m_ber.leave();
    }

private:
    static constexpr std::uint8_t explicitContent = ber::context(0) | ber::constructed;
    static constexpr std::uint8_t originator = ber::context(0) | ber::constructed;
    static constexpr std::uint8_t keyAgreement = ber::context(1) | ber::constructed;
    static constexpr std::uint8_t unprotectedAttributes = ber::context(1) | ber::constructed;

    bool readType()
    {
        std::vector<std::uint8_t> type;
        if (!m_ber.collect(type, maximumIdentifier)) return false;
        if (std::ranges::equal(type, authenticatedData))
            return m_fault.report("is encrypted with a cipher that seals it, such as AES-GCM, which can't be "
                                  "opened here: use \"openssl cms -decrypt\"");
        return std::ranges::equal(type, envelopedData) ||
               m_fault.report("is a message, but not an encrypted one");
    }

    bool readEnvelope()
    {
        return m_ber.enter(ber::sequence) && m_ber.skipNumber() && skipAny(originator) && readRecipients() &&
               readContent() && skipAny(unprotectedAttributes) && m_ber.leave();
    }

    bool skipAny(std::uint8_t identifier) { return m_ber.peek() != identifier || m_ber.skip(); }

    bool readRecipients()
    {
        if (!m_ber.enter(ber::set)) return false;
        while (const std::uint8_t kind = m_ber.peek()) {
            // The other kinds agree on a key, or have a password, and go by no certificate of RSA.
            if (kind != ber::sequence) {
                m_keys.passOver(kind == keyAgreement ? KeyOpener::OtherRecipient::Agreement
                                                     : KeyOpener::OtherRecipient::Secret);
                if (!m_ber.skip()) return false;
                continue;
            }
            Recipient recipient;
            if (!readRecipient(m_ber, recipient)) return false;
            m_keys.offer(recipient);
        }
        return m_ber.leave();
    }

    bool readContent()
    {
        std::vector<std::uint8_t> algorithm;
        return m_ber.enter(ber::sequence) && m_ber.skip() && m_ber.collect(algorithm, maximumAlgorithm) &&
               setAlgorithm(algorithm) && setKey() &&
               m_ber.readOctets(ber::context(0), [this](Bytes piece) { return decrypt(piece); }) &&
               m_ber.leave() &&
               (m_sink.finish() ||
                m_fault.report("is damaged: what it holds cannot be decrypted to its end"));
    }

    /// From an encoded AlgorithmIdentifier with the initialisation vector.
    bool setAlgorithm(Bytes encoding)
    {
        const unsigned char *next = encoding.data();
        const CryptoHandle<X509_ALGOR> algorithm(
            d2i_X509_ALGOR(nullptr, &next, static_cast<long>(encoding.size())));
        if (!algorithm) return m_fault.report("is damaged: it names no cipher");

        const char *const name = OBJ_nid2ln(OBJ_obj2nid(algorithm->algorithm));
        m_cipher.reset(EVP_CIPHER_fetch(nullptr, name, nullptr));
        // Ciphers with a tag of authenticity have no place for it in such a message.
        const bool isUsable = m_cipher && !(EVP_CIPHER_get_flags(m_cipher.get()) & EVP_CIPH_FLAG_AEAD_CIPHER);
        if (!isUsable)
            return m_fault.report(std::string("is encrypted with a cipher that can't be used here: ") + name);

        const bool isReady =
            m_sink.context() &&
            EVP_DecryptInit_ex(m_sink.context(), m_cipher.get(), nullptr, nullptr, nullptr) > 0 &&
            EVP_CIPHER_asn1_to_param(m_sink.context(), algorithm->parameter) > 0;
        ERR_clear_error();
        return isReady || m_fault.report("is damaged: the settings of its cipher make no sense");
    }

    bool setKey()
    {
        const int size = EVP_CIPHER_CTX_get_key_length(m_sink.context());
        const base::WipedBytes *const key = m_keys.contentKey(static_cast<std::size_t>(size));
        if (!key) return m_fault.report(m_keys.refusal());
        return EVP_DecryptInit_ex(m_sink.context(), nullptr, nullptr, key->data(), nullptr) > 0 ||
               m_fault.report("is encrypted with a key that its cipher does not take");
    }

    bool decrypt(Bytes piece) { return m_sink.write(piece) || m_fault.report("cannot be decrypted"); }

    BerReader m_ber;
    KeyOpener &m_keys;
    CryptoHandle<EVP_CIPHER> m_cipher;
    CipherSink m_sink;
    Fault &m_fault;
};

bool isOver(ByteReader &bytes, Fault &fault)
{
    return bytes.available().empty() ? !fault.isSet() : fault.reportRubbish();
}

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

bool decryptMessage(ByteSource &input, MessageForm form, KeyOpener &keys, ByteSink &output, Fault &fault)
{
    ByteReader outer(input);
    if (form == MessageForm::Der)
        return EnvelopeReader(outer, keys, output, fault).read() && isOver(outer, fault);

    if (!HeaderReader(outer, fault).read()) return false;
    Base64Source base64(outer, fault);
    ByteReader inner(base64);
    if (!EnvelopeReader(inner, keys, output, fault).read()) return false;
    base64.expectEnd();
    return isOver(inner, fault);
}

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
