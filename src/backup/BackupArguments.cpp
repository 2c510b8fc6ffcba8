#include "backup/BackupArguments.h"

using namespace Qt::StringLiterals;

// Arguments that are off are passed as empty ones, which the archiver skips.

QStringList backupArguments::firstPass(FirstPass how, const QString &keepDate, const QString &archive,
                                       const QString &source)
{
    // Solid: many small files that resemble each other are what gains most.
    const QStringList method =
        how == FirstPass::Compresses ? QStringList{u"-m3"_s, u"-s"_s} : QStringList{u"-m0"_s};
    return QStringList{u"a"_s, u"-r"_s, u"-ol"_s, u"-o+"_s} + method +
           QStringList{keepDate, u"-t"_s, u"-idq"_s, archive, source};
}

QStringList backupArguments::encryptByPassword(const QString &cipher, const QString &archive,
                                               const QString &encrypted, const QString &password)
{
    return {cipher,    u"-a"_s,    u"-salt"_s,           u"-in"_s, archive, u"-out"_s,
            encrypted, u"-pass"_s, u"pass:"_s + password};
}

QStringList backupArguments::encryptByCertificate(const QString &archive, const QString &encrypted,
                                                  const QString &certificate)
{
    return {u"smime"_s, u"-aes256"_s, u"-encrypt"_s, u"-binary"_s, u"-in"_s,
            archive,    u"-out"_s,    encrypted,     certificate};
}

QStringList backupArguments::secondPass(const QString &keepDate, const QString &split, const QString &archive,
                                        const QString &encrypted)
{
    return {u"a"_s, u"-m5"_s, u"-o+"_s, u"-t"_s, u"-idq"_s, keepDate, split, u"-ep"_s, archive, encrypted};
}

QStringList backupArguments::printContent(const QString &archive) { return {u"p"_s, u"-idq"_s, archive}; }

// The padding is at the end of the file, which a piece does not have.
QStringList backupArguments::decryptPiece(const QString &cipher, const QString &piece,
                                          const QString &password)
{
    return {cipher, u"-d"_s, u"-a"_s, u"-nopad"_s, u"-in"_s, piece, u"-pass"_s, u"pass:"_s + password};
}
