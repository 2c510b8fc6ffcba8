#include "OrderOf.h"
#include "TestProgram.h"

#include "sync/ListFile.h"
#include "sync/SyncArguments.h"

#include <QDateTime>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

std::string joined(const QStringList &list) { return list.join(u'|').toStdString(); }

} // namespace

TEST(SyncList, NamesEntriesBelowTheirCommonFolder)
{
    for (const auto &[entries, root, names] :
         std::vector<std::tuple<QStringList, const char *, const char *>>{
             {{u"/a/b/x.txt"_s, u"/a/c/y.txt"_s}, "/a", "/b/x.txt\n/c/y.txt"},
             {{u"/a/x"_s, u"/a/b/a/c"_s}, "/a", "/x\n/b/c"},
             {{u"/usr/x"_s, u"/etc/y"_s}, "/", "/usr/x\n/etc/y"},
             {{u"/"_s}, "/", "/"},
             {{u"/a/#x y"_s, u"/a/*"_s}, "/a", "/#x y\n/*"},
             {{u"/a/ü/"_s, u"/a/b"_s}, "/a", "/ü/\n/b"},
             {{u"/data/doc"_s, u"/data2/x"_s}, "/data", "/doc\n2/x"}, // a part of a name will do
             {{}, "", ""},
             {{u"a"_s, u"/b"_s}, "", "a\n/b"},
         }) {
        EXPECT_EQ(syncArguments::rootOf(entries).toStdString(), root) << joined(entries);
        EXPECT_EQ(syncArguments::list(entries).toStdString(), names) << joined(entries);
    }
    EXPECT_EQ(joined(syncArguments::misnamedEntries(
                  {u"/data/doc"_s, u"/data2/x"_s, u"/data/in/data/y"_s, u"/data/z"_s})),
              "/data2/x|/data/in/data/y");
}

// What the switches do is for the runs to show; the places are what rsync can't tell.
TEST(SyncArguments, StandInTheirOrder)
{
    for (const auto &[changes, arguments] : {
             std::pair(u"excludes=-x"_s, "-ar|-u|-x|-h|-h|--files-from=/l|/a|/d"),
             {u"excludes= checksum delete remove"_s,
              "-ar|-c||--delete|--remove-source-files|--files-from=/l|/a|/d"},
             {u"no-excludes"_s, "-ar|-u"},
             {u"no-parameters"_s, ""},
             {u"server=h excludes=-x"_s, "-ar|-u|-x|-h|-h|--files-from=/l|/a|@h:/d"},
         }) {
        EXPECT_EQ(joined(syncArguments::transfer(orderOf(changes), u"/l"_s)), arguments);
        EXPECT_EQ(syncArguments::preview(orderOf(changes), u"/l"_s).count(u"--dry-run"_s), 1);
    }
}

TEST(SyncList, IsANewFileOfTheUserAlone)
{
    const TemporaryFolder folder;
    // Every name that it could take in the next moments is a link to somebody's file.
    const fs::path trap = folder / "victim";
    writeFile(trap, "precious");
    qputenv("TMPDIR", folder.path().c_str());
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    const qint64 before = reference.msecsTo(QDateTime::currentDateTimeUtc());
    const ListFile first = makeListFile("/x");
    const qint64 number = QFileInfo(first.path).baseName().mid(11).toLongLong();
    EXPECT_TRUE(before <= number && number <= reference.msecsTo(QDateTime::currentDateTimeUtc()));
    EXPECT_EQ(first.path, toQString(folder / "Quillorent_%1.txt").arg(number));
    for (qint64 next = 1; next <= 300; ++next)
        fs::create_symlink(trap, folder / ("Quillorent_" + std::to_string(number + next) + ".txt"));
    const ListFile second = makeListFile("/y");
    EXPECT_EQ(readFile(second.path.toStdString()), "/y") << qPrintable(second.reason);
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(second.path.toStdString())));
    EXPECT_EQ(fs::status(second.path.toStdString()).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(readFile(trap), "precious");
    qputenv("TMPDIR", "/proc/self/fd");
    EXPECT_TRUE(makeListFile("/z").reason.contains(u"can't be written"));
    qunsetenv("TMPDIR");
}
