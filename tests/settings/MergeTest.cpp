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
             Merge{"config", "mustdo[ a ]", "mustdo[ a b ]", "mustdo[ a mustdo ]"},
             Merge{"config", "l[ ]", "l[ a l ]", "l[ l ]"},
             Merge{"config", "t{ a=user }", "t{ a=1 b=2 }", "t{ a=user t{ a=1 b=2 } }"},
             Merge{"config", "t{ b=own a=user } l[ a b ]", "t{ a=1 } l[ b a ]", "t{ b=own a=user } l[ a b ]"},
             Merge{"config", "", "n# b!", ""},
             Merge{"config", "l= t=", "l[ a ] t{ a= }", "l= t="},
             Merge{"Config", "version=1", "version=2 a=", "version=1"}, // no type that is known
             Merge{"profile", "P{ part=5 } Q{ }", "Default_profile{ part=1 path= n# }",
                   "P{ part=5 path= } Q{ part=1 path= }"},
             Merge{"profile", "P{ l[ a ] } Q{ }", "Default_profile{ l[ b ] }", "P{ l[ a l ] } Q{ l[ b ] }"},
             Merge{"profile", "P{ t{ } } Q{ }", "Default_profile{ t{ a=1 } }", "P{ t{ } } Q{ t{ a=1 } }"},
             Merge{"profile", "P{ t{ } }", "Default_profile{ t{ a=1 } } t{ b=2 }", "P{ t{ t{ b=2 } } }"},
             Merge{"profile", "", "Default_profile{ part=1 }", ""},
             Merge{"profile", "version=1", "Default_profile{ part=1 }", "version=1"},
         }) {
        SCOPED_TRACE(std::string(merge.user) + " and " + merge.newDict);
        const Dictionary user = parsed(merge.user);
        const Dictionary merged = quillorentLibrary::mergeData(user, parsed(merge.newDict), u"2"_s,
                                                               QString::fromLatin1(merge.type));
        EXPECT_TRUE(merged.isSameObject(user));
        EXPECT_EQ(merged, parsed(merge.expected));
        EXPECT_EQ(merged.keys(), parsed(merge.expected).keys());
    }
}

TEST(MergeData, StoresTheTemplatesOwnObjects)
{
    const Dictionary user = Dictionary::make();
    const Dictionary newDict = parsed("l[ a ] t{ }");
    quillorentLibrary::mergeData(user, newDict, u"2"_s, u"config"_s);
    EXPECT_TRUE(user.array(u"l"_s).isSameObject(newDict.array(u"l"_s)));
    EXPECT_TRUE(user.dictionary(u"t"_s).isSameObject(newDict.dictionary(u"t"_s)));
    EXPECT_FALSE(quillorentLibrary::mergeData({}, newDict, u"2"_s, u"config"_s));
}
