#include "files/Names.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace quillorentLibrary;

TEST(NameRepeated, TellsNamesakesApart)
{
    struct Case {
        QString path;
        QStringList paths;
        QString name;
    };
    for (const Case &c : {
             Case{u"/a/docs"_qs, {u"/a/docs"_qs}, u"docs"_qs},
             Case{u"/a/docs"_qs, {u"/a/docs"_qs, u"/b/docs"_qs}, u"docs-0"_qs},
             Case{u"/b/docs"_qs, {u"/a/docs"_qs, u"/b/docs"_qs}, u"docs-1"_qs},
             Case{u"/b/docs/"_qs, {u"/a/docs"_qs, u"/b/docs/"_qs}, u"docs-1"_qs},
             Case{u"/a/docs"_qs, {u"/x"_qs, u"/a/docs"_qs, u"/a/docs"_qs}, u"docs-1"_qs},
             Case{u"/c/docs"_qs, {u"/a/docs"_qs, u"/b/docs"_qs}, u"docs--1"_qs},
             Case{u"/c/docs"_qs, {u"/a/docs"_qs}, u"docs"_qs},
             Case{u"/a/Docs"_qs, {u"/a/Docs"_qs, u"/b/docs"_qs}, u"Docs"_qs},
         })
        EXPECT_EQ(nameRepeated(c.path, c.paths), c.name)
            << qPrintable(c.path + u" in "_qs + c.paths.join(u' '));
}

TEST(LastPathComponent, IgnoresSlashesAtTheEnd)
{
    EXPECT_EQ(lastPathComponent(u"/a/b.c"_qs), u"b.c"_qs);
    EXPECT_EQ(lastPathComponent(u"/a/b//"_qs), u"b"_qs);
    EXPECT_EQ(lastPathComponent(u"b"_qs), u"b"_qs);
    EXPECT_EQ(lastPathComponent(u"/"_qs), u"/"_qs);
    EXPECT_EQ(lastPathComponent({}), QString());
}

TEST(CreateTempFileName, CountsMillisecondsFromTheReferenceDate)
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    const qint64 before = reference.msecsTo(QDateTime::currentDateTimeUtc());
    const QString name = createTempFileName();
    const qint64 after = reference.msecsTo(QDateTime::currentDateTimeUtc());

    const QRegularExpression form(u"^(.*/)Quillorent_(\\d+)\\.txt$"_qs);
    const QRegularExpressionMatch match = form.match(name);
    ASSERT_TRUE(match.hasMatch()) << qPrintable(name);
    EXPECT_EQ(match.captured(1), QDir::tempPath() + u'/');
    EXPECT_GE(match.captured(2).toLongLong(), before);
    EXPECT_LE(match.captured(2).toLongLong(), after);
}
