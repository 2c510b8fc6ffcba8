#include "settings/Companions.h"

#include "plist/Value.h"
#include "settings/Paths.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quillorentLibrary {

namespace {

/// Where the companion lies that was at `path` before the program moved; empty where it is none, or is there.
QString newPlaceOf(const QString &path)
{
    const QFileInfo former(path);
    const QDir folder(companionFolder());
    if (former.exists() || former.dir().dirName() != folder.dirName()) return {};
    const QFileInfo now(folder.filePath(former.fileName()));
    return now.isFile() && now.isExecutable() ? now.filePath() : QString();
}

} // namespace

QStringList findCompanionsAgain(const plist::Dictionary &settings)
{
    QStringList found;
    const plist::Dictionary tools = settings.dictionary(u"external"_s);
    const QList<plist::Dictionary::Entry> entries = tools.entries();
    for (const auto &[name, value] : entries) {
        const QString place = value.isString() ? newPlaceOf(value.string().value_or(QString())) : QString();
        if (place.isEmpty()) continue;
        tools.setValue(name, place);
        found.append(name);
    }
    return found;
}

} // namespace quillorentLibrary
