#include "sync/SyncRequest.h"

#include "app/QuillorentAppDelegate.h"
#include "sync/SyncArguments.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString wrongEntry(const QStringList &entries)
{
    const QString root = syncArguments::rootOf(entries);
    for (const QString &entry : entries) {
        if (!entry.startsWith(u'/'))
            return u"\"%1\" is no absolute path. Remove it from the list and add it again."_qs.arg(entry);
        // rsync reads the list by lines, and either character ends one.
        const QString line = syncArguments::lineOf(entry, root);
        if (line.contains(u'\n') || line.contains(u'\r'))
            return u"The path \"%1\" holds a line break, which rsync's list can't. Put the folder above it "
                   u"on the list instead."_qs.arg(entry);
    }
    return {};
}

QString wrongServer(const SyncRequest &request)
{
    if (request.server.isEmpty())
        return u"No server is given. Type its name, or switch the remote destination off."_qs;
    // rsync would take it for an option, or for a folder on this computer.
    if (request.server.startsWith(u'-') || request.server.contains(u'/'))
        return u"\"%1\" is no server's name."_qs.arg(request.server);
    return {};
}

} // namespace

SyncRequest readSyncRequest()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    const plist::Dictionary record = delegate.currentRecord();
    return {.entries = record.array(u"sync"_qs).strings(),
            .destination = record.string(u"rsyncdst"_qs).value_or(QString()),
            .mode = record.string(u"rsyncmode"_qs),
            .deletesExtra = record.isOn(u"rsyncdelete1"_qs),
            .removesSources = record.isOn(u"rsyncdelete2"_qs),
            .isRemote = delegate.syncCheck01.isOn(),
            .user = delegate.syncUser.text(),
            .server = delegate.syncServer.text(),
            .port = delegate.syncPort.text(),
            .parameters = delegate.setting(u"sync"_qs, u"rsyncparams"_qs),
            .excludes = delegate.setting(u"sync"_qs, u"rsyncexcludes"_qs)};
}

QString whatIsMissing(const SyncRequest &request)
{
    if (request.entries.isEmpty())
        return u"The list is empty. Add the files and folders that are to be synchronised."_qs;
    if (const QString wrong = wrongEntry(request.entries); !wrong.isEmpty()) return wrong;
    if (request.destination.isEmpty())
        return u"No destination is chosen. Choose the folder that the files go to."_qs;
    if (request.isRemote) return wrongServer(request);
    if (!request.destination.startsWith(u'/'))
        return u"The destination \"%1\" is no absolute path. Choose the folder again."_qs.arg(
            request.destination);
    return {};
}

QString checkDestination(const SyncRequest &request)
{
    const QFileInfo folder(request.destination);
    if (request.isRemote || !folder.exists()) return {};
    if (!folder.isDir())
        return u"The destination \"%1\" is a file. Choose a folder."_qs.arg(request.destination);
    const QFileInfo root(syncArguments::rootOf(request.entries));
    if (folder.canonicalFilePath() != root.canonicalFilePath()) return {};
    return u"The destination \"%1\" is the folder that the files lie in already. Choose another one."_qs.arg(
        request.destination);
}

QString makeDestination(const SyncRequest &request)
{
    const QFileInfo folder(QDir::cleanPath(request.destination));
    if (request.isRemote || folder.exists() || !QFileInfo(folder.path()).isDir()) return {};
    if (QDir().mkdir(folder.filePath())) return {};
    return u"The destination folder \"%1\" can't be made. Choose one that you may write to."_qs.arg(
        request.destination);
}
