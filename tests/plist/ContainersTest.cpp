#include "plist/Value.h"

#include <gtest/gtest.h>
#include <limits>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using plist::Array;
using plist::Dictionary;
using plist::Value;

namespace {

Dictionary makeRecord()
{
    const Dictionary record = Dictionary::make();
    record.setValue(u"folders"_s, Array::make({u"a"_s, u"b"_s}));
    record.setValue(u"passtype"_s, 2);
    record.setValue(u"sub"_s, Dictionary::make());
    return record;
}

} // namespace

TEST(Dictionary, KeepsTheOrderInWhichKeysCameAndEqualsWhateverTheOrder)
{
    const Dictionary record = makeRecord();
    record.setValue(u"folders"_s, u"replaced"); // keeps its place
    record.remove(u"passtype"_s);
    record.setValue(u"passtype"_s, 2);  // comes back last
    record.setValue(u"sub"_s, Value{}); // setting none removes
    EXPECT_EQ(record.keys(), (QStringList{u"folders"_s, u"passtype"_s}));

    const Dictionary other = Dictionary::make();
    other.setValue(u"passtype"_s, 2);
    EXPECT_FALSE(record == other || other == record);
    other.setValue(u"folders"_s, u"replaced");
    EXPECT_EQ(record, other);
    other.setValue(u"passtype"_s, u"2"); // a text is not a number
    EXPECT_FALSE(record == other);
    EXPECT_FALSE(Dictionary::make() == Dictionary{}); // the empty one is not none
}

TEST(Dictionary, IsSharedByItsHandlesAndNotByItsDeepCopy)
{
    const Dictionary record = makeRecord();
    const Dictionary sameRecord = record;
    const Dictionary copy = record.deepCopy();
    EXPECT_EQ(copy, record);
    EXPECT_EQ(copy.keys(), record.keys());
    sameRecord.array(u"folders"_s).append(u"c");
    sameRecord.dictionary(u"sub"_s).setSwitch(u"on"_s, true);
    EXPECT_EQ(record.array(u"folders"_s).count(), 3);
    EXPECT_TRUE(record.dictionary(u"sub"_s).isOn(u"on"_s));
    EXPECT_EQ(copy, makeRecord());
}

TEST(Containers, NoneFindsNothingAndTakesNothing)
{
    const Dictionary none;
    none.setValue(u"key"_s, 1);
    EXPECT_FALSE(none || none.contains(u"key"_s) || none.array(u"key"_s) || none.deepCopy());
    const Array noArray;
    noArray.append({u"a"_s, u"b"_s});
    EXPECT_EQ(noArray.count(), 0);
    for (const Value &value :
         {Value(noArray), Value(none), Array::make({u"a"_s}).at(1), Array::make().at(-1)})
        EXPECT_TRUE(value.isNone());
}

TEST(Array, RemovesAllIndexesAtOnce)
{
    const Array array = Array::make({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    array.removeAt({0, 2, 2, -1, 4}); // where the first removal moved the second, "d" would go
    EXPECT_EQ(array.strings(), (QStringList{u"b"_s, u"d"_s}));
    const Array copy = array.deepCopy();
    array.clear();
    EXPECT_EQ(array.count(), 0);
    EXPECT_TRUE(copy.contains(u"d"_s) && !copy.contains(u"a"_s));
}

TEST(Value, ConvertsScalarsOnly)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    using Integer = std::pair<Value, std::optional<qint64>>;
    for (const auto &[value, integer] :
         {Integer{u" -7 days", -7}, Integer{u"+8", 8}, Integer{u"", 0}, Integer{u"abc", 0},
          Integer{u"9223372036854775807", largest}, Integer{u"9223372036854775808", largest},
          Integer{u"-9223372036854775808", lowest}, Integer{u"-99999999999999999999", lowest},
          Integer{2.9, 2}, Integer{-1e300, lowest}, Integer{std::numeric_limits<double>::quiet_NaN(), 0},
          Integer{true, 1}, Integer{QByteArray("1"), std::nullopt}, Integer{Array::make(), std::nullopt},
          Integer{Value{}, std::nullopt}})
        EXPECT_EQ(value.integer(), integer) << value.string().value_or(u"no text"_s).toStdString();

    EXPECT_EQ(Value(12).string(), u"12");
    EXPECT_EQ(Value(0.1).string(), u"0.1");
    EXPECT_FALSE(Value(true).string() || Value(QByteArray("1")).string() ||
                 Value(Dictionary::make()).string());
}

// What ThreadSanitizer is for; without it, a lost append or a comparison that waits for ever still shows.
TEST(Containers, MayBeUsedByManyThreads)
{
    const Dictionary root = makeRecord();
    const Dictionary other = makeRecord();
    root.setValue(u"passtype"_s, other);
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([=] {
                for (int round = 0; round < 300; ++round) {
                    root.array(u"folders"_s).append({u"x"_s, u"y"_s});
                    other.setSwitch(u"switch"_s, round % 2 == 0);
                    if (round % 50 != 0) continue;
                    const Dictionary copy = root.deepCopy();
                    EXPECT_EQ(copy.array(u"folders"_s).count() % 2, 0); // an append of two is one step
                    EXPECT_FALSE(copy == other || other == copy);
                }
            });
    }
    EXPECT_EQ(root.array(u"folders"_s).count(), 2 + 2 * 4 * 300);
}
