#include "keychain/Secret.h"

#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

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

Secret Secret::fromText(QString &&text)
{
    Secret secret = fromText(std::as_const(text));
    wipe(text);
    return secret;
}

QString Secret::text() const
{
    if (!bytes().isValidUtf8()) return {};

    // Empty is a password too, and not the same as none.
    return m_bytes.empty() ? u""_s : QString::fromUtf8(bytes());
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
    if (text.isDetached()) wipeInPlace(text);
    text = QString();
}

void wipe(QStringList &texts)
{
    for (QString &text : texts)
        wipe(text);
    texts.clear();
}

void wipeInPlace(const QString &text)
{
    // What was removed from an end lies beside it still. A text without room of its own is a literal.
    const auto size = static_cast<std::size_t>(text.capacity()) * sizeof(QChar);
    if (size)
        explicit_bzero(const_cast<QChar *>(text.constData()) - text.data_ptr().freeSpaceAtBegin(), size);
}
