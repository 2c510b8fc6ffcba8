#include "backup/BackupOrder.h"

#include "files/Names.h"

BackupItem backupItem(const QString &source, const QString &destination, const QString &baseName,
                      const QString &archiveExtension, const QString &methodExtension)
{
    const QString stored = quillorentLibrary::joined(destination, baseName) + archiveExtension;
    const QString encrypted = stored + methodExtension;
    return {source, stored, encrypted, encrypted + archiveExtension};
}
