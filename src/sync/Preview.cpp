#include "sync/Preview.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

using Change = PreviewRow::Change;

bool isOctal(char digit) { return digit >= '0' && digit <= '7'; }

/// rsync writes a byte that it does not want to print as \#, and three octal digits.
QString unescape(QStringView name)
{
    if (!name.contains(u"\\#")) return name.toString();
    const QByteArray escaped = name.toUtf8();
    QByteArray bytes;
    for (qsizetype at = 0; at < escaped.size(); ++at) {
        const QByteArray digits = escaped.mid(at, 2) == "\\#" ? escaped.mid(at + 2, 3) : QByteArray();
        const bool isCode = digits.size() == 3 && std::all_of(digits.begin(), digits.end(), isOctal);
        bytes.append(isCode ? static_cast<char>(digits.toInt(nullptr, 8)) : escaped[at]);
        if (isCode) at += digits.size() + 1;
    }
    return QString::fromUtf8(bytes);
}

/// What one line tells; none where nothing would be done.
std::optional<Change> changeOf(QStringView item, bool removesSources)
{
    if (item.startsWith(u"*deleting")) return Change::Delete;
    if (item.size() < 3) return std::nullopt;
    const bool isFolder = item[1] == u'd';
    const bool isNew = item[2] == u'+';
    if (isFolder && isNew) return Change::MakeFolder;
    if (item[0] == u'<' || item[0] == u'>' || item[0] == u'c' || item[0] == u'h')
        return isNew ? Change::Copy : Change::Replace;
    if (removesSources && !isFolder) return Change::RemoveHere;
    if (item.mid(2).trimmed().isEmpty()) return std::nullopt;
    return Change::Adjust;
}

std::optional<PreviewRow> readLine(QStringView line, bool removesSources, bool &isItem)
{
    const QList<QStringView> fields = line.split(u'\t');
    isItem = fields.size() >= 3 && fields[0].size() == 11;
    if (!isItem) return std::nullopt;
    const auto change = changeOf(fields[0], removesSources);
    if (!change) return std::nullopt;
    const qsizetype nameAt = fields[0].size() + fields[1].size() + 2;
    return PreviewRow{*change, fields[0][1] == u'd' ? 0 : fields[1].toLongLong(), unescape(line.mid(nameAt))};
}

/// rsync's own words on the dry run, which are no complaint.
bool isRemark(QStringView line) { return line.isEmpty() || line.startsWith(u"created directory "); }

bool isRemovedHere(const Preview &preview, const PreviewRow &row)
{
    return preview.removesSources &&
           (row.change == Change::Copy || row.change == Change::Replace || row.change == Change::RemoveHere);
}

/// Whether it is of the destination, and which.
std::set<std::pair<bool, QString>> deletedBy(const Preview &preview)
{
    std::set<std::pair<bool, QString>> deleted;
    for (const PreviewRow &row : preview.rows)
        if (row.change == Change::Delete || isRemovedHere(preview, row))
            deleted.emplace(row.change == Change::Delete, row.path);
    return deleted;
}

} // namespace

Preview readPreview(const QString &output, bool removesSources)
{
    Preview preview{.rows = {}, .complaints = {}, .removesSources = removesSources};
    for (const QStringView line : QStringView(output).split(u'\n')) {
        bool isItem = false;
        if (auto row = readLine(line, removesSources, isItem)) preview.rows.push_back(*std::move(row));
        if (!isItem && !isRemark(line)) preview.complaints += line.toString() + u'\n';
    }
    std::stable_sort(preview.rows.begin(), preview.rows.end(),
                     [](const PreviewRow &a, const PreviewRow &b) { return a.change < b.change; });
    return preview;
}

QString describeChange(Change change, bool removesSources)
{
    switch (change) {
    case Change::Delete:
        return Words::tr("deleted at the destination");
    case Change::Replace:
        return removesSources ? Words::tr("replaced there, removed here") : Words::tr("replaced");
    case Change::Copy:
        return removesSources ? Words::tr("moved there") : Words::tr("copied");
    case Change::RemoveHere:
        return Words::tr("there already, removed here");
    case Change::MakeFolder:
        return Words::tr("folder made");
    case Change::Adjust:
        break;
    }
    return Words::tr("date or permissions set");
}

QString summarize(const Preview &preview)
{
    std::array<qsizetype, 6> counts{};
    qint64 bytes = 0;
    for (const PreviewRow &row : preview.rows) {
        ++counts[static_cast<std::size_t>(row.change)];
        if (row.change == Change::Copy || row.change == Change::Replace) bytes += row.size;
    }
    QStringList parts;
    for (const Change change : {Change::Delete, Change::Replace, Change::Copy, Change::RemoveHere,
                                Change::MakeFolder, Change::Adjust}) {
        const qsizetype count = counts[static_cast<std::size_t>(change)];
        if (count > 0)
            parts.append(describeChange(change, preview.removesSources) + u": "_s +
                         QLocale().toString(count));
    }
    if (parts.isEmpty()) return Words::tr("Nothing would be copied or deleted.");
    return Words::tr("%1. %2 would be copied.")
        .arg(parts.join(u"; "_s), QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat));
}

bool deletesMore(const Preview &preview, const Preview &shown)
{
    const auto now = deletedBy(preview);
    const auto before = deletedBy(shown);
    return !std::includes(before.begin(), before.end(), now.begin(), now.end());
}

QString askForDeletions(const Preview &preview)
{
    qsizetype there = 0;
    qsizetype here = 0;
    for (const PreviewRow &row : preview.rows) {
        if (row.change == Change::Delete) ++there;
        if (isRemovedHere(preview, row)) ++here;
    }
    const auto files = [](qsizetype count) { return Words::tr("%n file(s)", nullptr, int(count)); };
    if (there > 0 && here > 0)
        return Words::tr("Delete %1 there, remove %2 here?").arg(files(there), files(here));
    if (there > 0) return Words::tr("Delete %1 there?").arg(files(there));
    return here > 0 ? Words::tr("Remove %1 here?").arg(files(here)) : QString();
}
