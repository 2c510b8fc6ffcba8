#include "sync/Preview.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Rows as "change path size" lines.
QString text(const Preview &preview)
{
    QString lines;
    for (const PreviewRow &row : preview.rows)
        lines += u"%1: %2 %3\n"_s.arg(describeChange(row.change, preview.removesSources), row.path,
                                      QString::number(row.size));
    return lines;
}

} // namespace

TEST(Preview, ReadsWhatRsyncItemizes)
{
    const QString output = u"created directory /d\n"
                           ".d..t......\t4096\ta/\n"
                           ">f+++++++++\t1\ta/back\\#134#012slash\n"
                           ">f+++++++++\t2\ta/caf\\#303\\#251\\#012 and \\#+1\n"
                           "cL+++++++++\t3\ta/link\n"
                           "<f.st......\t5\ta/to server\n"
                           ".f..t......\t7\ta/touched\n"
                           ".f         \t9\ta/same\n"
                           "cd+++++++++\t4096\ta/dir/\n"
                           "rsync: [sender] opendir \"/x\" failed: Permission denied (13)\n"
                           "*deleting  \t0\ta/tab\tname\n"_s;
    const Preview kept = readPreview(output, false);
    EXPECT_EQ(text(kept).toStdString(), "deleted at the destination: a/tab\tname 0\n"
                                        "replaced: a/to server 5\n"
                                        "copied: a/back\\#012slash 1\n"
                                        "copied: a/café\n and \\#+1 2\n"
                                        "copied: a/link 3\n"
                                        "folder made: a/dir/ 0\n"
                                        "date or permissions set: a/ 0\n"
                                        "date or permissions set: a/touched 7\n");
    EXPECT_TRUE(kept.complaints.startsWith(u"rsync: [sender] opendir"));
    EXPECT_TRUE(summarize(kept).startsWith(u"deleted at the destination: 1; replaced: 1; copied: 3"));

    const Preview moved = readPreview(output, true);
    EXPECT_TRUE(text(moved).contains(u"there already, removed here: a/same 9\n")) << qPrintable(text(moved));
    EXPECT_TRUE(text(moved).contains(u"moved there: a/link")) << qPrintable(text(moved));
    EXPECT_EQ(summarize(readPreview({}, true)), u"Nothing would be copied or deleted."_s);
}
