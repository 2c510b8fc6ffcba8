#include "files/Sizes.h"

#include "files/FolderWalk.h"

quint64 quillorentLibrary::calculateSize(const QString &path)
{
    return calculateSize(path, [] { return true; });
}

quint64 quillorentLibrary::calculateSize(const QString &path, const std::function<bool()> &goesOn)
{
    constexpr quint64 entriesBetweenLooks = 256;
    FolderWalk walk(path.toStdString());
    quint64 bytes = 0;
    for (quint64 entries = 1; walk.next(); ++entries) {
        if (entries % entriesBetweenLooks == 0 && !goesOn()) break;
        bytes += static_cast<quint64>(walk.attributes().st_size);
    }
    return bytes;
}
