#include "keys/Certificates.h"

#include "tools/RegisteredTool.h"

namespace {

ToolResult dumpCertificate(const QString &certificate)
{
    return runRegisteredTool(u"OpenSSL"_qs, {u"x509"_qs, u"-in"_qs, certificate, u"-noout"_qs, u"-text"_qs,
                                             u"-inform"_qs, u"PEM"_qs});
}

} // namespace

QString quillorentLibrary::showCert(const QString &certificate)
{
    return dumpCertificate(certificate).text();
}

std::optional<QString> quillorentLibrary::showKey(const QString &key)
{
    return runRegisteredTool(u"OpenSSL"_qs, {u"rsa"_qs, u"-in"_qs, key, u"-text"_qs}).output;
}

bool quillorentLibrary::testCert(const QString &certificate, const QString &text)
{
    return dumpCertificate(certificate).text().contains(text);
}

bool quillorentLibrary::testKey(const QString &certificate, const QString &key)
{
    const auto ofCertificate =
        trimPubKey(runRegisteredTool(u"OpenSSL"_qs, {u"x509"_qs, u"-in"_qs, certificate, u"-pubkey"_qs,
                                                     u"-inform"_qs, u"PEM"_qs})
                       .output);
    const auto ofKey =
        trimPubKey(runRegisteredTool(u"OpenSSL"_qs, {u"rsa"_qs, u"-in"_qs, key, u"-pubout"_qs}).output);
    return ofCertificate && ofKey && *ofCertificate == *ofKey;
}

std::optional<QString> quillorentLibrary::trimPubKey(const std::optional<QString> &text)
{
    static const QString begin = u"-----BEGIN PUBLIC KEY-----"_qs;
    static const QString end = u"-----END PUBLIC KEY-----"_qs;
    const qsizetype found = text ? text->indexOf(begin) : -1;
    if (found < 0) return std::nullopt;
    // A second block would be none of the first one's business.
    const QString body = text->mid(found + begin.size()).split(begin).first();
    return body.split(end).first();
}
