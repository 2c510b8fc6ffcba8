#pragma once

#include "files/ArchiveFiles.h"

#include <QList>
#include <QString>

/// Where an archive's extraction puts what, by names alone.
struct ExtractPaths {
    QString encrypted; ///< what comes out of the archive
    QString inner;     ///< what that is decrypted to
    QString leftover;  ///< the encrypted file with the method's extension once more; removed at the end
};

/// `methodExtension` has its dot; it is empty where the archive's name tells no method.
[[nodiscard]] ExtractPaths extractPaths(const QString &archive, const QString &folder,
                                        const QString &methodExtension);

/// A method of encryption, as the settings describe it.
struct Method {
    QString name;      ///< their key
    QString extension; ///< of encrypted files, with its dot
    QString command;   ///< the encoder's; empty where they have none
};

/// The name of the method whose extension the archive's name carries before an ".rar"; empty where it carries
/// none.
[[nodiscard]] QString methodOfArchive(const QString &archive, const QList<Method> &methods);

/// The command of that method; empty where there is none.
[[nodiscard]] QString commandOfArchive(const QString &archive, const QList<Method> &methods);
