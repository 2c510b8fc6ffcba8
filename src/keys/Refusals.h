#pragma once

#include <QString>

/// Why a chosen file is refused, and what to do. They look at the files, and may run the OpenSSL tool.
namespace quillorentLibrary {

/// For a file that is no readable PEM certificate; an empty path is one that nobody chose.
[[nodiscard]] QString whyNoCertificate(const QString &path);

/// For a private key that was not found to belong to the certificate; an empty `certificate` is none chosen.
[[nodiscard]] QString whyNoKey(const QString &certificate, const QString &key);

} // namespace quillorentLibrary
