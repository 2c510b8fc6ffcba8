#include "backup/BackupArguments.h"

// Arguments that are off are passed as empty ones, which the archiver skips.

QStringList backupArguments::firstPass(FirstPass how, const QString &keepDate, const QString &archive,
                                       const QString &source)
{
    // Solid: many small files that resemble each other are what gains most.
    const QStringList method =
        how == FirstPass::Compresses ? QStringList{u"-m3"_qs, u"-s"_qs} : QStringList{u"-m0"_qs};
    return QStringList{u"a"_qs, u"-r"_qs, u"-ol"_qs, u"-o+"_qs} + method +
           QStringList{keepDate, u"-t"_qs, u"-idq"_qs, archive, source};
}

QStringList backupArguments::encryptByPassword(const QString &cipher, const QString &archive,
                                               const QString &encrypted, const QString &password)
{
    return {cipher,    u"-a"_qs,    u"-salt"_qs,           u"-in"_qs, archive, u"-out"_qs,
            encrypted, u"-pass"_qs, u"pass:"_qs + password};
}

QStringList backupArguments::encryptByCertificate(const QString &archive, const QString &encrypted,
                                                  const QString &certificate)
{
    return {u"smime"_qs, u"-aes256"_qs, u"-encrypt"_qs, u"-binary"_qs, u"-in"_qs,
            archive,     u"-out"_qs,    encrypted,      certificate};
}

QStringList backupArguments::secondPass(const QString &keepDate, const QString &split, const QString &archive,
                                        const QString &encrypted)
{
    return {u"a"_qs,  u"-m5"_qs, u"-o+"_qs, u"-t"_qs, u"-idq"_qs,
            keepDate, split,     u"-ep"_qs, archive,  encrypted};
}

QStringList backupArguments::printContent(const QString &archive) { return {u"p"_qs, u"-idq"_qs, archive}; }

// The padding is at the end of the file, which a piece does not have.
QStringList backupArguments::decryptPiece(const QString &cipher, const QString &piece,
                                          const QString &password)
{
    return {cipher, u"-d"_qs, u"-a"_qs, u"-nopad"_qs, u"-in"_qs, piece, u"-pass"_qs, u"pass:"_qs + password};
}
