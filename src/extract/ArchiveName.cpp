#include "extract/ArchiveName.h"

#include "files/Names.h"

#include <QRegularExpression>

namespace {

/// Without what follows the last dot of its last component; a dot at the beginning starts no extension.
QString withoutLastExtension(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > path.lastIndexOf(u'/') + 1 ? path.left(dot) : path;
}

} // namespace

std::optional<VolumeName> volumeName(const QString &path)
{
    static const QRegularExpression pattern(u"^(.*)\\.part([0-9]+)\\.rar$"_qs,
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

ExtractPaths extractPaths(const QString &archive, const QString &folder, const QString &methodExtension)
{
    const QString name = quillorentLibrary::lastPathComponent(withoutVolumePart(archive));
    const QString encrypted = withoutLastExtension(quillorentLibrary::joined(folder, name));
    QString inner = withoutLastExtension(encrypted);
    // A renamed archive may have no further extension. A file can't be decrypted into itself.
    if (inner == encrypted) inner += u".rar"_qs;
    return {encrypted, inner, encrypted + methodExtension};
}
