#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

/// What a person must know of a certificate before they encrypt with it.
struct CertificateSummary {
    QString subject{}; ///< distinguished name, the most special part first, such as "CN=Anna,O=Home"
    QString key{};     ///< its kind and size, such as "RSA, 2048 bits"
    QDateTime notBefore{};
    QDateTime notAfter{};
};

namespace quillorentLibrary {

/// Asks the OpenSSL tool for the first certificate of a PEM file; none where there is none. Blocks.
[[nodiscard]] std::optional<CertificateSummary> readCertificateSummary(const QString &certificate);

/// Subject, key and dates, in one line.
[[nodiscard]] QString describeCertificate(const CertificateSummary &summary);

/// A warning where it is not valid at `now`, or ends within 30 days of it; empty otherwise.
[[nodiscard]] QString validityWarning(const CertificateSummary &summary, const QDateTime &now);

} // namespace quillorentLibrary
