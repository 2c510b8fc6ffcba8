#pragma once

#include <QString>

/// Why archives can't be encrypted with the password: the tool reads one that ends at a line break, takes
/// none with a zero byte, and cuts one that is too long. Empty where they can.
[[nodiscard]] QString whyBadPassword(const QString &password);

/// The same for the certificate in a file, looked at in this process: that of an RSA key, in PEM, is wanted.
struct CertificateJudgement {
    QString obstacle{}; ///< S/MIME can't encrypt to it
    QString concern{};  ///< it can, and is better not used
    QString key{};      ///< its kind and size, such as "RSA, 2048 bits"; empty where there is none
};
[[nodiscard]] CertificateJudgement judgeCertificate(const QString &path);
