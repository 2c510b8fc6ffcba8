#pragma once

#include <QString>
#include <optional>

/// What the OpenSSL tool says of certificates and RSA keys, see
/// https://docs.openssl.org/master/man1/openssl-x509/. Every call runs the tool and blocks until it has
/// ended.
namespace quillorentLibrary {

/// The certificate (PEM) as text, or what the tool complains of; empty where that is not UTF-8.
[[nodiscard]] QString showCert(const QString &certificate);

/// The key as text, followed by the key itself in clear; none where the output is not UTF-8.
[[nodiscard]] std::optional<QString> showKey(const QString &key);

/// Whether the text of the certificate contains `text`.
[[nodiscard]] bool testCert(const QString &certificate, const QString &text);

/// Whether the private key belongs to the certificate. An encrypted key, and one that is not RSA, never does.
[[nodiscard]] bool testKey(const QString &certificate, const QString &key);

/// What stands between the first pair of public key markers: base64 with its line breaks. None where there is
/// no such block; the rest of the text where the block has no end.
[[nodiscard]] std::optional<QString> trimPubKey(const std::optional<QString> &text);

} // namespace quillorentLibrary
