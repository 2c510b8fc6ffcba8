#include "settings/KeptCopy.h"

#include "plist/PrivateFile.h"
#include "settings/UserFile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

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

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString numbered(const QString &path, int number)
{
    return number == 0 ? path : u"%1.%2"_s.arg(path, QString::number(number));
}

/// Where `content` lies already, or else the first free place.
struct Place {
    QString path;
    bool isThere = false;
};

Place placeFor(const QString &content, const QString &path)
{
    for (int number = 0;; ++number) {
        const QString place = numbered(path, number);
        if (!isTaken(place)) return {place};
        if (!content.isEmpty() && haveSameContent(content, place)) return {place, true};
    }
}

QString nameFor(const QString &path, KeptAs as)
{
    return path + (as == KeptAs::Damaged ? u".damaged"_s : u".kept"_s);
}

KeptCopy kept(const QString &path, const QString &place)
{
    qCWarning(logSettings).noquote() << path << "is replaced; what it held is kept in" << place;
    return {true, place};
}

/// Whether all of it has arrived: on a full disk, copying does not notice what is lost.
bool copyWhole(const QString &from, const QString &to)
{
    // A pipe would not end, and a folder can't be copied this way.
    if (!QFileInfo(from).isFile() || !QFile::copy(from, to)) return false;
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
    if (haveSameContent(from, to)) return true;
    QFile::remove(to);
    return false;
}

} // namespace

KeptCopy keepCopy(const QString &path, KeptAs as)
{
    if (isEmptyFile(path)) return {true, {}};
    const Place place = placeFor(path, nameFor(path, as));
    if (!place.isThere && !copyWhole(path, place.path)) return {};
    return kept(path, place.path);
}

KeptCopy keepContent(const QString &path, const QByteArray &content)
{
    const QString place = freePath(nameFor(path, KeptAs::Former));
    if (!plist::replacePrivateFile(place, content).isEmpty()) return {};
    return kept(path, place);
}

KeptCopy moveAside(const QString &path)
{
    // Of a link, the link is what is worth keeping: where it leads to is recorded nowhere else.
    const bool isLink = QFileInfo(path).isSymLink();
    if (!isLink && isEmptyFile(path)) return {QFile::remove(path), {}};
    const Place place = placeFor(isLink ? QString() : path, nameFor(path, KeptAs::Former));
    if (place.isThere ? !QFile::remove(path) : !QFile::rename(path, place.path)) return {};
    return kept(path, place.path);
}

QString freePath(const QString &path) { return placeFor({}, path).path; }

} // namespace quillorentLibrary
