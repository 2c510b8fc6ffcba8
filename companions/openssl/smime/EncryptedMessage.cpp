#include "EncryptedMessage.h"

#include "Base64Source.h"
#include "BerReader.h"
#include "ContentCipher.h"
#include "Fault.h"
#include "KeyOpener.h"
#include "MimeHeader.h"
#include "Recipient.h"

#include <algorithm>
#include <array>

namespace {

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
        : m_ber(bytes, fault), m_keys(keys), m_cipher(output, fault), m_fault(fault)
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
        if (!m_ber.enter(ber::sequence) || !m_ber.skip() || !m_ber.collect(algorithm, maximumAlgorithm) ||
            !m_cipher.setAlgorithm(algorithm))
            return false;
        const ContentKey *const key = m_keys.contentKey(m_cipher.keySize());
        if (!key) return m_fault.report(m_keys.refusal());
        return m_cipher.start(*key) &&
               m_ber.readOctets(ber::context(0), [this](Bytes piece) { return m_cipher.decrypt(piece); }) &&
               m_ber.leave() && m_cipher.finish();
    }

    BerReader m_ber;
    KeyOpener &m_keys;
    ContentCipher m_cipher;
    Fault &m_fault;
};

bool isOver(ByteReader &bytes, Fault &fault)
{
    return bytes.available().empty() ? !fault.isSet() : fault.reportRubbish();
}

} // namespace

bool decryptMessage(ByteSource &input, MessageForm form, KeyOpener &keys, ByteSink &output, Fault &fault)
{
    ByteReader outer(input);
    if (form == MessageForm::Der)
        return EnvelopeReader(outer, keys, output, fault).read() && isOver(outer, fault);

    if (!readMimeHeader(outer, fault)) return false;
    Base64Source base64(outer, fault);
    ByteReader inner(base64);
    if (!EnvelopeReader(inner, keys, output, fault).read()) return false;
    base64.expectEnd();
    return isOver(inner, fault);
}
