#include "settings/Reconcile.h"

#include "plist/Value.h"

namespace quillorentLibrary {

namespace {

QStringList allKeys(const plist::Dictionary &first, const plist::Dictionary &second)
{
    QStringList keys = first.keys();
    for (const QString &key : second.keys())
        if (!first.contains(key)) keys.append(key);
    return keys;
}

} // namespace

Reconciled reconcile(const plist::Dictionary &base, const plist::Dictionary &mine,
                     const plist::Dictionary &theirs, int depth, Prefer prefer)
{
    Reconciled all;
    all.content = plist::Dictionary::make();
    for (const QString &key : allKeys(mine, theirs)) {
        const plist::Value was = base.value(key);
        const plist::Value here = mine.value(key);
        const plist::Value there = theirs.value(key);
        if (here == there || there == was) {
            all.content.setValue(key, here.deepCopy());
            continue;
        }
        if (depth > 1 && here.isDictionary() && there.isDictionary()) {
            const Reconciled inner =
                reconcile(was.dictionary(), here.dictionary(), there.dictionary(), depth - 1, prefer);
            all.content.setValue(key, inner.content);
            for (const QString &name : inner.conflicts)
                all.conflicts.append(key + u'/' + name);
            for (const QString &name : inner.takenOver)
                all.takenOver.append(key + u'/' + name);
            continue;
        }
        const bool isTheirs = here == was;
        (isTheirs ? all.takenOver : all.conflicts).append(key);
        all.content.setValue(key, (isTheirs || prefer == Prefer::Theirs ? there : here).deepCopy());
    }
    return all;
}

void takeOver(const plist::Dictionary &live, const plist::Dictionary &mine, const plist::Dictionary &content,
              int depth)
{
    for (const QString &key : allKeys(mine, content)) {
        const plist::Value value = content.value(key);
        if (value == mine.value(key)) continue;
        if (depth > 1 && value.isDictionary() && live.dictionary(key))
            takeOver(live.dictionary(key), mine.dictionary(key), value.dictionary(), depth - 1);
        else
            live.setValue(key, value.deepCopy());
    }
}

} // namespace quillorentLibrary
