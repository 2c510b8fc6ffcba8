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

TEST(Dictionary, KeepsTheOrderInWhichKeysCame)
{
    const Dictionary record = makeRecord();
    record.setValue(u"folders"_s, u"replaced"); // keeps its place
    record.remove(u"passtype"_s);
    record.setValue(u"passtype"_s, 2);  // comes back last
    record.setValue(u"sub"_s, Value{}); // setting none removes
    EXPECT_EQ(record.keys(), (QStringList{u"folders"_s, u"passtype"_s}));

    EXPECT_FALSE(Dictionary::make() == Dictionary{}); // the empty one is not none
}

TEST(Value, ConvertsScalarsOnly)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    using Integer = std::pair<Value, std::optional<qint64>>;
    for (const auto &[value, integer] :
         {Integer{u" -7 days", -7}, Integer{u"+8", 8}, Integer{u"abc", 0},
          Integer{u"9223372036854775808", largest}, Integer{u"-99999999999999999999", lowest},
          Integer{2.9, 2}, Integer{-1e300, lowest}, Integer{true, 1}, Integer{Array::make(), std::nullopt}})
        EXPECT_EQ(value.integer(), integer) << value.string().value_or(u"no text"_s).toStdString();
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
