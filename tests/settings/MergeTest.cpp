#include "settings/Reconcile.h"
#include "settings/Upgrade.h"

#include "plist/Value.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace Qt::Literals::StringLiterals;
using plist::Array;
using plist::Dictionary;

namespace {

/// The dictionary that the words stand for: text=value, list[ of texts ], table{ … }, number#, truth!
Dictionary parsed(std::istream &words)
{
    const Dictionary dictionary = Dictionary::make();
    for (std::string word; words >> word && word != "}";) {
        const QString key =
            QString::fromStdString(word.substr(0, word.find_first_of("=[{#!"))).replace(u'_', u' ');
        const std::string rest = word.substr(static_cast<std::size_t>(key.size()));
        if (rest == "{") dictionary.setValue(key, parsed(words));
        if (rest == "#") dictionary.setValue(key, 1);
        if (rest == "!") dictionary.setValue(key, true);
        if (rest.starts_with('=')) dictionary.setValue(key, QString::fromStdString(rest.substr(1)));
        if (rest != "[") continue;
        dictionary.setValue(key, Array::make());
        while (words >> word && word != "]")
            dictionary.array(key).append(QString::fromStdString(word));
    }
    return dictionary;
}

Dictionary parsed(const std::string &words)
{
    std::istringstream stream(words);
    return parsed(stream);
}

} // namespace

TEST(MergeData, AddsWhatIsMissing)
{
    struct Merge {
        const char *type;
        const char *user;
        const char *newDict;
        const char *expected;
    };
    for (const Merge &merge : {
             Merge{"config", "b=user", "a=new b=new", "b=user a=new"},
             Merge{"config", "version=1", "version=2", "version=2"},
             Merge{"config", "", "version=2 a=", "a="},
             Merge{"config", "l[ x ]", "l[ a b ]", "l[ x l l ]"},
             Merge{"config", "version=1 l[ a l ]", "l[ a b c ]", "version=2 l[ a l l l ]"},
             Merge{"config", "l[ ]", "l[ a l ]", "l[ l ]"},
             Merge{"config", "t{ a=user }", "t{ a=1 b=2 }", "t{ a=user t{ a=1 b=2 } }"},
             Merge{"config", "t{ b=own a=user } l[ a b ]", "t{ a=1 } l[ b a ]", "t{ b=own a=user } l[ a b ]"},
             Merge{"config", "l= t=", "l[ a ] t{ a= }", "l= t="},
             Merge{"Config", "version=1", "version=2 a=", "version=1"}, // no type that is known
             Merge{"profile", "P{ part=5 } Q{ }", "Default_profile{ part=1 path= n# }",
                   "P{ part=5 path= } Q{ part=1 path= }"},
             Merge{"profile", "P{ l[ a ] } Q{ }", "Default_profile{ l[ b ] }", "P{ l[ a l ] } Q{ l[ b ] }"},
             Merge{"profile", "P{ t{ } } Q{ }", "Default_profile{ t{ a=1 } }", "P{ t{ } } Q{ t{ a=1 } }"},
             Merge{"profile", "P{ t{ } }", "Default_profile{ t{ a=1 } } t{ b=2 }", "P{ t{ t{ b=2 } } }"},
             Merge{"profile", "version=1", "Default_profile{ part=1 }", "version=1"},
         }) {
        SCOPED_TRACE(std::string(merge.user) + " and " + merge.newDict);
        const Dictionary user = parsed(merge.user);
        const Dictionary merged = quillorentLibrary::mergeData(user, parsed(merge.newDict), u"2"_s,
                                                               QString::fromLatin1(merge.type));
        EXPECT_TRUE(merged.isSameObject(user));
        EXPECT_EQ(merged, parsed(merge.expected));
        EXPECT_EQ(merged.keys(), parsed(merge.expected).keys());
        // Without a version it comes again at every start.
        if (merge.type != std::string("config") || user.contains(u"version"_s)) continue;
        quillorentLibrary::mergeData(user, parsed(merge.newDict), u"2"_s, u"config"_s);
        EXPECT_EQ(user, parsed(merge.expected));
    }
}

TEST(Reconcile, UnitesWhatBothSidesChanged)
{
    struct Case {
        const char *base;
        const char *mine;
        const char *theirs;
        const char *expected;
        const char *conflicts; ///< mine goes first in them
        const char *takenOver;
    };
    for (const Case &c : {
             Case{"A=1 B=1", "A=2 B=1", "A=1 B=2", "A=2 B=2", "", "B"},
             Case{"A=1 B=1", "A=1", "A=1 B=1 C=1", "A=1 C=1", "", "C"},
             Case{"A=1 B=1 C=1", "A=2 B=1 C=1", "A=1", "A=2", "", "B C"},
             Case{"A=1", "A=2", "A=2", "A=2", "", ""},
             Case{"A=1 B=1", "A=2 B=1", "A=3 B=2", "A=2 B=2", "A", "B"},
             Case{"A=1 B=1", "A=2", "B=2", "A=2", "A B", ""},
             Case{"", "A=1", "A=2", "A=1", "A", ""},
             Case{"t{ a=1 b=1 }", "t{ a=2 b=1 }", "t{ a=1 b=2 }", "t{ a=2 b=2 }", "", "t/b"},
             Case{"t{ a=1 }", "t{ a=2 }", "t{ a=3 c=1 }", "t{ a=2 c=1 }", "t/a", "t/c"},
             Case{"t{ u{ a=1 b=1 } }", "t{ u{ a=2 b=1 } }", "t{ u{ a=1 b=2 } }", "t{ u{ a=2 b=1 } }", "t/u",
                  ""},
             Case{"t{ a=1 }", "t{ a=1 }", "t=1", "t=1", "", "t"},
         }) {
        SCOPED_TRACE(std::string(c.mine) + " and " + c.theirs);
        using namespace quillorentLibrary;
        const Dictionary mine = parsed(c.mine);
        const Reconciled all = reconcile(parsed(c.base), mine, parsed(c.theirs), 2, Prefer::Mine);
        EXPECT_EQ(all.content, parsed(c.expected));
        EXPECT_EQ(all.conflicts.join(u' ').toStdString(), c.conflicts);
        EXPECT_EQ(all.takenOver.join(u' ').toStdString(), c.takenOver);
        EXPECT_EQ(mine, parsed(c.mine));
        const Reconciled theirs = reconcile(parsed(c.base), mine, parsed(c.theirs), 2, Prefer::Theirs);
        EXPECT_EQ(theirs.content == all.content, all.conflicts.isEmpty());

        // What was changed here meanwhile stays.
        mine.setValue(u"meanwhile"_s, 1);
        takeOver(mine, parsed(c.mine), all.content, 2);
        all.content.setValue(u"meanwhile"_s, 1);
        EXPECT_EQ(mine, all.content);
    }
}
