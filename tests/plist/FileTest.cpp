#include "plist/File.h"
#include "plist/Value.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using plist::Array;
using plist::Dictionary;
using plist::Value;

namespace {

const std::string head = "<plist version=\"1.0\"><dict>\n";
const std::string tail = "</dict></plist>";

QString toQString(const std::filesystem::path &path) { return QString::fromStdString(path.string()); }

std::string repeated(const std::string &text, int times)
{
    std::string all;
    for (int time = 0; time < times; ++time)
        all += text;
    return all;
}

struct Malformed {
    const char *name;
    std::string document;
    const char *reason; ///< what the reason must hold
};

void PrintTo(const Malformed &malformed, std::ostream *stream) { *stream << malformed.name; }

class Refused : public testing::TestWithParam<Malformed> {};

} // namespace

TEST_P(Refused, WithTheFileAndAReason)
{
    const TemporaryFolder folder;
    writeFile(folder / "list.plist", GetParam().document);
    const plist::FileContent content = plist::readFile(toQString(folder / "list.plist"));
    EXPECT_FALSE(content.dictionary);
    EXPECT_TRUE(content.reason.startsWith(toQString(folder / "list.plist") + u':'));
    EXPECT_TRUE(content.reason.contains(QString::fromUtf8(GetParam().reason)))
        << content.reason.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Documents, Refused,
    testing::Values(
        Malformed{"empty", "", "empty"}, Malformed{"binary", "bplist00\xd1\x01\x02", "binary"},
        Malformed{"notUtf8", head + "<key>a</key><string>\xE9t\xE9</string>" + tail, "UTF-8"},
        Malformed{"otherEncoding", "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + head + tail, "UTF-16"},
        Malformed{"control", head + "<key>a</key>\n<string>\x01</string>" + tail, ":3: it holds U+0001"},
        Malformed{"zero", head + tail + std::string(1, '\0'), ":2: it holds U+0000"},
        Malformed{"controlReference", head + "<key>a</key><string>&#1;</string>" + tail, ":2:"},
        Malformed{"halfWritten", head + "<key>a</key><string>b</string><key>c</ke", ":2:"},
        Malformed{"wrongRoot", "<dict/>", "<dict>, not <plist>"},
        Malformed{"arrayAsRoot", "<plist version=\"1.0\"><array/></plist>", "not a dictionary"},
        Malformed{"twoRoots", "<plist version=\"1.0\"><dict/>\n<dict/></plist>", ":2: something follows"},
        Malformed{"dataAfterTheRoot", head + tail + "\n<plist/>", ":3:"},
        Malformed{"otherVersion", "<plist version=\"2.0\"><dict/></plist>", "version 2.0"},
        Malformed{"otherDocumentType", "<!DOCTYPE html>" + head + tail, "document type"},
        Malformed{"unknownElement", head + "<key>a</key><set/>" + tail, ":2: the element <set>"},
        Malformed{"elementInText", head + "<key>a</key><string>b<string/></string>" + tail, ":2:"},
        Malformed{"attribute", head + "<key>a</key><string lang=\"de\"/>" + tail, "lang"},
        Malformed{"textBetween", head + "stray<key>a</key><true/>" + tail, "text between"},
        Malformed{"textInTruth", head + "<key>a</key><true>b</true>" + tail, "text in"},
        Malformed{"noKey", head + "<string>a</string>" + tail, "where a key is expected"},
        Malformed{"keyTwice", head + "<key>a</key><true/>\n<key>a</key><false/>" + tail,
                  ":3: the key a is there twice"},
        Malformed{"keyWithoutValue", head + "<key>a</key>" + tail, "the key a has no value"},
        Malformed{"keyAfterKey", head + "<key>a</key><key>b</key><true/>" + tail, "the key a has no value"},
        Malformed{"integerAndText", head + "<key>a</key><integer>12abc</integer>" + tail, "“12abc”"},
        Malformed{"integerLarge", head + "<key>a</key><integer>9223372036854775808</integer>" + tail,
                  "64 bits"},
        Malformed{"real", head + "<key>a</key><real>1,5</real>" + tail, "real number"},
        Malformed{"data", head + "<key>a</key><data>AA*=</data>" + tail, "Base64"},
        Malformed{"date", head + "<key>a</key><date>2001-02-30T00:00:00Z</date>" + tail, "not a date"},
        Malformed{"undeclaredEntity", head + "<key>a</key><string>&nbsp;</string>" + tail, "nbsp"},
        Malformed{"entity",
                  "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + head + "<key>k</key><string>&a;</string>" + tail,
                  "declarations"},
        Malformed{"attributeList", "\n<!DOCTYPE plist [<!ATTLIST plist a CDATA \"b\">]>" + head + tail,
                  ":2: declarations"},
        Malformed{"manyAttributes", "<plist version=\">\"" + repeated(" a=\"\"", 300000) + "/>",
                  "a tag of more than"},
        Malformed{"deep", head + "<key>a</key>" + repeated("<array>", 1000000), "deeper than 64"}),
    [](const auto &test) { return std::string(test.param.name); });

TEST(ReadFile, RefusesWhatIsNoRegularFile)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("nowhere", folder / "dangling");
    writeFile(folder / "large", head + tail);
    std::filesystem::resize_file(folder / "large", std::uintmax_t{plist::maximumFileSize} + 1);
    const std::vector<std::pair<std::filesystem::path, QString>> cases{
        {folder.path(), u"not a regular file"_s},
        {folder / "pipe", u"not a regular file"_s},
        {folder / "dangling", u"no such file"_s},
        {folder / "missing", u"no such file"_s},
        {folder / "large", u"larger than 64 MiB"_s}};
    for (const auto &[path, reason] : cases) {
        const plist::FileContent content = plist::readFile(toQString(path));
        EXPECT_FALSE(content.dictionary);
        EXPECT_TRUE(content.reason.endsWith(reason)) << content.reason.toStdString();
    }
}

TEST(ReadFile, TakesWhatOtherProgramsWrite)
{
    const TemporaryFolder folder;
    writeFile(folder / "list",
              "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- > -->"
              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/"
              "PropertyList-1.0.dtd\">\r\n" +
                  head +
                  "<key>a<!-- b -->&#x63;</key><string><![CDATA[<d>]]>&amp;</string>\r\n"
                  "<key>data</key><data>\n\tAQ\n\tID\n</data><key>n</key><integer>-007</integer>" +
                  tail);
    const plist::FileContent content = plist::readFile(toQString(folder / "list"));
    EXPECT_EQ(content.reason, QString());
    EXPECT_EQ(content.dictionary.string(u"ac"_s), u"<d>&");
    EXPECT_EQ(content.dictionary.value(u"data"_s), Value(QByteArray("\1\2\3")));
    EXPECT_EQ(content.dictionary.integer(u"n"_s), -7);
}

TEST(WriteFile, IsReadBackAsItWas)
{
    const Dictionary all = Dictionary::make();
    all.setValue(u"z & <first>\r"_s, u" lines\r\nof\rtext\n\tand ]]> \"quotes\" "_s);
    all.setValue(u"unicode"_s, u"äöü 漢字 \U0001F600 \U0001FFFE \u0085\u2028"_s);
    all.setValue(u""_s, u"");
    all.setValue(u"spaces"_s, u"  ");
    all.setValue(u"lowest"_s, std::numeric_limits<qint64>::min());
    all.setValue(u"real"_s, 0.1 + 0.2);
    all.setValue(u"tiny"_s, std::numeric_limits<double>::min());
    all.setValue(u"infinite"_s, -std::numeric_limits<double>::infinity());
    all.setValue(u"true"_s, true);
    all.setValue(u"false"_s, false);
    all.setValue(u"data"_s, QByteArray("\0\r\xff", 3));
    all.setValue(u"noData"_s, QByteArray(""));
    all.setValue(u"date"_s, QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC));
    all.setValue(u"empty"_s, Array::make());
    const Dictionary nested = Dictionary::make();
    nested.setValue(u"list"_s, Array::make({u"b"_s, u"a"_s}));
    all.setValue(u"a"_s, nested);

    const TemporaryFolder folder;
    EXPECT_EQ(plist::writeFile(toQString(folder / "list"), all), QString());
    const plist::FileContent content = plist::readFile(toQString(folder / "list"));
    EXPECT_EQ(content.reason, QString());
    EXPECT_EQ(content.dictionary.keys(), all.keys());
    for (const QString &key : all.keys())
        EXPECT_EQ(content.dictionary.value(key), all.value(key)) << key.toStdString();
}

TEST(WriteFile, RefusesWhatItCouldNotReadBackAndKeepsTheOldFile)
{
    const Array inItself = Array::make();
    inItself.append(inItself);
    const TemporaryFolder folder;
    const QString path = toQString(folder / "list");
    const std::vector<std::pair<Value, QString>> cases{{u"\u0001"_s, u"holds U+0001"_s},
                                                       {u"\uFFFF"_s, u"holds U+FFFF"_s},
                                                       {QString(QChar(0xD800)), u"U+D800"_s},
                                                       {QDateTime(), u"is a date"_s},
                                                       {inItself, u"deeper than 64"_s}};
    for (const auto &[value, reason] : cases) {
        writeFile(folder / "list", "old");
        const Dictionary dictionary = Dictionary::make();
        dictionary.setValue(u"bad"_s, value);
        const QString given = plist::writeFile(path, dictionary);
        EXPECT_TRUE(given.startsWith(path + u": the value under “bad” "_s)) << given.toStdString();
        EXPECT_TRUE(given.contains(reason)) << given.toStdString();
        EXPECT_EQ(readFile(folder / "list"), "old");
    }
    inItself.clear(); // or it would keep itself alive
    EXPECT_NE(plist::writeFile(path, Dictionary{}), QString());
    EXPECT_NE(plist::writeFile(toQString(folder.path()), Dictionary::make()), QString());
    EXPECT_NE(plist::writeFile(toQString(folder / "missing" / "list"), Dictionary::make()), QString());
}

TEST(WriteFile, FollowsLinksAndIsTheUsersAlone)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "kept");
    writeFile(folder / "kept/old", "old");
    std::filesystem::permissions(folder / "kept/old", std::filesystem::perms{0644});
    std::filesystem::create_symlink("second", folder / "first");
    std::filesystem::create_symlink("kept/old", folder / "second");
    std::filesystem::create_symlink("kept/new", folder / "dangling");
    std::filesystem::create_symlink("loop", folder / "loop");

    for (const char *link : {"first", "dangling"})
        EXPECT_EQ(plist::writeFile(toQString(folder / link), Dictionary::make()), QString());
    for (const char *link : {"first", "second", "dangling"})
        EXPECT_TRUE(std::filesystem::is_symlink(folder / link)) << link;
    for (const char *file : {"kept/old", "kept/new"}) {
        EXPECT_TRUE(plist::readFile(toQString(folder / file)).dictionary) << file;
        EXPECT_EQ(std::filesystem::status(folder / file).permissions(), std::filesystem::perms{0600}) << file;
    }
    EXPECT_NE(plist::writeFile(toQString(folder / "loop"), Dictionary::make()), QString());
}
