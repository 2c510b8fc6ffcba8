#include "extract/ArchiveListing.h"

#include "files/ArchiveFiles.h"
#include "files/FolderWalk.h"

#include <QCollator>
#include <QDateTime>
#include <QFile>
#include <algorithm>

namespace {

using Entry = ArchiveListing::Entry;

FileEntry::Kind kindOf(mode_t mode)
{
    if (S_ISDIR(mode)) return FileEntry::Kind::Folder;
    if (S_ISLNK(mode)) return FileEntry::Kind::Link;
    return S_ISREG(mode) ? FileEntry::Kind::File : FileEntry::Kind::Other;
}

/// What is below counts for the folder. Parents stand in front of what is in them.
void addUp(std::vector<Entry> &entries)
{
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        if (entry->parent == ArchiveListing::top) continue;
        Entry &parent = entries[std::size_t(entry->parent)];
        parent.bytes += entry->bytes;
        parent.files += entry->files;
    }
}

std::vector<Entry> entriesBelow(const QString &folder, const std::function<bool()> &goesOn)
{
    struct Open {
        std::string path;
        int index;
    };
    std::vector<Entry> entries;
    FolderWalk walk(QFile::encodeName(folder).toStdString());
    std::vector<Open> open{{QFile::encodeName(folder).toStdString(), ArchiveListing::top}};
    while (walk.next()) {
        if (entries.size() % 256 == 0 && !goesOn()) break;
        const std::string path = walk.path();
        const std::size_t slash = path.rfind('/');
        while (open.size() > 1 && path.compare(0, slash, open.back().path) != 0)
            open.pop_back();
        const struct stat &attributes = walk.attributes();
        const FileEntry::Kind kind = kindOf(attributes.st_mode);
        const bool isFolder = kind == FileEntry::Kind::Folder;
        entries.push_back({.name = path.substr(slash + 1),
                           .parent = open.back().index,
                           .kind = kind,
                           .bytes = isFolder ? 0 : qint64(attributes.st_size),
                           .modified = qint64(attributes.st_mtim.tv_sec),
                           .files = isFolder ? 0 : 1});
        if (isFolder) open.push_back({path, int(entries.size()) - 1});
    }
    addUp(entries);
    return entries;
}

/// Takes its time where there are very many.
std::vector<int> sortedPlaces(const std::vector<Entry> &entries)
{
    struct Key {
        bool isFile;
        QCollatorSortKey name;
        std::size_t index;
    };
    std::vector<std::vector<std::size_t>> below(entries.size() + 1);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const int parent = entries[index].parent;
        below[parent == ArchiveListing::top ? entries.size() : std::size_t(parent)].push_back(index);
    }
    QCollator byLanguage;
    byLanguage.setNumericMode(true);
    std::vector<int> places(entries.size());
    for (const std::vector<std::size_t> &siblings : below) {
        std::vector<Key> keys;
        for (const std::size_t index : siblings) {
            const QString name = QFile::decodeName(QByteArray::fromStdString(entries[index].name));
            const bool isFile = entries[index].kind != FileEntry::Kind::Folder;
            keys.push_back({isFile, byLanguage.sortKey(name), index});
        }
        std::sort(keys.begin(), keys.end(), [](const Key &left, const Key &right) {
            if (left.isFile != right.isFile) return right.isFile;
            return left.name.compare(right.name) < 0;
        });
        for (std::size_t place = 0; place < keys.size(); ++place)
            places[keys[place].index] = int(place);
    }
    return places;
}

} // namespace

std::string ArchiveListing::pathOf(int index) const
{
    const Entry &entry = entries[std::size_t(index)];
    return entry.parent == top ? entry.name : pathOf(entry.parent) + '/' + entry.name;
}

std::vector<FileIdentity> identitiesOf(const QString &archive)
{
    std::vector<FileIdentity> identities;
    for (const QString &file : filesOfArchive(withoutVolumePart(archive)))
        if (const auto there = entryAt(file)) identities.push_back(there->identity);
    return identities;
}

ArchiveListing listArchive(const QString &archive, const QString &folder, std::chrono::milliseconds took,
                           const std::function<bool()> &goesOn)
{
    ArchiveListing listing{.entries = entriesBelow(folder, goesOn),
                           .took = took,
                           .archive = archive,
                           .files = identitiesOf(archive)};
    listing.places = sortedPlaces(listing.entries);
    // Folders that only lead to what was backed up are as old as the run that unpacked them.
    const qint64 began = QDateTime::currentMSecsSinceEpoch() - took.count();
    for (Entry &entry : listing.entries)
        if (entry.kind == FileEntry::Kind::Folder && entry.modified >= began / 1000) entry.modified = 0;
    return listing;
}
