#include "extract/ExtractArguments.h"

QStringList extractArguments::test(const QString &archive) { return {u"t"_qs, u"-idq"_qs, archive}; }

QStringList extractArguments::list(const QString &archive) { return {u"lb"_qs, archive}; }

QStringList extractArguments::unpackOuter(const QString &archive, const QString &folder)
{
    return {u"e"_qs, u"-o+"_qs, u"-idq"_qs, archive, folder};
}

QStringList extractArguments::decryptByPassword(const QString &cipher, const QString &encrypted,
                                                const QString &inner, const QString &password)
{
    return {cipher,    u"-d"_qs,   u"-a"_qs, u"-salt"_qs, u"-in"_qs,
            encrypted, u"-out"_qs, inner,    u"-pass"_qs, u"pass:"_qs + password};
}

// The certificate follows as a bare argument, and the cipher's name means nothing to a decryption: tools take
// both.
QStringList extractArguments::decryptByCertificate(const QString &encrypted, const QString &inner,
                                                   const QString &key, const QString &certificate)
{
    return {u"smime"_qs, u"-aes256"_qs, u"-decrypt"_qs, u"-binary"_qs, u"-in"_qs,  encrypted,
            u"-out"_qs,  inner,         u"-inkey"_qs,   key,           certificate};
}

QStringList extractArguments::unpackInner(const QString &archive, const QString &folder)
{
    return {u"x"_qs, u"-o+"_qs, u"-idq"_qs, archive, folder};
}
