#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct Certificate;
struct PrivateKey;
struct Recipient;

/// The key of a message's content, wiped at the end.
class ContentKey {
public:
    explicit ContentKey(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes)) {}
    ~ContentKey();
    ContentKey(ContentKey &&) noexcept = default;
    ContentKey(const ContentKey &) = delete;
    ContentKey &operator=(const ContentKey &) = delete;

    [[nodiscard]] const std::vector<std::uint8_t> &bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
};

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
    [[nodiscard]] const ContentKey *contentKey(std::size_t size) const;
    /// Why it opens none, said of the message.
    [[nodiscard]] std::string refusal() const;

private:
    [[nodiscard]] bool isRsa() const;

    const PrivateKey &m_privateKey;
    const Certificate *m_certificate;
    Scope m_scope;
    bool m_hasMetCertificate = false;
    bool m_hasMetRsa = false;
    std::optional<OtherRecipient> m_other;
    std::vector<ContentKey> m_opened;
};
