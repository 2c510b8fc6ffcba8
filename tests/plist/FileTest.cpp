#include "plist/File.h"
#include "plist/Value.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;
using plist::Array;
using plist::Dictionary;
using plist::Value;

namespace {

const std::string head = "<plist version=\"1.0\"><dict>\n";
const std::string tail = "</dict></plist>";

QString toQString(const fs::path &path) { return QString::fromStdString(path.string()); }

/// A document whose second line has these elements.
std::string document(const std::string &elements) { return head + elements + tail; }

/// A document whose second line gives the key "a" this value.
std::string valued(const std::string &value) { return document("<key>a</key>" + value); }

std::string repeated(const char *text, int times) { return QByteArray(text).repeated(times).toStdString(); }

class PlistFile : public testing::Test {
protected:
    const TemporaryFolder folder;
    const fs::path file = folder / "list.plist";
    const QString path = toQString(file);
};

} // namespace

TEST_F(PlistFile, RefusesMalformedDocumentsWithTheFileAndAReason)
{
    const std::vector<std::pair<std::string, const char *>> documentsAndReasons{
        {"", "empty"},
        {"bplist00\xd1\x01\x02", "binary"},
        {valued("<string>\xE9t\xE9</string>"), "UTF-8"},
        {"<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + document(""), "UTF-16"},
        {valued("\n<string>\x01</string>"), ":3: it has a character that such a file can't hold (U+0001)"},
        {valued("<string>&#1;</string>"), ":2:"},
        {head + "<key>a</key><string>b</string><key>c</ke", ":2:"}, // half written
        {"<dict/>", "<dict>, not <plist>"},
        {"<plist version=\"1.0\"><array/></plist>", "not a dictionary"},
        {"<plist version=\"1.0\"><dict/>\n<dict/></plist>", ":2: something follows"},
        {"<plist version=\"2.0\"><dict/></plist>", "version 2.0"},
        {"<!DOCTYPE html>" + document(""), "document type"},
        {valued("<set/>"), ":2: the element <set>"},
        {valued("<string lang=\"de\"/>"), "lang"},
        {document("stray<key>a</key><true/>"), "text between"},
        {valued("<true>b</true>"), "text in"},
        {document("<string>a</string>"), "where a key is expected"},
        {valued("<true/>\n<key>a</key><false/>"), ":3: the key a is there twice"},
        {valued("<key>b</key><true/>"), "the key a has no value"},
        {valued("<integer>12abc</integer>"), "“12abc”"},
        {valued("<integer>9223372036854775808</integer>"), "64 bits"},
        {valued("<real>1,5</real>"), "real number"},
        {valued("<data>AA*=</data>"), "Base64"},
        {valued("<date>2001-02-30T00:00:00Z</date>"), "not a date"},
        {valued("<string>&nbsp;</string>"), "nbsp"},
        {"<!DOCTYPE plist [<!ENTITY a \"b\">]>" + valued("<string>&a;</string>"), "declarations"},
        {"\n<!DOCTYPE plist [<!ATTLIST plist a CDATA \"b\">]>" + document(""), ":2: declarations"},
        {"<plist version=\">\"" + repeated(" a=\"\"", 300000) + "/>", "a tag of more than"},
        {valued(repeated("<array>", 64)), "deeper than 64"},
    };
    for (const auto &[malformed, reason] : documentsAndReasons) {
        SCOPED_TRACE(malformed.substr(0, 200));
        writeFile(file, malformed);
        const plist::FileContent content = plist::readFile(path);
        EXPECT_FALSE(content.dictionary);
        EXPECT_TRUE(content.reason.startsWith(path + u':') &&
                    content.reason.contains(QString::fromUtf8(reason)))
            << content.reason.toStdString();
    }
}

TEST_F(PlistFile, RefusesWhatIsNoRegularFile)
{
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder / "dangling");
    writeFile(folder / "large", head + tail);
    fs::resize_file(folder / "large", std::uintmax_t{plist::maximumFileSize} + 1);
    for (const auto &[name, reason] : {std::pair{".", u"not a regular file"_s},
                                       {"pipe", u"not a regular file"_s},
                                       {"dangling", u"no such file"_s},
                                       {"large", u"larger than 64 MiB"_s}}) {
        const plist::FileContent content = plist::readFile(toQString(folder / name));
        EXPECT_FALSE(content.dictionary);
        EXPECT_TRUE(content.reason.endsWith(reason)) << content.reason.toStdString();
    }
}

TEST_F(PlistFile, TakesWhatOtherProgramsWrite)
{
    writeFile(file, "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- > -->"
                    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/"
                    "PropertyList-1.0.dtd\">\r\n" +
                        head +
                        "<key>a<!-- b -->&#x63;</key><string><![CDATA[<d>]]>&amp;</string>\r\n"
                        "<key>data</key><data>\n\tAQ\n\tID\n</data><key>n</key><integer>-007</integer>" +
                        tail);
    const plist::FileContent content = plist::readFile(path);
    EXPECT_EQ(content.reason, QString());
    EXPECT_EQ(content.dictionary.string(u"ac"_s), u"<d>&");
    EXPECT_EQ(content.dictionary.value(u"data"_s), Value(QByteArray("\1\2\3")));
    EXPECT_EQ(content.dictionary.integer(u"n"_s), -7);
}

TEST_F(PlistFile, IsReadBackAsItWas)
{
    const Array values = Array::make({u" lines\r\nof\rtext\n\tand ]]> \"quotes\" "_s, u""_s, u"  "_s,
                                      u"äöü 漢字 \U0001F600 \U0001FFFE \u0085\u2028"_s});
    using Real = std::numeric_limits<double>;
    for (const Value &value : std::initializer_list<Value>{
             std::numeric_limits<qint64>::min(), 0.1 + 0.2, Real::min(), -Real::infinity(), true, false,
             QByteArray("\0\r\xff", 3), QByteArray(""),
             QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC), Array::make()})
        values.append(value);
    Array deepest = values; // on the third level
    for (int level = 4; level <= plist::maximumDepth; ++level) {
        const Array deeper = Array::make();
        deepest.append(deeper);
        deepest = deeper;
    }
    const Dictionary nested = Dictionary::make();
    nested.setValue(u"b"_s, values);
    nested.setValue(u"a"_s, u"");
    const Dictionary all = Dictionary::make();
    all.setValue(u"z & <first>\r"_s, nested);
    all.setValue(u""_s, 1);

    EXPECT_EQ(plist::writeFile(path, all), QString());
    const plist::FileContent content = plist::readFile(path);
    EXPECT_EQ(content.reason, QString());
    EXPECT_EQ(content.dictionary, all);
    EXPECT_EQ(content.dictionary.keys(), all.keys());
    EXPECT_EQ(content.dictionary.dictionary(all.keys().first()).keys(), nested.keys());
}

TEST_F(PlistFile, RefusesToWriteWhatCanNotBeReadBackAndKeepsTheOldFile)
{
    const Array inItself = Array::make();
    inItself.append(inItself);
    const std::vector<std::pair<Value, QString>> cases{{u"\u0001"_s, u"(U+0001)"_s},
                                                       {u"\uFFFF"_s, u"(U+FFFF)"_s},
                                                       {QString(QChar(0xD800)), u"U+D800"_s},
                                                       {QDateTime(), u"is a date"_s},
                                                       {inItself, u"deeper than 64"_s}};
    writeFile(file, "old");
    for (const auto &[value, reason] : cases) {
        const Dictionary dictionary = Dictionary::make();
        dictionary.setValue(u"bad"_s, value);
        const QString given = plist::writeFile(path, dictionary);
        EXPECT_TRUE(given.startsWith(path + u": the value under “bad” "_s) && given.contains(reason))
            << given.toStdString();
    }
    inItself.clear(); // or it would keep itself alive
    EXPECT_NE(plist::writeFile(path, Dictionary{}), QString());
    fs::create_symlink("loop", folder / "loop");
    for (const fs::path &place : {folder / "loop", folder.path(), folder / "missing/list"})
        EXPECT_NE(plist::writeFile(toQString(place), Dictionary::make()), QString()) << place;
    EXPECT_EQ(readFile(file), "old");
}
