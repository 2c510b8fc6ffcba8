#include "extract/Room.h"

#include <QStorageInfo>
#include <algorithm>

qint64 roomNeeded(QList<qint64> archives, qsizetype atOnce)
{
    // An archive packs base64 text to three quarters, so the encrypted file is four thirds of it. That text
    // stands for three bytes in four characters, so the inner archive is as large as the outer one again; and
    // what it stores without packing are the contents. First encrypted file and inner archive lie beside each
    // other, then inner archive and contents: on top of its contents an archive needs what its encrypted file
    // takes.
    std::sort(archives.begin(), archives.end(), std::greater<>());
    qint64 bytes = 0;
    for (qsizetype index = 0; index < archives.size(); ++index)
        bytes += archives[index] + (index < atOnce ? archives[index] / 3 * 4 : 0);
    return bytes;
}

std::optional<qint64> roomFree(const QString &folder)
{
    const QStorageInfo disk(folder);
    return disk.isValid() && disk.isReady() ? std::optional(disk.bytesAvailable()) : std::nullopt;
}
