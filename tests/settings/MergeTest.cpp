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
    return plist::readFile(QString::fromStdString((folder / "list").string())).dictionary;
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
    const std::vector<Merge> cases{
        {"texts", config, text("b", "user"), text("a", "new") + text("b", "new"),
         text("b", "user") + text("a", "new")},
        {"missingElements", config, list("l", {"x"}), list("l", {"a", "b"}), list("l", {"x", "l", "l"})},
        {"elementNamedLikeTheList", config, list("l", {}), list("l", {"a", "l"}), list("l", {"l"})},
        {"missingEntry", config, table("t", text("a", "user")), table("t", text("a", "1") + text("b", "2")),
         table("t", text("a", "user") + table("t", text("a", "1") + text("b", "2")))},
        {"otherKinds", config, "", number + "<key>b</key><true/>", ""},
        {"otherKindInThePlace", config, text("l", "") + text("t", ""),
         list("l", {"a"}) + table("t", text("a", "")), text("l", "") + text("t", "")},
        {"unknownType", u"Config"_s, text("version", "1"), text("version", "2") + text("a", ""),
         text("version", "1")},
        {"profileTexts", profile, table("P", text("part", "5")) + table("Q", ""),
         table("Default profile", text("part", "1") + text("path", "") + number),
         table("P", text("part", "5") + text("path", "")) + table("Q", text("part", "1") + text("path", ""))},
        {"profileLists", profile, table("P", list("l", {"a"})) + table("Q", ""),
         table("Default profile", list("l", {"b"})),
         table("P", list("l", {"a", "l"})) + table("Q", list("l", {"b"}))},
        {"profileTable", profile, table("P", table("t", "")) + table("Q", ""),
         table("Default profile", table("t", text("a", "1"))),
         table("P", table("t", "")) + table("Q", table("t", text("a", "1")))},
        {"profileTableAndTopLevelOne", profile, table("P", table("t", "")),
         table("Default profile", table("t", text("a", "1"))) + table("t", text("b", "2")),
         table("P", table("t", table("t", text("b", "2"))))},
        {"profileVersion", profile, text("version", "1"), table("Default profile", text("part", "1")),
         text("version", "1")}};
    for (const Merge &test : cases) {
        SCOPED_TRACE(test.name);
        const Dictionary user = parsed(test.user);
        EXPECT_TRUE(
            quillorentLibrary::mergeData(user, parsed(test.newDict), u"2"_s, test.type).isSameObject(user));
        ASSERT_TRUE(user && parsed(test.expected));
        EXPECT_EQ(user, parsed(test.expected));
        EXPECT_EQ(user.keys(), parsed(test.expected).keys());
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
