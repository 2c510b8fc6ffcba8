#include "files/Names.h"

#include <QDateTime>
#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

QString quillorentLibrary::lastPathComponent(const QString &path)
{
    const QStringList components = path.split(u'/', Qt::SkipEmptyParts);
    if (!components.isEmpty()) return components.last();
    return path.startsWith(u'/') ? u"/"_s : QString();
}

QString quillorentLibrary::joined(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString quillorentLibrary::nameRepeated(const QString &path, const QStringList &paths)
{
    const QString name = lastPathComponent(path);
    const auto namesakes = std::count_if(
        paths.begin(), paths.end(), [&](const QString &other) { return lastPathComponent(other) == name; });
    return namesakes > 1 ? name + u'-' + QString::number(paths.indexOf(path)) : name;
}

QString quillorentLibrary::createTempFileName()
{
    // The reference date of the names is the first instant of 2001, in universal time.
    constexpr qint64 referenceDate = 978'307'200'000;
    const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch() - referenceDate;
    return QDir::tempPath() + u"/Quillorent_%1.txt"_s.arg(milliseconds);
}
