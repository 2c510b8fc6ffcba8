#include "runs/RunRecord.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array outcomeNames{
    std::pair{Outcome::Open, "open"}, std::pair{Outcome::Succeeded, "succeeded"},
    std::pair{Outcome::Failed, "failed"}, std::pair{Outcome::Skipped, "skipped"},
    std::pair{Outcome::Cancelled, "cancelled"}};

QString nameOf(Outcome outcome)
{
    for (const auto &[known, name] : outcomeNames)
        if (known == outcome) return QString::fromLatin1(name);
    return {};
}

Outcome outcomeOf(const QJsonValue &value)
{
    for (const auto &[known, name] : outcomeNames)
        if (value.toString() == QLatin1StringView(name)) return known;
    return Outcome::Open;
}

QString textOf(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODateWithMs) : QString();
}

QDateTime timeOf(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

// JSON's numbers are doubles to most readers, and an inode may be larger than those are exact.
QString number(quint64 value) { return QString::number(value); }

template <class T, class Make>
QJsonArray arrayOf(const QList<T> &values, Make make)
{
    QJsonArray array;
    for (const T &value : values)
        array.append(make(value));
    return array;
}

template <class T, class Read>
QList<T> listOf(const QJsonValue &value, Read read)
{
    QList<T> list;
    for (const auto &entry : value.toArray())
        list.append(read(entry));
    return list;
}

QJsonValue fromText(const QString &text) { return text; }
QString readText(const QJsonValue &value) { return value.toString(); }

QJsonValue fromAside(const Aside &aside) { return QJsonObject{{u"from"_s, aside.from}, {u"to"_s, aside.to}}; }

Aside readAside(const QJsonValue &value) { return {value[u"from"].toString(), value[u"to"].toString()}; }

QJsonValue fromLeft(const LeftFile &left)
{
    QJsonObject object{{u"path"_s, left.path}, {u"clear"_s, left.isClear}};
    if (!left.identity) return object;
    object[u"device"] = number(left.identity->device);
    object[u"inode"] = number(left.identity->inode);
    object[u"bytes"] = left.identity->bytes;
    object[u"modified"] = number(quint64(left.identity->modified));
    return object;
}

LeftFile readLeft(const QJsonValue &value)
{
    LeftFile left{.path = value[u"path"].toString(), .isClear = value[u"clear"].toBool()};
    if (!value.toObject().contains(u"inode")) return left;
    left.identity = FileIdentity{.device = value[u"device"].toString().toULongLong(),
                                 .inode = value[u"inode"].toString().toULongLong(),
                                 .bytes = value[u"bytes"].toInteger(),
                                 .modified = qint64(value[u"modified"].toString().toULongLong())};
    return left;
}

QJsonValue fromItem(const ItemRecord &item)
{
    QJsonObject object{{u"path"_s, item.path},
                       {u"outcome"_s, nameOf(item.outcome)},
                       {u"bytes"_s, qint64(item.bytes)},
                       {u"archives"_s, arrayOf(item.archives, fromText)},
                       {u"between"_s, arrayOf(item.between, fromText)},
                       {u"left"_s, arrayOf(item.left, fromLeft)},
                       {u"former"_s, arrayOf(item.former, fromAside)},
                       {u"final"_s, arrayOf(item.final, fromText)},
                       {u"kept"_s, arrayOf(item.kept, fromAside)}};
    if (!item.reason.isEmpty()) object[u"reason"] = item.reason;
    if (!item.clear.isEmpty()) object[u"clear"] = item.clear;
    if (!item.contents.isEmpty()) object[u"contents"] = item.contents;
    if (item.packingSince.isValid()) object[u"packingSince"] = textOf(item.packingSince);
    return object;
}

ItemRecord readItem(const QJsonValue &value)
{
    return {.path = value[u"path"].toString(),
            .outcome = outcomeOf(value[u"outcome"]),
            .reason = value[u"reason"].toString(),
            .bytes = quint64(value[u"bytes"].toInteger()),
            .archives = listOf<QString>(value[u"archives"], readText),
            .between = listOf<QString>(value[u"between"], readText),
            .clear = value[u"clear"].toString(),
            .left = listOf<LeftFile>(value[u"left"], readLeft),
            .former = listOf<Aside>(value[u"former"], readAside),
            .final = listOf<QString>(value[u"final"], readText),
            .packingSince = timeOf(value[u"packingSince"]),
            .kept = listOf<Aside>(value[u"kept"], readAside),
            .contents = value[u"contents"].toString()};
}

} // namespace

namespace {

QJsonObject objectOf(const RunRecord &record)
{
    QJsonObject object{{u"kind"_s, record.kind},
                       {u"profile"_s, record.profile},
                       {u"folder"_s, record.folder},
                       {u"began"_s, textOf(record.began)},
                       {u"items"_s, arrayOf(record.items, fromItem)}};
    if (record.ended.isValid()) {
        object[u"ended"] = textOf(record.ended);
        object[u"outcome"] = nameOf(record.outcome);
        object[u"summary"] = record.summary;
    }
    return object;
}

std::optional<RunRecord> recordOf(const QJsonObject &object)
{
    if (!object[u"kind"].isString() || !object[u"folder"].isString()) return std::nullopt;
    return RunRecord{.kind = object[u"kind"].toString(),
                     .profile = object[u"profile"].toString(),
                     .folder = object[u"folder"].toString(),
                     .began = timeOf(object[u"began"]),
                     .ended = timeOf(object[u"ended"]),
                     .outcome = outcomeOf(object[u"outcome"]),
                     .summary = object[u"summary"].toString(),
                     .items = listOf<ItemRecord>(object[u"items"], readItem)};
}

} // namespace

QByteArray toJson(const RunRecord &record) { return QJsonDocument(objectOf(record)).toJson(); }

QByteArray recordLine(const RunRecord &record)
{
    return QJsonDocument(objectOf(record)).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray itemLine(qsizetype index, const ItemRecord &item)
{
    const QJsonObject change{{u"index"_s, index}, {u"item"_s, fromItem(item)}};
    return QJsonDocument(change).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<RunRecord> recordFromJson(const QByteArray &json)
{
    const QJsonDocument whole = QJsonDocument::fromJson(json);
    if (whole.isObject()) return recordOf(whole.object());

    const QList<QByteArray> lines = json.split('\n');
    std::optional<RunRecord> record = recordOf(QJsonDocument::fromJson(lines.first()).object());
    for (qsizetype line = 1; record && line < lines.size(); ++line) {
        const QJsonObject change = QJsonDocument::fromJson(lines[line]).object();
        const qint64 index = change[u"index"].toInteger(-1);
        if (index >= 0 && index < record->items.size()) record->items[index] = readItem(change[u"item"]);
    }
    return record;
}
