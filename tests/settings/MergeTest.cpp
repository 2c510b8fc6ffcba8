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
    for (const auto &[type, user, newDict, expected] : {
             std::tuple{"config", "b=user", "a=new b=new", "b=user a=new"},
             {"config", "version=1", "version=2", "version=2"},
             {"config", "", "version=2 a=", "a="},
             {"config", "l[ x ]", "l[ a b ]", "l[ x l l ]"},
             {"config", "version=1 l[ a l ]", "l[ a b c ]", "version=2 l[ a l l l ]"},
             {"config", "l[ ]", "l[ a l ]", "l[ l ]"},
             {"config", "t{ a=user }", "t{ a=1 b=2 }", "t{ a=user t{ a=1 b=2 } }"},
             {"config", "t{ b=own a=user } l[ a b ]", "t{ a=1 } l[ b a ]", "t{ b=own a=user } l[ a b ]"},
             {"config", "l= t=", "l[ a ] t{ a= }", "l= t="},
             {"Config", "version=1", "version=2 a=", "version=1"}, // no type that is known
             {"profile", "P{ part=5 } Q{ }", "Default_profile{ part=1 path= n# }",
              "P{ part=5 path= } Q{ part=1 path= }"},
             {"profile", "P{ l[ a ] } Q{ }", "Default_profile{ l[ b ] }", "P{ l[ a l ] } Q{ l[ b ] }"},
             {"profile", "P{ t{ } } Q{ }", "Default_profile{ t{ a=1 } }", "P{ t{ } } Q{ t{ a=1 } }"},
             {"profile", "P{ t{ } }", "Default_profile{ t{ a=1 } } t{ b=2 }", "P{ t{ t{ b=2 } } }"},
             {"profile", "version=1", "Default_profile{ part=1 }", "version=1"},
         }) {
        SCOPED_TRACE(std::string(user) + " and " + newDict);
        const Dictionary content = parsed(user);
        const Dictionary merged =
            quillorentLibrary::mergeData(content, parsed(newDict), u"2"_s, QString::fromLatin1(type));
        EXPECT_TRUE(merged.isSameObject(content));
        EXPECT_EQ(merged, parsed(expected));
        EXPECT_EQ(merged.keys(), parsed(expected).keys());
        // Without a version it comes again at every start.
        if (type != std::string("config") || content.contains(u"version"_s)) continue;
        quillorentLibrary::mergeData(content, parsed(newDict), u"2"_s, u"config"_s);
        EXPECT_EQ(content, parsed(expected));
    }
}

TEST(Reconcile, UnitesWhatBothSidesChanged)
{
    // In conflicts, mine goes first.
    for (const auto &[base, here, there, expected, conflicts, takenOver] : {
             std::tuple{"A=1 B=1", "A=2 B=1", "A=1 B=2", "A=2 B=2", "", "B"},
             {"A=1 B=1", "A=1", "A=1 B=1 C=1", "A=1 C=1", "", "C"},
             {"A=1 B=1 C=1", "A=2 B=1 C=1", "A=1", "A=2", "", "B C"},
             {"A=1", "A=2", "A=2", "A=2", "", ""},
             {"A=1 B=1", "A=2 B=1", "A=3 B=2", "A=2 B=2", "A", "B"},
             {"A=1 B=1", "A=2", "B=2", "A=2", "A B", ""},
             {"", "A=1", "A=2", "A=1", "A", ""},
             {"t{ a=1 b=1 }", "t{ a=2 b=1 }", "t{ a=1 b=2 }", "t{ a=2 b=2 }", "", "t/b"},
             {"t{ a=1 }", "t{ a=2 }", "t{ a=3 c=1 }", "t{ a=2 c=1 }", "t/a", "t/c"},
             {"t{ u{ a=1 b=1 } }", "t{ u{ a=2 b=1 } }", "t{ u{ a=1 b=2 } }", "t{ u{ a=2 b=1 } }", "t/u", ""},
             {"t{ a=1 }", "t{ a=1 }", "t=1", "t=1", "", "t"},
         }) {
        SCOPED_TRACE(std::string(here) + " and " + there);
        using namespace quillorentLibrary;
        const Dictionary mine = parsed(here);
        const Reconciled all = reconcile(parsed(base), mine, parsed(there), 2, Prefer::Mine);
        EXPECT_EQ(all.content, parsed(expected));
        EXPECT_EQ(all.conflicts.join(u' ').toStdString(), conflicts);
        EXPECT_EQ(all.takenOver.join(u' ').toStdString(), takenOver);
        EXPECT_EQ(mine, parsed(here));
        const Reconciled theirs = reconcile(parsed(base), mine, parsed(there), 2, Prefer::Theirs);
        EXPECT_EQ(theirs.content == all.content, all.conflicts.isEmpty());

        // What was changed here meanwhile stays.
        mine.setValue(u"meanwhile"_s, 1);
        takeOver(mine, parsed(here), all.content, 2);
        all.content.setValue(u"meanwhile"_s, 1);
        EXPECT_EQ(mine, all.content);
    }
}
