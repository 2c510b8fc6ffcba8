#pragma once

#include <QString>
#include <QStringList>

/// The argument lists of the three tool runs that make a backup, and of the two that try a password.
namespace backupArguments {

enum class FirstPass { Stores, Compresses };

/// The archiver puts `source` into `archive`: links as links, folders with all below them, tested after
/// writing. `keepDate` is "-tl" or "".
[[nodiscard]] QStringList firstPass(FirstPass how, const QString &keepDate, const QString &archive,
                                    const QString &source);

/// The encoder encrypts `archive` into `encrypted` as salted base64, by a password.
[[nodiscard]] QStringList encryptByPassword(const QString &cipher, const QString &archive,
                                            const QString &encrypted, const QString &password);

/// The encoder encrypts `archive` into `encrypted` as an S/MIME message for the owner of `certificate`.
[[nodiscard]] QStringList encryptByCertificate(const QString &archive, const QString &encrypted,
                                               const QString &certificate);

/// The archiver packs `encrypted` into `archive`, best compression, without its path. `split` is "-v" and a
/// size in thousands of bytes, or "".
[[nodiscard]] QStringList secondPass(const QString &keepDate, const QString &split, const QString &archive,
                                     const QString &encrypted);

/// The archiver prints what the file in `archive` holds; of a set, that is the first volume.
[[nodiscard]] QStringList printContent(const QString &archive);

/// The encoder decrypts a piece of an encrypted file, in base64, and prints it.
[[nodiscard]] QStringList decryptPiece(const QString &cipher, const QString &piece, const QString &password);

} // namespace backupArguments
