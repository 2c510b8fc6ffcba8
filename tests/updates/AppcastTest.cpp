#include "updates/Appcast.h"

#include <gtest/gtest.h>

namespace {

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\"?><rss version=\"2.0\" xmlns:x=\"urn:x\"><channel><title>Releases</title>" +
           items + "</channel></rss>";
}

} // namespace

TEST(Appcast, VersionsAreComparedNumberByNumber)
{
    struct Case {
        const char *older;
        const char *newer;
    };
    for (const auto &[older, newer] :
         {Case{"1.9", "1.10"}, Case{"0.9.9", "1"}, Case{"1.0", "1.0.1"}, Case{"2.0b1", "2.0"},
          Case{"2.0-rc1", "2.0-rc2"}, Case{"1.9", "2.0b1"}}) {
        EXPECT_TRUE(compareVersions(QLatin1String(older), QLatin1String(newer)) < 0) << older << ' ' << newer;
        EXPECT_TRUE(compareVersions(QLatin1String(newer), QLatin1String(older)) > 0) << older << ' ' << newer;
    }
    EXPECT_TRUE(compareVersions(u"1.0"_qs, u"1"_qs) == 0);
}

TEST(Appcast, TheNewestOfItsItemsCounts)
{
    const AppcastContent content = readAppcast(
        feed("<item><title>Version 1.9</title><link>https://localhost/19</link></item>"
             "<item><title>News</title><x:shortVersionString>1.10</x:shortVersionString><x:version>4711</"
             "x:version>"
             "<link>https://localhost/110</link><description><![CDATA[<ul><li>Faster &amp; "
             "safer</li><li>New</li></ul>]]>"
             "</description></item>"
             "<item><title>No page 9.0</title></item><item><title>A file "
             "9.1</title><link>file:///etc/passwd</link></item>"
             "<item><enclosure url=\"https://localhost/1.2.tgz\" x:version=\"1.2\" length=\"1\"/></item>"));
    ASSERT_TRUE(content.newest) << qPrintable(content.reason);
    EXPECT_EQ(content.newest->version, u"1.10"_qs);
    EXPECT_EQ(content.newest->page, QUrl(u"https://localhost/110"_qs));
    EXPECT_EQ(content.newest->notes, u"Faster & safer\nNew"_qs);
}

TEST(Appcast, WhatIsNoFeedSaysWhy)
{
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("<html><body>Not found</body></html>"), QByteArray("\0\1", 2),
          feed("<item><title>9.9</title>").left(120), QByteArray("<rss><channel><item>&x;")})
        EXPECT_FALSE(readAppcast(bad).reason.isEmpty()) << bad.constData();
    EXPECT_FALSE(readAppcast(feed({})).newest);
}
