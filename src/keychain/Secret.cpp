#include "keychain/Secret.h"

#include <cstring>
#include <utility>

Secret::Secret(QByteArrayView bytes) : m_bytes(bytes.begin(), bytes.end()) {}

Secret::~Secret() { wipeBytes(); }

Secret::Secret(Secret &&other) noexcept : m_bytes(std::exchange(other.m_bytes, {})) {}

Secret &Secret::operator=(Secret &&other) noexcept
{
    if (this == &other) return *this;
    wipeBytes();
    m_bytes = std::exchange(other.m_bytes, {});
    return *this;
}

Secret Secret::fromText(const QString &text)
{
    QByteArray utf8 = text.toUtf8();
    Secret secret(utf8);
    explicit_bzero(utf8.data(), static_cast<std::size_t>(utf8.size()));
    return secret;
}

QString Secret::text() const
{
    if (!bytes().isValidUtf8()) return {};

    // Empty is a password too, and not the same as none.
    return m_bytes.empty() ? u""_qs : QString::fromUtf8(bytes());
}

QByteArrayView Secret::bytes() const { return {m_bytes.data(), static_cast<qsizetype>(m_bytes.size())}; }

void Secret::wipeBytes()
{
    if (!m_bytes.empty()) explicit_bzero(m_bytes.data(), m_bytes.size());
    m_bytes.clear();
}

void wipe(QString &text)
{
    // A literal's characters count as shared.
    if (text.isDetached()) explicit_bzero(text.data(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
    text = QString();
}
