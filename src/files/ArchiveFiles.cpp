#include "files/ArchiveFiles.h"

#include "files/Names.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

std::optional<VolumeName> volumeName(const QString &path)
{
    static const QRegularExpression pattern(u"^(.*)\\.part([0-9]+)\\.rar$"_s,
                                            QRegularExpression::DotMatchesEverythingOption |
                                                QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(path);
    bool isNumber = false;
    const qulonglong number = match.captured(2).toULongLong(&isNumber);
    return isNumber ? std::optional(VolumeName{match.captured(1), number}) : std::nullopt;
}

QString withoutVolumePart(const QString &path)
{
    const std::optional<VolumeName> volume = volumeName(path);
    return volume ? volume->set + path.right(4) : path;
}

QStringList filesOfArchive(const QString &archive)
{
    const QString folder = QFileInfo(archive).path();
    const QString whole = quillorentLibrary::lastPathComponent(archive);
    const QString set = whole.left(std::max<qsizetype>(whole.lastIndexOf(u'.'), 0));
    QStringList names;
    const QDir::Filters files = QDir::Files | QDir::Hidden | QDir::System;
    for (const QString &name : QDir(folder).entryList(files, QDir::Unsorted)) {
        const std::optional<VolumeName> volume = volumeName(name);
        if (name == whole || (volume && volume->set == set)) names.append(name);
    }
    const auto number = [](const QString &name) { return volumeName(name).value_or(VolumeName{}).number; };
    std::sort(names.begin(), names.end(),
              [&](const QString &left, const QString &right) { return number(left) < number(right); });
    QStringList paths;
    for (const QString &name : names)
        paths.append(quillorentLibrary::joined(folder, name));
    return paths;
}
