#include "extract/ExtractArguments.h"

using namespace Qt::StringLiterals;

QStringList extractArguments::test(const QString &archive) { return {u"t"_s, u"-idq"_s, archive}; }

QStringList extractArguments::list(const QString &archive) { return {u"lb"_s, archive}; }

QStringList extractArguments::unpackOuter(const QString &archive, const QString &folder)
{
    return {u"e"_s, u"-o+"_s, u"-idq"_s, archive, folder};
}

QStringList extractArguments::decryptByPassword(const QString &cipher, const QString &encrypted,
                                                const QString &inner, const QString &password)
{
    return {cipher,    u"-d"_s,   u"-a"_s, u"-salt"_s, u"-in"_s,
            encrypted, u"-out"_s, inner,   u"-pass"_s, u"pass:"_s + password};
}

// The certificate follows as a bare argument, and the cipher's name means nothing to a decryption: tools take
// both.
QStringList extractArguments::decryptByCertificate(const QString &encrypted, const QString &inner,
                                                   const QString &key, const QString &certificate)
{
    return {u"smime"_s, u"-aes256"_s, u"-decrypt"_s, u"-binary"_s, u"-in"_s,   encrypted,
            u"-out"_s,  inner,        u"-inkey"_s,   key,          certificate};
}

QStringList extractArguments::unpackInner(const QString &archive, const QString &folder)
{
    return {u"x"_s, u"-o+"_s, u"-idq"_s, archive, folder};
}
