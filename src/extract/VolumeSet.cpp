#include "extract/VolumeSet.h"

#include "extract/ArchiveName.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

} // namespace

std::optional<QList<Volume>> volumesBeside(const QString &archive)
{
    const std::optional<VolumeName> own = volumeName(archive);
    if (!own) return std::nullopt;

    QList<Volume> volumes;
    const QDir folder = QFileInfo(archive).dir();
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        const std::optional<VolumeName> name = volumeName(file.filePath());
        if (name && QFileInfo(name->set).fileName() == QFileInfo(own->set).fileName())
            volumes.append({name->number, file.size()});
    }
    std::sort(volumes.begin(), volumes.end(),
              [](const Volume &left, const Volume &right) { return left.number < right.number; });
    return volumes;
}

QString whatIsMissing(const QList<Volume> &volumes)
{
    const auto isTwice = [](const Volume &one, const Volume &other) { return one.number == other.number; };
    const auto twice = std::adjacent_find(volumes.begin(), volumes.end(), isTwice);
    if (twice != volumes.end())
        return Words::tr("volume %1 is there twice, so some are leftovers of another backup")
            .arg(twice->number);
    for (qsizetype index = 0; index < volumes.size(); ++index)
        if (volumes[index].number > qulonglong(index) + 1)
            return Words::tr("volume %1 is missing").arg(index + 1);
    if (volumes.size() < 2) return Words::tr("all volumes but the first are missing");

    const qint64 full = volumes.first().bytes;
    for (const Volume &volume : volumes.first(volumes.size() - 1))
        if (volume.bytes < full)
            return Words::tr("volume %1 is shorter than the one before it. Either it was cut short, or it is "
                             "the last one, and those from volume %2 on are leftovers of a larger backup")
                .arg(volume.number)
                .arg(volume.number + 1);
    if (volumes.last().bytes >= full)
        return Words::tr("volume %1 is as large as those before it, so it may not be the last")
            .arg(volumes.last().number);
    return {};
}

qint64 bytesOfArchive(const QString &archive)
{
    const std::optional<QList<Volume>> volumes = volumesBeside(archive);
    if (!volumes) return QFileInfo(archive).size();
    qint64 bytes = 0;
    for (const Volume &volume : *volumes)
        bytes += volume.bytes;
    return bytes;
}
