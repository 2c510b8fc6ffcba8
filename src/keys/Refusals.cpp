#include "keys/Refusals.h"

#include "keys/Certificates.h"
#include "keys/KeyFile.h"
#include "tools/RegisteredTool.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(keys)
};

using enum KeyFileKind;

/// The reasons that hold for certificates and keys alike; empty where none of them does.
QString whyNothing(const QString &path, const KeyFile &file)
{
    if (path.isEmpty()) return Words::tr("No file was chosen.");
    if (file.kind == Unreadable) return Words::tr("\"%1\" can't be read: %2.").arg(path, file.reason);
    if (file.kind == Empty) return Words::tr("\"%1\" is empty.").arg(path);
    return {};
}

/// What the tool says, for a failure that the file itself does not explain.
QString toolsWords(const QString &output)
{
    const QString line = output.trimmed().section(u'\n', 0, 0);
    return line.isEmpty() ? QString() : Words::tr("\n\nOpenSSL says: ") + line;
}

QString whyNotRead(KeyFileKind kind)
{
    switch (kind) {
    case Certificate:
        return Words::tr("\"%1\" looks like a certificate, but can't be read as one. It may be damaged.");
    case PrivateKey:
    case EncryptedKey:
        return Words::tr("\"%1\" holds a private key, not a certificate. Choose the certificate that belongs "
                         "to it here, and this file as the private key.");
    case Pkcs12:
        return Words::tr(
            "\"%1\" is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out "
            "with:\n\nopenssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem");
    case Der:
        return Words::tr("\"%1\" is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert "
                         "it with:\n\nopenssl x509 -inform DER -in FILE -out certificate.pem");
    default:
        return Words::tr(
            "\"%1\" is no PEM certificate: such a file has a line \"-----BEGIN CERTIFICATE-----\".");
    }
}

QString whyNotMatching(const QString &output, KeyFileKind kind)
{
    switch (kind) {
    case EncryptedKey:
        return Words::tr("The private key in \"%1\" is encrypted with a pass phrase, which the program can't "
                         "give to OpenSSL. Make a copy without one, and keep it where nobody else can read "
                         "it:\n\nopenssl rsa -in FILE -out key.pem");
    case Certificate:
        if (output.contains(u"PUBLIC KEY")) break; // key and certificate in one file
        return Words::tr("\"%1\" holds a certificate, not a private key. Choose the private key that belongs "
                         "to the certificate.");
    case Pkcs12:
        return Words::tr("\"%1\" is a PKCS#12 container. Take the private key out with:\n\nopenssl pkcs12 "
                         "-in FILE -nocerts -nodes -out key.pem");
    default:
        break;
    }
    if (output.contains(u"Not an RSA key") || output.contains(u"expecting an rsa key"))
        return Words::tr("The private key in \"%1\" is not an RSA key. Only RSA keys, with RSA certificates, "
                         "can be used.");
    if (!output.contains(u"BEGIN PUBLIC KEY"))
        return Words::tr(
            "\"%1\" holds no private key that can be read. It must be an RSA key in PEM, the text form.");
    return Words::tr("The private key in \"%1\" does not belong to the certificate \"%2\". Choose the key "
                     "that the certificate was made with; no other one opens what the certificate encrypts.");
}

} // namespace

QString quillorentLibrary::whyNoCertificate(const QString &path)
{
    const KeyFile file = examineKeyFile(path);
    const QString plain = whyNothing(path, file);
    if (!plain.isEmpty()) return plain;
    const QString why = whyNotRead(file.kind).arg(path);
    const bool explainsItself = file.kind != Certificate && file.kind != Unknown;
    return explainsItself ? why : why + toolsWords(showCert(path));
}

QString quillorentLibrary::whyNoKey(const QString &certificate, const QString &key)
{
    if (certificate.isEmpty())
        return Words::tr("No certificate is chosen yet. Choose it first: a private key is accepted only with "
                         "the certificate that it belongs to.");
    if (!testCert(certificate, u"Validity"_s))
        return Words::tr("The certificate itself can't be used any more. ") + whyNoCertificate(certificate);
    const KeyFile file = examineKeyFile(key);
    const QString plain = whyNothing(key, file);
    if (!plain.isEmpty()) return plain;
    const QString output = runRegisteredTool(u"OpenSSL"_s, {u"rsa"_s, u"-in"_s, key, u"-pubout"_s}).text();
    const QString why = whyNotMatching(output, file.kind);
    return why.contains(u"%2") ? why.arg(key, certificate) : why.arg(key);
}
