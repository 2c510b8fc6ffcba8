#pragma once

#include "sync/SyncOrder.h"

#include <QString>

/// An order from "x" and "d" in `source` to `destination`, changed by words: "delete", "remove",
/// "server=box", "dst=/other", "add=/entry", "no-excludes" and the like.
inline SyncOrder orderOf(const QString &changes, const QString &source = u"/a"_qs,
                         const QString &destination = u"/d"_qs)
{
    SyncOrder order{.tool = u"/usr/bin/rsync"_qs,
                    .entries = {source + u"/x"_qs, source + u"/d"_qs},
                    .destination = destination,
                    .mode = u"0"_qs,
                    .parameters = u"-ar"_qs,
                    .excludes = u"--exclude=.DS_Store"_qs};
    for (const QString &change : changes.split(u' ', Qt::SkipEmptyParts)) {
        const QString word = change.section(u'=', 0, 0);
        const QString value = change.section(u'=', 1);
        if (word == u"delete") order.deletesExtra = true;
        if (word == u"remove") order.removesSources = true;
        if (word == u"checksum") order.mode = u"1"_qs;
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
