#include "SyncSample.h"

#include "sync/SyncLook.h"

TEST(SyncLook, TellsBeforeAnythingIsTouched)
{
    const SyncSample sample;
    writeFile(sample.folder / "src/x", "x");
    writeFile(sample.folder / "src/d/y", "y");
    for (const char *folder : {"src/full", "src/new"}) // as the mount point of an unmounted disk looks
        fs::create_directories(sample.folder / folder);
    writeFile(sample.folder / "dst/full/precious", "1");
    for (const char *name : {"case/A/x", "case/a"})
        writeFile(sample.folder / name, "x");
    fs::create_directory_symlink(sample.folder / "src/d", sample.folder / "link");
    for (const auto &[changes, obstacle, concern] : {
             std::tuple("delete remove", "", ""),
             {"add=%1/src/full", "", ""},
             {"delete add=%1/src/new", "", ""},
             {"delete add=%1/src/full", "",
              "src/full\" is empty, and everything in its copy would be deleted"},
             {"delete add=%1/src/full server=box", "", "is empty"},
             {"delete remove add=%1/case server=box", "", "differs in upper and lower case only"},
             {"delete add=%1/case server=box", "", ""},
             {"dst=%1/src/d/copies/../copy", "", "lies inside"},
             {"dst=%1/link/copy", "", "lies inside"},
             {"add=%1/src2/x", "", "src2/x\" does not lie under the common folder"},
             {"dst=%1/src/x", "is a file", ""},
             {"dst=%1/dst/../src", "lie in already", ""},
             {"dst=", "No destination", ""},
             {"dst=-d", "no absolute path", ""},
             {"add=b/c", "\"b/c\" is no absolute", ""},
             {"add=%1/src/x\ny", "line break", ""},
             {"add=%1/src/x\ry", "line break", ""},
             {"server=", "No server", ""},
             {"server=-e", "no server's name", ""},
         }) {
        const QString words = QString::fromLatin1(changes).replace(u"%1"_s, toQString(sample.folder.path()));
        Findings findings;
        lookAtSync(orderOf(words, sample.path("src"), sample.path("dst")), findings);
        for (const auto &[found, expected] :
             {std::pair(findings.obstacles, obstacle), {findings.concerns, concern}}) {
            EXPECT_EQ(found.isEmpty(), !*expected) << changes;
            EXPECT_TRUE(found.join(u' ').contains(QLatin1String(expected))) << changes << expected;
        }
    }
}
