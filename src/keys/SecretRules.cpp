#include "keys/SecretRules.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(keys)
};

constexpr qsizetype longestPassword = 1023;         // bytes; the tool's buffer
constexpr qint64 largestFile = qint64{1024} * 1024; // a certificate has some kilobytes
constexpr int shortestKey = 2048;                   // bits

struct FreeBio {
    void operator()(BIO *bio) const { BIO_free(bio); }
};
struct FreeCertificate {
    void operator()(X509 *certificate) const { X509_free(certificate); }
};

std::unique_ptr<X509, FreeCertificate> readCertificate(const QByteArray &pem)
{
    const std::unique_ptr<BIO, FreeBio> bio(BIO_new_mem_buf(pem.constData(), int(pem.size())));
    return std::unique_ptr<X509, FreeCertificate>(
        PEM_read_bio_X509_AUX(bio.get(), nullptr, nullptr, nullptr));
}

QString describeKey(const EVP_PKEY *key)
{
    const char *kind = EVP_PKEY_get0_type_name(key);
    return Words::tr("%1, %2 bits")
        .arg(kind ? QString::fromLatin1(kind) : Words::tr("unknown kind"))
        .arg(EVP_PKEY_get_bits(key));
}

} // namespace

QString whyBadPassword(const QString &password)
{
    if (password.isEmpty())
        return Words::tr(
            "No password is given. Type one on the Password tab; without a password nothing is backed up.");
    if (password.contains(QChar::Null))
        return Words::tr("The password holds a zero byte (is its file perhaps UTF-16?), and all behind it "
                         "would be lost. Use a password of ordinary characters, in UTF-8.");
    if (password.contains(u'\n') || password.contains(u'\r'))
        return Words::tr(
            "The password holds a line break, and all behind it would be lost. Use one of a single line.");
    QByteArray utf8 = password.toUtf8();
    explicit_bzero(utf8.data(), static_cast<std::size_t>(utf8.size()));
    if (utf8.size() > longestPassword)
        return Words::tr("The password is longer than %1 bytes, and would be cut. Use a shorter one.")
            .arg(longestPassword);
    return {};
}

CertificateJudgement judgeCertificate(const QString &path)
{
    if (path.isEmpty())
        return {.obstacle = Words::tr("No certificate is chosen. Choose one on the Password tab.")};
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {.obstacle = Words::tr("The certificate \"%1\" is not there, or can't be read. Choose another "
                                      "one on the Password tab.")
                                .arg(path)};
    const QByteArray content = file.read(largestFile);
    const auto certificate = readCertificate(content);
    if (!certificate)
        return {.obstacle =
                    (content.contains("PRIVATE KEY")
                         ? Words::tr("\"%1\" is chosen as the certificate, but it is a private key. Choose "
                                     "the certificate that belongs to it on the Password tab.")
                         : Words::tr("\"%1\" is no certificate in the form that is needed here, which is "
                                     "PEM, a text file. Choose another one on the Password tab."))
                        .arg(path)};
    EVP_PKEY *key = X509_get0_pubkey(certificate.get());
    const QString described = key ? describeKey(key) : QString();
    if (!key || EVP_PKEY_get_base_id(key) != EVP_PKEY_RSA)
        return {.obstacle = Words::tr("The certificate \"%1\" has a key of another kind than RSA, and only "
                                      "RSA keys can be used here. Choose another one on the Password tab.")
                                .arg(path),
                .key = described};
    const int bits = EVP_PKEY_get_bits(key);
    if (bits >= shortestKey) return {.key = described};
    return {.concern = Words::tr("The key of the certificate \"%1\" has %2 bits; less than %3 can be broken.")
                           .arg(path, QString::number(bits), QString::number(shortestKey)),
            .key = described};
}
