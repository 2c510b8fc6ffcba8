#pragma once

#include "plist/Dictionary.h"

#include <QStringList>

namespace quillorentLibrary {

/// Where both sides have changed one thing, each in its own way.
enum class Prefer { Mine, Theirs };

/// Two states that came of one.
struct Reconciled {
    plist::Dictionary content; ///< a new dictionary with the changes of both
    QStringList conflicts;     ///< what both have changed, by its keys, joined by "/"
    QStringList takenOver;     ///< what is theirs alone, likewise
};

/// Unites what was changed here (`mine`) and by others (`theirs`) since both were `base`; none of them is
/// changed. What lies under a key is changed as a whole; only of dictionaries above the level `depth` (1: of
/// none) each key is looked at by itself. The keys keep my order, and what others added follows.
[[nodiscard]] Reconciled reconcile(const plist::Dictionary &base, const plist::Dictionary &mine,
                                   const plist::Dictionary &theirs, int depth, Prefer prefer);

/// Brings into `live`, whose state of just before is `mine`, where `content` differs from that.
void takeOver(const plist::Dictionary &live, const plist::Dictionary &mine, const plist::Dictionary &content,
              int depth);

} // namespace quillorentLibrary
