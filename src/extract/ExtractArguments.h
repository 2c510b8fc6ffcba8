#pragma once

#include <QString>
#include <QStringList>

/// The argument lists of the tool runs that look at an archive and turn it back into a folder.
namespace extractArguments {

/// The archiver reads all of `archive` and checks it.
[[nodiscard]] QStringList test(const QString &archive);

/// The archiver prints the names in `archive`, one a line.
[[nodiscard]] QStringList list(const QString &archive);

/// The archiver puts the files of `archive` into `folder`, without their paths, over what is there.
[[nodiscard]] QStringList unpackOuter(const QString &archive, const QString &folder);

/// The decoder decrypts `encrypted`, salted base64, into `inner`.
[[nodiscard]] QStringList decryptByPassword(const QString &cipher, const QString &encrypted,
                                            const QString &inner, const QString &password);

/// The decoder decrypts `encrypted`, an S/MIME message for the owner of `certificate`, into `inner`.
[[nodiscard]] QStringList decryptByCertificate(const QString &encrypted, const QString &inner,
                                               const QString &key, const QString &certificate);

/// The archiver puts all of `archive` into `folder`, with its paths, over what is there.
[[nodiscard]] QStringList unpackInner(const QString &archive, const QString &folder);

} // namespace extractArguments
