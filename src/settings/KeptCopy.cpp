#include "settings/KeptCopy.h"

#include "settings/UserFile.h"

#include <QFile>
#include <QFileInfo>

namespace quillorentLibrary {

namespace {

bool isEmptyFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() == 0;
}

bool haveSameContent(const QString &left, const QString &right)
{
    QFile one(left);
    QFile other(right);
    if (!QFileInfo(left).isFile() || !QFileInfo(right).isFile() || one.size() != other.size()) return false;
    if (!one.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly)) return false;

    constexpr qint64 pieceSize = 1 << 16;
    while (!one.atEnd())
        if (one.read(pieceSize) != other.read(pieceSize)) return false;
    return one.error() == QFile::NoError && other.error() == QFile::NoError;
}

/// Where a file is to be kept, and whether it lies there already.
struct Place {
    QString path;
    bool isTaken = false;
};

Place placeFor(const QString &path, bool mayBeThere = true)
{
    Place place{path + u".damaged"_qs};
    for (int number = 1;; ++number) {
        const QFileInfo info(place.path);
        if (!info.exists() && !info.isSymLink()) return place;
        if (mayBeThere && haveSameContent(path, place.path)) return {place.path, true};
        place.path = u"%1.damaged.%2"_qs.arg(path).arg(number);
    }
}

void report(const QString &path, const Place &place)
{
    qCWarning(logSettings).noquote() << path << "is replaced; what it held is kept in" << place.path;
}

} // namespace

bool keepCopy(const QString &path)
{
    if (isEmptyFile(path)) return true;
    const Place place = placeFor(path);
    if (!place.isTaken) {
        // A pipe would not end, and a folder can't be copied this way.
        if (!QFileInfo(path).isFile() || !QFile::copy(path, place.path)) return false;
        QFile::setPermissions(place.path, QFile::ReadOwner | QFile::WriteOwner);
    }
    report(path, place);
    return true;
}

bool moveAside(const QString &path)
{
    // Of a link, the link is what is worth keeping: where it leads to is recorded nowhere else.
    const bool isLink = QFileInfo(path).isSymLink();
    if (!isLink && isEmptyFile(path)) return QFile::remove(path);
    const Place place = placeFor(path, !isLink);
    if (place.isTaken ? !QFile::remove(path) : !QFile::rename(path, place.path)) return false;
    report(path, place);
    return true;
}

} // namespace quillorentLibrary
