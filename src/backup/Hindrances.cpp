#include "backup/Hindrances.h"

#include "backup/SourceLook.h"
#include "files/ArchiveFiles.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "keys/SecretRules.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <algorithm>
#include <climits>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(backup)
};

using quillorentLibrary::lastPathComponent;
using Place = Hindrance::Place;

class Found {
public:
    void add(Place place, const QString &text)
    {
        const Hindrance hindrance{place, text};
        if (!text.isEmpty() && std::find(m_all.begin(), m_all.end(), hindrance) == m_all.end())
            m_all.push_back(hindrance);
    }
    [[nodiscard]] bool has(Place place) const
    {
        return std::any_of(m_all.begin(), m_all.end(),
                           [place](const Hindrance &each) { return each.place == place; });
    }
    [[nodiscard]] Hindrances take() { return std::move(m_all); }

private:
    Hindrances m_all;
};

void lookAtSettings(const BackupOrder &order, Found &found)
{
    const auto missing = [&](const QString &value, const QStringList &keys) {
        if (value.isEmpty())
            found.add(Place::Settings, Words::tr("Something is missing in the settings file, and without it "
                                                 "files would be lost: %1. Repair "
                                                 "the file, or move it away: the next start makes a new one.")
                                           .arg(keys.join(u" / "_s)));
    };
    missing(order.archiveExtension, {u"extensions"_s, u"RAR"_s});
    missing(order.methodExtension, {u"extensions"_s, order.method});
    missing(order.cipher, {u"encparam"_s, order.method});
    missing(order.archiver, {u"external"_s, u"RAR"_s});
    missing(order.encoder, {u"external"_s, u"OpenSSL"_s});
}

void lookAtSources(const BackupOrder &order, Found &found)
{
    if (order.items.isEmpty())
        found.add(Place::Sources,
                  Words::tr("The profile has no folders. Add those that are to be backed up."));
}

void lookAtDestination(const BackupOrder &order, Found &found)
{
    if (order.showsOtherDestination)
        found.add(Place::Destination,
                  Words::tr("The destination that is shown is not this profile's own. Choose it again."));
    else if (order.destination.isEmpty())
        found.add(Place::Destination,
                  Words::tr("No destination is chosen. Choose the folder that the archives go to."));
    else if (!quillorentLibrary::folderExists(order.destination))
        found.add(
            Place::Destination,
            Words::tr("The destination \"%1\" does not exist or is no folder. Connect its disk, or choose "
                      "another one.")
                .arg(order.destination));
    else
        found.add(Place::Destination, whyNotWritable(order.destination));
}

void lookAtVolumeSize(const BackupOrder &order, Found &found)
{
    if (order.split.isEmpty()) return;
    bool isNumber = false;
    const qulonglong thousands = order.volumeSize.toULongLong(&isNumber);
    constexpr qulonglong largest = 1'000'000'000'000;
    if (isNumber && thousands > 0 && thousands <= largest) return;
    found.add(
        Place::VolumeSize,
        Words::tr("\"%1\" is no size of volumes, the files that an archive is split into. Choose a size such "
                  "as 700 MB, or switch the splitting off.")
            .arg(order.volumeSize));
}

/// Names that the item's files will have, or may have for a while. Of its volumes the longest stands for all.
QStringList namesOf(const BackupItem &item)
{
    return {lastPathComponent(item.stored), lastPathComponent(item.encrypted), lastPathComponent(item.final)};
}

void lookAtNames(const BackupOrder &order, Found &found)
{
    // Behind or before a name, for volumes and for what is set aside.
    constexpr qsizetype decoration = 24;
    for (const BackupItem &item : order.items)
        for (const QString &name : namesOf(item))
            if (QFile::encodeName(name).size() + decoration > NAME_MAX)
                found.add(Place::Sources,
                          Words::tr("The archive of \"%1\" would have a name that is too long for a file. "
                                    "Rename it, or back up the folder that it lies in.")
                              .arg(item.source));
}

/// The same, and what stands for all volumes of a set that one of them is or may be of.
QStringList claimsOf(const BackupItem &item)
{
    QStringList claims = namesOf(item);
    for (const QString &name : namesOf(item))
        if (const auto volume = volumeName(name)) claims.append(volume->set + u".part"_s);
    const QString final = lastPathComponent(item.final);
    claims.append(final.left(final.lastIndexOf(u'.')) + u".part"_s);
    return claims;
}

void lookForMeetings(const BackupOrder &order, Found &found)
{
    const bool foldsCase = mayIgnoreCase(order.destination);
    const auto asFound = [foldsCase](const QString &name) { return foldsCase ? name.toCaseFolded() : name; };
    QHash<QString, QString> owners;
    for (const BackupItem &item : order.items)
        for (const QString &name : claimsOf(item)) {
            const QString owner = owners.value(asFound(name), item.source);
            if (owner != item.source)
                found.add(Place::Sources,
                          Words::tr("\"%1\" and \"%2\" would both need the file \"%3\" in the destination, "
                                    "and one archive would replace the other. Rename one of them, or back it "
                                    "up by a profile of its own.")
                              .arg(owner, item.source, name));
            owners.insert(asFound(name), item.source);
        }
}

void lookForSourcesInTheWay(const BackupOrder &order, Found &found)
{
    QStringList sources;
    for (const BackupItem &item : order.items) {
        sources.append(canonicalPath(item.source));
        sources.append(quillorentLibrary::standardizePath(item.source));
    }
    for (const BackupItem &item : order.items)
        for (const QString &path :
             QStringList{item.stored, item.encrypted, item.final} + filesOfArchive(item.final))
            if (sources.contains(path) || sources.contains(canonicalPath(path)))
                found.add(Place::Sources,
                          Words::tr("\"%1\" is on the list, and its name is needed for the archive of "
                                    "\"%2\". Choose another destination, or rename it.")
                              .arg(path, item.source));
}

} // namespace

Hindrances hindrancesByPassword(const BackupOrder &order)
{
    if (order.byCertificate) return {};
    QString password = order.password.text();
    QString why = whyBadPassword(password);
    if (password.isEmpty() && order.awaitsKeychain)
        why = Words::tr(
            "No password was fetched from the keychain. Fetch it: without a password nothing is backed "
            "up.");
    wipe(password);
    if (why.isEmpty()) return {};
    return {{Place::Password, why}};
}

Hindrances otherHindrances(const BackupOrder &order)
{
    Found found;
    lookAtSources(order, found);
    lookAtDestination(order, found);
    if (order.byCertificate) found.add(Place::Certificate, judgeCertificate(order.certificate).obstacle);
    lookAtVolumeSize(order, found);
    lookAtSettings(order, found);
    if (found.has(Place::Destination) || order.archiveExtension.isEmpty() || order.methodExtension.isEmpty())
        return found.take(); // names say nothing then
    lookAtNames(order, found);
    lookForMeetings(order, found);
    lookForSourcesInTheWay(order, found);
    return found.take();
}
