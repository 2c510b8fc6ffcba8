#include "sync/SyncMeaning.h"

#include "files/Paths.h"
#include "sync/SyncArguments.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

QString whatIsCopied(const SyncOrder &order)
{
    if (order.mode == u"0"_s)
        return Words::tr("Copies what is new or was changed here. Files that are newer at the destination "
                         "stay as they are.");
    return Words::tr("Copies every file whose content differs, also over a newer one at the destination. All "
                     "files are read on both sides, which takes long.");
}

QString whatIsDeleted(const SyncOrder &order)
{
    if (order.deletesExtra && order.removesSources)
        return Words::tr("MOVES the files: they are removed here once they are at the destination. And "
                         "deletes at the destination, inside the listed folders, what is not here: a second "
                         "run deletes there what the first one moved there, and then it is nowhere.");
    if (order.deletesExtra)
        return Words::tr(
            "Deletes at the destination, inside the listed folders, everything that is not here any more.");
    if (order.removesSources)
        return Words::tr(
            "MOVES the files: they are removed here once they are at the destination. Folders stay, empty.");
    return Words::tr("Deletes nothing, neither here nor there.");
}

QStringList trapsOfServer(const SyncOrder &order)
{
    QStringList traps;
    if (order.user.isEmpty())
        traps.append(
            Words::tr("Without a user the server is sent an empty name, which it refuses: fill one in. Which "
                      "name is used is for ~/.ssh/config to say; otherwise it is your own."));
    if (!order.port.isEmpty())
        traps.append(Words::tr("The port becomes the beginning of the folder's path on the server. Leave it "
                               "empty, and put it into ~/.ssh/config."));
    if (order.entries.size() == 1)
        traps.append(Words::tr(
            "The folder must exist on the server: a single file would be stored under its name instead."));
    return traps;
}

QStringList trapsOfEntries(const SyncOrder &order)
{
    QStringList traps;
    for (const QString &entry : syncArguments::misnamedEntries(order.entries))
        traps.append(Words::tr("\"%1\" will not be found: its path holds that of the common folder \"%2\" in "
                               "the wrong place. Synchronise it from a profile of its own.")
                         .arg(entry, syncArguments::rootOf(order.entries)));
    for (const QString &entry : order.entries)
        if (!order.isRemote && quillorentLibrary::isInside(order.destination, entry))
            traps.append(
                Words::tr(
                    "The destination lies inside \"%1\", so that each run copies the copies of the last one.")
                    .arg(entry));
    return traps;
}

} // namespace

QString describeSync(const SyncOrder &order)
{
    QStringList paragraphs{whatIsCopied(order), whatIsDeleted(order)};
    if (order.isRemote) paragraphs += trapsOfServer(order);
    paragraphs += trapsOfEntries(order);
    return paragraphs.join(u'\n');
}
