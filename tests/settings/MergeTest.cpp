#include "plist/File.h"
#include "plist/Value.h"
#include "settings/Upgrade.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using plist::Dictionary;

namespace {

/// The dictionary that the elements stand for.
Dictionary parsed(const std::string &elements)
{
    const TemporaryFolder folder;
    writeFile(folder / "list", "<plist version=\"1.0\"><dict>" + elements + "</dict></plist>");
    const plist::FileContent content = plist::readFile(QString::fromStdString((folder / "list").string()));
    EXPECT_EQ(content.reason, QString());
    return content.dictionary;
}

std::string text(const std::string &key, const std::string &value)
{
    return "<key>" + key + "</key><string>" + value + "</string>";
}

std::string list(const std::string &key, const std::vector<std::string> &values)
{
    std::string elements;
    for (const std::string &value : values)
        elements += "<string>" + value + "</string>";
    return "<key>" + key + "</key><array>" + elements + "</array>";
}

std::string table(const std::string &key, const std::string &entries)
{
    return "<key>" + key + "</key><dict>" + entries + "</dict>";
}

struct Merge {
    const char *name;
    QString type;
    std::string user;
    std::string newDict;
    std::string expected;
};

const QString config = u"config"_s;
const QString profile = u"profile"_s;
const std::string number = "<key>n</key><integer>1</integer>";

} // namespace

TEST(MergeData, AddsWhatIsMissing)
{
    for (const Merge &merge :
         {Merge{"texts", config, text("b", "user"), text("a", "new") + text("b", "new"),
                text("b", "user") + text("a", "new")},
          Merge{"version", config, text("version", "1"), text("version", "2"), text("version", "2")},
          Merge{"noVersion", config, "", text("version", "2") + text("a", ""), text("a", "")},
          Merge{"missingElement", config, list("mustdo", {"a"}), list("mustdo", {"a", "b"}),
                list("mustdo", {"a", "mustdo"})},
          Merge{"missingElements", config, list("l", {"x"}), list("l", {"a", "b"}),
                list("l", {"x", "l", "l"})},
          Merge{"elementNamedLikeTheList", config, list("l", {}), list("l", {"a", "l"}), list("l", {"l"})},
          Merge{"missingEntry", config, table("t", text("a", "user")),
                table("t", text("a", "1") + text("b", "2")),
                table("t", text("a", "user") + table("t", text("a", "1") + text("b", "2")))},
          Merge{"otherKinds", config, "", number + "<key>b</key><true/>", ""},
          Merge{"otherKindInThePlace", config, text("l", "") + text("t", ""),
                list("l", {"a"}) + table("t", text("a", "")), text("l", "") + text("t", "")},
          Merge{"unknownType", u"Config"_s, text("version", "1"), text("version", "2") + text("a", ""),
                text("version", "1")},
          Merge{"profileTexts", profile, table("P", text("part", "5")) + table("Q", ""),
                table("Default profile", text("part", "1") + text("path", "") + number),
                table("P", text("part", "5") + text("path", "")) +
                    table("Q", text("part", "1") + text("path", ""))},
          Merge{"profileLists", profile, table("P", list("l", {"a"})) + table("Q", ""),
                table("Default profile", list("l", {"b"})),
                table("P", list("l", {"a", "l"})) + table("Q", list("l", {"b"}))},
          Merge{"profileTable", profile, table("P", table("t", "")) + table("Q", ""),
                table("Default profile", table("t", text("a", "1"))),
                table("P", table("t", "")) + table("Q", table("t", text("a", "1")))},
          Merge{"profileTableAndTopLevelOne", profile, table("P", table("t", "")),
                table("Default profile", table("t", text("a", "1"))) + table("t", text("b", "2")),
                table("P", table("t", table("t", text("b", "2"))))},
          Merge{"noProfileIsAdded", profile, "", table("Default profile", text("part", "1")), ""},
          Merge{"profileVersion", profile, text("version", "1"), table("Default profile", text("part", "1")),
                text("version", "1")}}) {
        SCOPED_TRACE(merge.name);
        const Dictionary user = parsed(merge.user);
        const Dictionary merged =
            quillorentLibrary::mergeData(user, parsed(merge.newDict), u"2"_s, merge.type);
        EXPECT_TRUE(merged.isSameObject(user));
        EXPECT_EQ(merged, parsed(merge.expected));
        EXPECT_EQ(merged.keys(), parsed(merge.expected).keys());
    }
}

TEST(MergeData, StoresTheTemplatesOwnObjects)
{
    const Dictionary user = Dictionary::make();
    const Dictionary newDict = parsed(list("l", {"a"}) + table("t", ""));
    quillorentLibrary::mergeData(user, newDict, u"2"_s, config);
    EXPECT_TRUE(user.array(u"l"_s).isSameObject(newDict.array(u"l"_s)));
    EXPECT_TRUE(user.dictionary(u"t"_s).isSameObject(newDict.dictionary(u"t"_s)));
    EXPECT_FALSE(quillorentLibrary::mergeData({}, newDict, u"2"_s, config));
}
