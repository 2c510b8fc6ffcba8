#include "keys/Refusals.h"

#include "keys/Certificates.h"
#include "keys/KeyFile.h"
#include "tools/RegisteredTool.h"

namespace {

using enum KeyFileKind;

/// The reasons that hold for certificates and keys alike; empty where none of them does.
QString whyNothing(const QString &path, const KeyFile &file)
{
    if (path.isEmpty()) return u"No file was chosen."_qs;
    if (file.kind == Unreadable) return u"\"%1\" can't be read: %2."_qs.arg(path, file.reason);
    if (file.kind == Empty) return u"\"%1\" is empty."_qs.arg(path);
    return {};
}

/// What the tool says, for a failure that the file itself does not explain.
QString toolsWords(const QString &output)
{
    const QString line = output.trimmed().section(u'\n', 0, 0);
    return line.isEmpty() ? QString() : u"\n\nOpenSSL says: "_qs + line;
}

QString whyNotRead(KeyFileKind kind)
{
    switch (kind) {
    case Certificate:
        return u"\"%1\" looks like a certificate, but can't be read as one. It may be damaged."_qs;
    case PrivateKey:
    case EncryptedKey:
        return u"\"%1\" holds a private key, not a certificate. Choose the certificate that "
               "belongs to it here, and this file as the private key."_qs;
    case Pkcs12:
        return u"\"%1\" is a PKCS#12 container. Only PEM, the text form, is accepted. Take "
               "the certificate out with:\n\nopenssl pkcs12 -in FILE -clcerts -nokeys -out "
               "certificate.pem"_qs;
    case Der:
        return u"\"%1\" is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it "
               "with:\n\nopenssl x509 -inform DER -in FILE -out certificate.pem"_qs;
    default:
        return u"\"%1\" is no PEM certificate: such a file has a line \"-----BEGIN CERTIFICATE-----\"."_qs;
    }
}

QString whyNotMatching(const QString &output, KeyFileKind kind)
{
    switch (kind) {
    case EncryptedKey:
        return u"The private key in \"%1\" is encrypted with a pass phrase, which the "
               "program can't give to OpenSSL. Make a copy without one, and keep it where "
               "nobody else can read it:\n\nopenssl rsa -in FILE -out key.pem"_qs;
    case Certificate:
        if (output.contains(u"PUBLIC KEY")) break; // key and certificate in one file
        return u"\"%1\" holds a certificate, not a private key. Choose the private key that belongs to the "
               "certificate."_qs;
    case Pkcs12:
        return u"\"%1\" is a PKCS#12 container. Take the private key out with:\n\n"
               "openssl pkcs12 -in FILE -nocerts -nodes -out key.pem"_qs;
    default:
        break;
    }
    if (output.contains(u"Not an RSA key") || output.contains(u"expecting an rsa key"))
        return u"The private key in \"%1\" is not an RSA key. Only RSA keys, with RSA certificates, can be used."_qs;
    if (!output.contains(u"BEGIN PUBLIC KEY"))
        return u"\"%1\" holds no private key that can be read. It must be an RSA key in PEM, the text form."_qs;
    return u"The private key in \"%1\" does not belong to the certificate \"%2\". Choose "
           "the key that the certificate was made with; no other one opens what the "
           "certificate encrypts."_qs;
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
        return u"No certificate is chosen yet. Choose it first: a private key is accepted "
               "only with the certificate that it belongs to."_qs;
    if (!testCert(certificate, u"Validity"_qs))
        return u"The certificate itself can't be used any more. "_qs + whyNoCertificate(certificate);
    const KeyFile file = examineKeyFile(key);
    const QString plain = whyNothing(key, file);
    if (!plain.isEmpty()) return plain;
    const QString output =
        runRegisteredTool(u"OpenSSL"_qs, {u"rsa"_qs, u"-in"_qs, key, u"-pubout"_qs}).text();
    const QString why = whyNotMatching(output, file.kind);
    return why.contains(u"%2") ? why.arg(key, certificate) : why.arg(key);
}
