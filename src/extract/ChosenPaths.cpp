#include "extract/ChosenPaths.h"

#include "files/Names.h"
#include "files/Paths.h"
#include "files/PrivateFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

/// Empty where the path leads nowhere, or up.
std::string tidied(const std::string &path)
{
    std::string tidy;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name = path.substr(begin, end - begin);
        begin = end + 1;
        if (name == "..") return {};
        if (name.empty() || name == ".") continue;
        tidy += (tidy.empty() ? "" : "/") + name;
    }
    return tidy;
}

QString shown(const std::string &path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

} // namespace

QString tidyChosen(std::vector<std::string> &paths)
{
    for (std::string &path : paths) {
        const std::string tidy = tidied(path);
        if (tidy.empty() || path.find('\0') != std::string::npos)
            return Words::tr(
                       "\"%1\" can't be the path of anything in an archive. Name a file or a folder as the "
                       "archive has it, such as \"home/anna/letter\".")
                .arg(shown(path));
        path = tidy;
    }
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    const std::vector<std::string> all = paths;
    std::erase_if(paths, [&](const std::string &path) {
        return std::any_of(all.begin(), all.end(),
                           [&](const std::string &other) { return path.starts_with(other + '/'); });
    });
    return {};
}

void workInPrivate(ExtractOrder &order)
{
    order.privateFolder = planPrivateFolder(order.folder);
    for (ExtractItem &item : order.items) {
        const QString extension = item.paths.leftover.mid(item.paths.encrypted.size());
        item.paths = extractPaths(item.archive, order.privateFolder, extension);
    }
}

QString bringChosen(const ExtractOrder &order, const QString &archive, const QString &folder,
                    const QString &example, const MoveTree::Events &events,
                    const std::function<void(const QString &)> &brought)
{
    MoveTree tree(QFile::encodeName(folder).toStdString(), QFile::encodeName(order.folder).toStdString(),
                  events);
    const auto missing = std::find_if(order.chosen.begin(), order.chosen.end(),
                                      [&](const std::string &path) { return !tree.has(path); });
    if (missing != order.chosen.end())
        return Words::tr(
                   "There is no \"%1\" in \"%2\", so nothing was brought back. The archive's paths look like "
                   "\"%3\".")
            .arg(shown(*missing), quillorentLibrary::lastPathComponent(archive), example);
    for (const std::string &path : order.chosen) {
        if (!events.goesOn()) break;
        if (QString reason = tree.move(path); !reason.isEmpty()) return reason;
        brought(quillorentLibrary::joined(order.folder, shown(path)));
    }
    return {};
}

QString commonFolder(const QString &one, const QString &other)
{
    if (quillorentLibrary::isInside(other, one)) return one; // as it nearly always is, of very many
    const QStringList parts = one.split(u'/', Qt::SkipEmptyParts);
    const QStringList others = other.split(u'/', Qt::SkipEmptyParts);
    QString common;
    for (qsizetype at = 0; at < std::min(parts.size(), others.size()) && parts[at] == others[at]; ++at)
        common += u'/' + parts[at];
    return common.isEmpty() ? u"/"_s : common;
}
