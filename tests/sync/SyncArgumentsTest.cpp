#include "TestProgram.h"

#include "sync/ListFile.h"
#include "sync/SyncArguments.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

std::string joined(const QStringList &list) { return list.join(u'|').toStdString(); }

} // namespace

TEST(SyncList, NamesEntriesBelowTheirCommonFolder)
{
    struct Case {
        QStringList entries;
        const char *root;
        const char *list;
    };
    for (const Case &c : {
             Case{{u"/a/b/x.txt"_qs, u"/a/c/y.txt"_qs}, "/a", "/b/x.txt\n/c/y.txt"},
             Case{{u"/a/b/x.txt"_qs}, "/a/b", "/x.txt"},
             Case{{u"/a/x"_qs, u"/a/b/a/c"_qs}, "/a", "/x\n/b/c"},
             Case{{u"/usr/x"_qs, u"/etc/y"_qs}, "/", "/usr/x\n/etc/y"},
             Case{{u"/x"_qs}, "/", "/x"},
             Case{{u"/"_qs}, "/", "/"},
             Case{{u"/a/#x y"_qs, u"/a/*"_qs}, "/a", "/#x y\n/*"},
             Case{{u"/a/ü/"_qs, u"/a/b"_qs}, "/a", "/ü/\n/b"},
             Case{{u"/data/doc"_qs, u"/data2/x"_qs}, "/data", "/doc\n2/x"}, // a part of a name will do
             Case{{}, "", ""},
             Case{{u"a"_qs, u"/b"_qs}, "", "a\n/b"},
             Case{{u"/b"_qs, u"a"_qs}, "", "/b\na"},
         }) {
        EXPECT_EQ(syncArguments::rootOf(c.entries).toStdString(), c.root) << joined(c.entries);
        EXPECT_EQ(syncArguments::list(c.entries).toStdString(), c.list) << joined(c.entries);
    }
    EXPECT_EQ(joined(syncArguments::misnamedEntries(
                  {u"/data/doc"_qs, u"/data2/x"_qs, u"/data/in/data/y"_qs, u"/data/z"_qs})),
              "/data2/x|/data/in/data/y");
}

TEST(SyncArguments, StandInTheirOrder)
{
    const SyncOrder plain{.entries = {u"/a/b"_qs},
                          .destination = u"/d"_qs,
                          .mode = u"0"_qs,
                          .parameters = u"-ar"_qs,
                          .excludes = u"--exclude=x"_qs};
    struct Case {
        std::function<void(SyncOrder &)> change;
        const char *arguments;
    };
    for (const Case &c : {
             Case{[](SyncOrder &) {}, "-ar|-u|--exclude=x|-h|-h|--files-from=/l|/a|/d"},
             Case{[](SyncOrder &o) { o.deletesExtra = true; },
                  "-ar|-u|--exclude=x|--delete|-h|--files-from=/l|/a|/d"},
             Case{[](SyncOrder &o) {
                      o.removesSources = true;
                      o.mode.reset();
                      o.excludes = u""_qs;
                  },
                  "-ar|-c||-h|--remove-source-files|--files-from=/l|/a|/d"},
             Case{[](SyncOrder &o) { o.excludes.reset(); }, "-ar|-u"},
             Case{[](SyncOrder &o) { o.parameters.reset(); }, ""},
             Case{[](SyncOrder &o) {
                      o.isRemote = true;
                      o.user = u"u"_qs;
                      o.server = u"h"_qs;
                      o.port = u"22"_qs;
                  },
                  "-ar|-u|--exclude=x|-h|-h|--files-from=/l|/a|h:22:/d"},
             Case{[](SyncOrder &o) {
                      o.isRemote = true;
                      o.server = u"h"_qs;
                  },
                  "-ar|-u|--exclude=x|-h|-h|--files-from=/l|/a|@h:/d"},
         }) {
        SyncOrder order = plain;
        c.change(order);
        EXPECT_EQ(joined(syncArguments::transfer(order, u"/l"_qs)), c.arguments);
        // A preview has the same arguments in the same order, and never lacks the dry run.
        QStringList preview = syncArguments::preview(order, u"/l"_qs);
        EXPECT_EQ(preview.removeAll(u"--dry-run"_qs), 1);
        EXPECT_GT(preview.removeAll(u"--itemize-changes"_qs), 0);
        preview.removeAll(u"--out-format=%i\t%l\t%n"_qs);
        EXPECT_EQ(joined(preview), c.arguments);
    }
}

TEST(SyncList, IsANewFileOfTheUserAlone)
{
    const TemporaryFolder folder;
    // Every name that it could take in the next moments is a link to somebody's file.
    const fs::path trap = folder / "victim";
    writeFile(trap, "precious");
    qputenv("TMPDIR", folder.path().c_str());
    const ListFile first = makeListFile("/x");
    const qint64 number = QFileInfo(first.path).baseName().mid(11).toLongLong();
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
