#include "extract/ArchiveName.h"

#include "files/Names.h"

using namespace Qt::StringLiterals;

namespace {

/// Without what follows the last dot of its last component; a dot at the beginning starts no extension.
QString withoutLastExtension(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > path.lastIndexOf(u'/') + 1 ? path.left(dot) : path;
}

} // namespace

ExtractPaths extractPaths(const QString &archive, const QString &folder, const QString &methodExtension)
{
    const QString name = quillorentLibrary::lastPathComponent(withoutVolumePart(archive));
    const QString encrypted = withoutLastExtension(quillorentLibrary::joined(folder, name));
    QString inner = withoutLastExtension(encrypted);
    // A renamed archive may have no further extension. A file can't be decrypted into itself.
    if (inner == encrypted) inner += u".rar"_s;
    return {encrypted, inner, encrypted + methodExtension};
}

QString methodOfArchive(const QString &archive, const QList<Method> &methods)
{
    QString found;
    // The last match counts: the method stands last in a name that holds several extensions.
    for (const QString &piece : quillorentLibrary::lastPathComponent(archive).split(u".rar"_s))
        for (const Method &method : methods)
            if (method.extension == piece) found = method.name;
    return found;
}

QString commandOfArchive(const QString &archive, const QList<Method> &methods)
{
    const QString name = methodOfArchive(archive, methods);
    for (const Method &method : methods)
        if (method.name == name) return method.command;
    return {};
}
