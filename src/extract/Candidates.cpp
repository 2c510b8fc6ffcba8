#include "extract/Candidates.h"

#include "extract/ArchiveName.h"
#include "files/Names.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

bool isArchive(const QString &path) { return path.endsWith(u".rar"_s, Qt::CaseInsensitive); }

QStringList archivesIn(const QString &folder)
{
    QStringList paths;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        if (isArchive(file.fileName())) paths.append(file.filePath());
    // By number, however many digits: volume 10 after volume 9.
    const auto place = [](const QString &path) {
        const VolumeName volume = volumeName(path).value_or(VolumeName{path});
        return std::pair(volume.set, volume.number);
    };
    std::sort(paths.begin(), paths.end(),
              [&](const QString &left, const QString &right) { return place(left) < place(right); });
    return paths;
}

/// Whether the first volume of the set is among `archives`.
bool holdsFirstVolume(const QStringList &archives, const QString &set)
{
    return std::any_of(archives.begin(), archives.end(), [&](const QString &path) {
        const std::optional<VolumeName> volume = volumeName(path);
        return volume && volume->set == set && !volume->isLater();
    });
}

QString describe(const QString &leftOut, const QStringList &all)
{
    const QString name = quillorentLibrary::lastPathComponent(leftOut);
    const std::optional<VolumeName> volume = volumeName(leftOut);
    if (!volume || !volume->isLater())
        return Words::tr("\"%1\" is not extracted: its path has \"part\" and, after that, a number as later "
                         "volumes have it. Move or rename it, and add it again.")
            .arg(leftOut);
    if (holdsFirstVolume(all, volume->set)) return {};
    return Words::tr("The first volume is missing: \"%1\" is volume %2 of its set. Add the first one, "
                     "\"%3.part1.rar\" or \"…part01.rar\".")
        .arg(name, QString::number(volume->number), quillorentLibrary::lastPathComponent(volume->set));
}

} // namespace

QStringList archivesAmong(const QStringList &paths)
{
    QStringList archives;
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir())
            archives += archivesIn(path);
        else if (isArchive(path))
            archives.append(path);
    }
    return archives;
}

QString describeLeftOut(const QStringList &added, const QStringList &all, const QStringList &extracted)
{
    // One sentence is enough: of a set without its first volume, or of a folder, each would say the same.
    for (const QString &path : added) {
        const QString text = extracted.contains(path) ? QString() : describe(path, all);
        if (!text.isEmpty()) return text;
    }
    return {};
}

QStringList namesLeftOut(const QStringList &all, const QStringList &extracted)
{
    QStringList leftOut;
    for (const QString &path : all)
        if (!extracted.contains(path) && !describe(path, all).isEmpty()) leftOut.append(path);
    return leftOut;
}
