#include "keys/Certificates.h"

#include "tools/RegisteredTool.h"

using namespace Qt::StringLiterals;

namespace {

ToolResult dumpCertificate(const QString &certificate)
{
    return runRegisteredTool(
        u"OpenSSL"_s, {u"x509"_s, u"-in"_s, certificate, u"-noout"_s, u"-text"_s, u"-inform"_s, u"PEM"_s});
}

} // namespace

QString quillorentLibrary::showCert(const QString &certificate)
{
    return dumpCertificate(certificate).text();
}

std::optional<QString> quillorentLibrary::showKey(const QString &key)
{
    return runRegisteredTool(u"OpenSSL"_s, {u"rsa"_s, u"-in"_s, key, u"-text"_s}).output;
}

bool quillorentLibrary::testCert(const QString &certificate, const QString &text)
{
    return dumpCertificate(certificate).text().contains(text);
}

bool quillorentLibrary::testKey(const QString &certificate, const QString &key)
{
    const auto ofCertificate =
        trimPubKey(runRegisteredTool(u"OpenSSL"_s,
                                     {u"x509"_s, u"-in"_s, certificate, u"-pubkey"_s, u"-inform"_s, u"PEM"_s})
                       .output);
    const auto ofKey =
        trimPubKey(runRegisteredTool(u"OpenSSL"_s, {u"rsa"_s, u"-in"_s, key, u"-pubout"_s}).output);
    return ofCertificate && ofKey && *ofCertificate == *ofKey;
}

std::optional<QString> quillorentLibrary::trimPubKey(const std::optional<QString> &text)
{
    static const QString begin = u"-----BEGIN PUBLIC KEY-----"_s;
    static const QString end = u"-----END PUBLIC KEY-----"_s;
    const qsizetype found = text ? text->indexOf(begin) : -1;
    if (found < 0) return std::nullopt;
    // A second block would be none of the first one's business.
    const QString body = text->mid(found + begin.size()).split(begin).first();
    return body.split(end).first();
}
