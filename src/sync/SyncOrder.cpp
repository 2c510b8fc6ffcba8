#include "sync/SyncOrder.h"

#include "sync/SyncArguments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

QString wrongEntry(const QStringList &entries)
{
    const QString root = syncArguments::rootOf(entries);
    for (const QString &entry : entries) {
        if (!entry.startsWith(u'/'))
            return Words::tr("\"%1\" is no absolute path. Remove it from the list and add it again.")
                .arg(entry);
        // rsync reads the list by lines, and either character ends one.
        const QString line = syncArguments::lineOf(entry, root);
        if (line.contains(u'\n') || line.contains(u'\r'))
            return Words::tr("The path \"%1\" holds a line break, which rsync's list can't. Put the folder "
                             "above it on the list instead.")
                .arg(entry);
    }
    return {};
}

QString wrongServer(const SyncOrder &order)
{
    if (order.server.isEmpty())
        return Words::tr("No server is given. Type its name, or switch the remote destination off.");
    // rsync would take it for an option, or for a folder on this computer.
    if (order.server.startsWith(u'-') || order.server.contains(u'/'))
        return Words::tr("\"%1\" is no server's name.").arg(order.server);
    return {};
}

} // namespace

QString whatIsMissing(const SyncOrder &order)
{
    if (order.entries.isEmpty())
        return Words::tr("The list is empty. Add the files and folders that are to be synchronised.");
    if (const QString wrong = wrongEntry(order.entries); !wrong.isEmpty()) return wrong;
    if (order.destination.isEmpty())
        return Words::tr("No destination is chosen. Choose the folder that the files go to.");
    if (order.isRemote) return wrongServer(order);
    if (!order.destination.startsWith(u'/'))
        return Words::tr("The destination \"%1\" is no absolute path. Choose the folder again.")
            .arg(order.destination);
    return {};
}

QString checkDestination(const SyncOrder &order)
{
    const QFileInfo folder(order.destination);
    if (order.isRemote || !folder.exists()) return {};
    if (!folder.isDir())
        return Words::tr("The destination \"%1\" is a file. Choose a folder.").arg(order.destination);
    const QFileInfo root(syncArguments::rootOf(order.entries));
    if (folder.canonicalFilePath() != root.canonicalFilePath()) return {};
    return Words::tr(
               "The destination \"%1\" is the folder that the files lie in already. Choose another one.")
        .arg(order.destination);
}

QString makeDestination(const SyncOrder &order)
{
    const QFileInfo folder(QDir::cleanPath(order.destination));
    if (order.isRemote || folder.exists() || !QFileInfo(folder.path()).isDir()) return {};
    if (QDir().mkdir(folder.filePath())) return {};
    return Words::tr("The destination folder \"%1\" can't be made. Choose one that you may write to.")
        .arg(order.destination);
}
