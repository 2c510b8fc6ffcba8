#pragma once

#include "sync/SyncOrder.h"

#include <QString>

using namespace Qt::StringLiterals;

/// An order from "x" and "d" in `source` to `destination`, changed by words: "delete", "remove",
/// "server=box", "dst=/other", "add=/entry", "no-excludes" and the like.
inline SyncOrder orderOf(const QString &changes, const QString &source = QStringLiteral("/a"),
                         const QString &destination = QStringLiteral("/d"))
{
    SyncOrder order{.tool = QStringLiteral("/usr/bin/rsync"),
                    .entries = {source + QStringLiteral("/x"), source + QStringLiteral("/d")},
                    .destination = destination,
                    .mode = QStringLiteral("0"),
                    .parameters = QStringLiteral("-ar"),
                    .excludes = QStringLiteral("--exclude=.DS_Store")};
    for (const QString &change : changes.split(u' ', Qt::SkipEmptyParts)) {
        const QString word = change.section(u'=', 0, 0);
        const QString value = change.section(u'=', 1);
        if (word == u"delete") order.deletesExtra = true;
        if (word == u"remove") order.removesSources = true;
        if (word == u"checksum") order.mode = QStringLiteral("1");
        if (word == u"tool") order.tool = value;
        if (word == u"add") order.entries.append(value);
        if (word == u"only") order.entries = QStringList{value};
        if (word == u"dst") order.destination = value;
        if (word == u"user") order.user = value;
        if (word == u"port") order.port = value;
        if (word == u"server") order.server = value;
        if (word == u"server") order.isRemote = true;
        if (word == u"excludes") order.excludes = value;
        if (word == u"no-excludes") order.excludes.reset();
        if (word == u"no-parameters") order.parameters.reset();
    }
    return order;
}
