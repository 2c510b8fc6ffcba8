#include "extract/BackupsFound.h"

#include "extract/VolumeSet.h"
#include "files/Names.h"

#include <QDir>
#include <QMap>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// "docs" of "/x/docs.rar.aes.rar".
QString nameOfBackup(const QString &whole)
{
    const QString inner = quillorentLibrary::lastPathComponent(extractPaths(whole, u"/"_s, {}).inner);
    return inner.endsWith(u".rar"_s) ? inner.chopped(4) : inner;
}

FoundBackup describe(const QString &whole, const QStringList &files)
{
    FoundBackup found{.name = nameOfBackup(whole), .archive = files.first(), .made = {}};
    for (const QString &path : files) {
        const QFileInfo file(path);
        found.bytes += file.size();
        if (!found.made.isValid() || file.lastModified() > found.made) found.made = file.lastModified();
    }
    if (const auto volumes = volumesBeside(found.archive)) {
        found.missing = whatIsMissing(*volumes);
        found.hasBeginning = volumes->first().number <= 1;
    }
    return found;
}

void sortByAge(QList<FoundBackup> &backups)
{
    QHash<QString, QDateTime> newest;
    for (const FoundBackup &backup : backups)
        newest[backup.name] = std::max(newest.value(backup.name), backup.made);
    const auto place = [&](const FoundBackup &backup) {
        return std::tuple(-newest.value(backup.name).toMSecsSinceEpoch(), backup.name,
                          -backup.made.toMSecsSinceEpoch(), backup.archive);
    };
    std::sort(backups.begin(), backups.end(),
              [&](const FoundBackup &left, const FoundBackup &right) { return place(left) < place(right); });
}

} // namespace

QList<FoundBackup> backupsIn(const QString &folder, const QList<Method> &methods,
                             const std::function<bool()> &goesOn)
{
    QMap<QString, QStringList> files; // by the path of the archive in one piece
    const QDir::Filters filters = QDir::Files | QDir::Hidden;
    for (const QFileInfo &file : QDir(folder).entryInfoList({u"*.rar"_s}, filters, QDir::Unsorted))
        files[withoutVolumePart(file.filePath())].append(file.filePath());

    QList<FoundBackup> backups;
    for (auto each = files.cbegin(); each != files.cend() && goesOn(); ++each)
        if (!methodOfArchive(each.key(), methods).isEmpty()) {
            // One in one piece may lie beside a set of its name: they are two.
            QStringList set = filesOfArchive(each.key());
            if (set.removeOne(each.key())) backups.append(describe(each.key(), {each.key()}));
            if (!set.isEmpty()) backups.append(describe(each.key(), set));
        }
    sortByAge(backups);
    return backups;
}
