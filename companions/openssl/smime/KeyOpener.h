#pragma once

#include "Crypto.h"
#include "Streams.h"

#include <optional>
#include <string_view>

class BerReader;

struct PrivateKey {
    CryptoHandle<EVP_PKEY> handle; ///< null: it could not be read
    std::string file;
};

struct Certificate {
    CryptoHandle<X509> handle; ///< null: it could not be read
    std::string file;
};

/// Reads a private key in PEM or DER. `passPhrase` opens one that is protected; nobody is ever asked for it.
/// Where the key can't be read, `problem` is a whole sentence that says why.
[[nodiscard]] PrivateKey readPrivateKey(const std::string &file, std::optional<std::string_view> passPhrase,
                                        std::string &problem);

/// Reads a certificate in PEM or DER; otherwise as readPrivateKey().
[[nodiscard]] Certificate readCertificate(const std::string &file, std::string &problem);

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

/// Opens, with a private key, what a message holds for its recipients.
///
/// A key that belongs to none of them passes for one that does once in some forty million times: what it
/// makes of a recipient's entry must look like a padded key of the right size. It says so at once when it
/// fails, which would help someone who may have messages of his own making decrypted by the million and sees
/// the answers; this program answers nobody but the owner of the key.
class KeyOpener {
public:
    /// Which recipients are tried: the one that the certificate names, or all.
    enum class Scope { Certificate, All };

    /// Both stay the caller's. `certificate` is null where none is known; then all are tried.
    KeyOpener(const PrivateKey &privateKey, const Certificate *certificate, Scope scope)
        : m_privateKey(privateKey), m_certificate(certificate), m_scope(scope)
    {
    }

    void offer(const Recipient &recipient);
    /// One that no RSA key opens: by agreeing on a key, or by a secret of both sides.
    enum class OtherRecipient { Agreement, Secret };
    void passOver(OtherRecipient recipient) { m_other = m_other.value_or(recipient); }

    /// The key of this size, in bytes, that a recipient's entry held; null: the private key opens none.
    [[nodiscard]] const base::WipedBytes *contentKey(std::size_t size) const
    {
        const auto found = std::ranges::find(m_opened, size, &base::WipedBytes::size);
        return found == m_opened.end() ? nullptr : &*found;
    }

    /// Why it opens none, said of the message.
    [[nodiscard]] std::string refusal() const;

private:
    [[nodiscard]] bool isRsa() const { return EVP_PKEY_is_a(m_privateKey.handle.get(), "RSA") == 1; }

    const PrivateKey &m_privateKey;
    const Certificate *m_certificate;
    Scope m_scope;
    bool m_hasMetCertificate = false;
    bool m_hasMetRsa = false;
    std::optional<OtherRecipient> m_other;
    std::vector<base::WipedBytes> m_opened;
};
