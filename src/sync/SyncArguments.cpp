#include "sync/SyncArguments.h"

#include "files/Names.h"

using namespace Qt::StringLiterals;

namespace {

/// "/" of "/" and of what lies in it; empty of a name alone.
QString parentOf(const QString &path)
{
    qsizetype end = path.size();
    const auto skip = [&](bool slashes) {
        while (end > 0 && (path[end - 1] == u'/') == slashes)
            --end;
    };
    skip(true);
    skip(false);
    skip(true);
    if (end > 0) return path.left(end);
    return path.startsWith(u'/') ? u"/"_s : QString();
}

// rsync takes some argument in each place, so a switch that is off becomes an option without an effect here.
const QString noOption = u"-h"_s;

} // namespace

QString syncArguments::rootOf(const QStringList &entries)
{
    if (entries.isEmpty()) return {};
    QString root = parentOf(entries.first());
    for (const QString &entry : entries)
        while (!root.isEmpty() && !entry.contains(root))
            root = parentOf(root) == root ? QString() : parentOf(root);
    return root;
}

QString syncArguments::lineOf(const QString &entry, const QString &root)
{
    // Without all of its slashes an entry would be no path any more.
    return root == u"/" || root.isEmpty() ? entry : QString(entry).remove(root);
}

QStringList syncArguments::misnamedEntries(const QStringList &entries)
{
    const QString root = rootOf(entries);
    QStringList misnamed;
    for (const QString &entry : entries) {
        const QString line = lineOf(entry, root);
        const bool isFound = root == u"/" || (line.startsWith(u'/') && root + line == entry);
        if (!isFound) misnamed.append(entry);
    }
    return misnamed;
}

QByteArray syncArguments::list(const QStringList &entries)
{
    const QString root = rootOf(entries);
    QStringList lines;
    for (const QString &entry : entries)
        lines.append(lineOf(entry, root));
    return lines.join(u'\n').toUtf8();
}

QString syncArguments::destination(const SyncOrder &order)
{
    if (!order.isRemote) return order.destination;
    const QString user = order.user.isEmpty() ? u"@"_s : QString();
    const QString port = order.port.isEmpty() ? QString() : order.port + u':';
    return user + order.server + u':' + port + order.destination;
}

QStringList syncArguments::transfer(const SyncOrder &order, const QString &listFile)
{
    if (!order.parameters) return {};
    QStringList arguments{*order.parameters, order.mode == u"0"_s ? u"-u"_s : u"-c"_s};
    if (!order.excludes) return arguments;
    return arguments << *order.excludes << (order.deletesExtra ? u"--delete"_s : noOption)
                     << (order.removesSources ? u"--remove-source-files"_s : noOption)
                     << u"--files-from="_s + listFile << rootOf(order.entries) << destination(order);
}

QStringList syncArguments::preview(const SyncOrder &order, const QString &listFile)
{
    constexpr qsizetype behindOptions = 5;
    QStringList arguments = transfer(order, listFile);
    QStringList added{u"--dry-run"_s, u"--itemize-changes"_s, u"--out-format=%i\t%l\t%n"_s};
    // A file that is at the destination already is removed as well; said twice, the option shows it.
    if (order.removesSources) added.insert(1, u"--itemize-changes"_s);
    for (const QString &argument : added)
        arguments.insert(std::min(behindOptions, arguments.size()), argument);
    return arguments;
}
