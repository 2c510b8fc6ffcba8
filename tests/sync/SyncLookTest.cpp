#include "SyncSample.h"

#include "sync/SyncLook.h"

namespace fs = std::filesystem;

TEST(SyncLook, TellsBeforeAnythingIsTouched)
{
    struct Case {
        std::function<void(SyncSample &)> change;
        const char *obstacle;
        const char *concern;
    };
    for (const Case &c : {
             Case{[](SyncSample &s) { s.order.deletesExtra = s.order.removesSources = true; }, "", ""},
             // An unmounted disk, as its mount point looks.
             Case{[](SyncSample &s) { s.add("empty"); }, "", ""},
             Case{[](SyncSample &s) {
                      s.add("empty");
                      s.order.deletesExtra = true;
                  },
                  "", "src/empty\" is empty, and everything in its copy would be deleted"},
             Case{[](SyncSample &s) {
                      s.add("empty");
                      s.order.deletesExtra = s.order.isRemote = true;
                      s.order.server = u"box"_qs;
                  },
                  "", "is empty"},
             Case{[](SyncSample &s) {
                      s.add("empty");
                      s.order.deletesExtra = true;
                      fs::remove_all(s.folder / "dst/empty");
                  },
                  "", ""},
             Case{[](SyncSample &s) { s.order.destination = s.path("src/d/copies/../copy"); }, "",
                  "lies inside"},
             Case{[](SyncSample &s) {
                      fs::create_directory_symlink(s.folder / "src/d", s.folder / "link");
                      s.order.destination = s.path("link/copy");
                  },
                  "", "lies inside"},
             Case{[](SyncSample &s) { s.order.entries.append(s.path("src2/x")); }, "",
                  "src2/x\" does not lie under the common folder"},
             Case{[](SyncSample &s) { s.order.destination = s.path("src/x"); }, "is a file", ""},
             Case{[](SyncSample &s) { s.order.destination = s.path("dst/../src"); }, "lie in already", ""},
             Case{[](SyncSample &s) { s.order.entries.clear(); }, "list is empty", ""},
             Case{[](SyncSample &s) { s.order.entries.append(u"b/c"_qs); }, "\"b/c\" is no absolute", ""},
             Case{[](SyncSample &s) { s.add("x\ny"); }, "line break", ""},
             Case{[](SyncSample &s) { s.add("x\ry"); }, "line break", ""},
             Case{[](SyncSample &s) { s.order.destination.clear(); }, "No destination", ""},
             Case{[](SyncSample &s) { s.order.destination = u"-d"_qs; }, "no absolute path", ""},
             Case{[](SyncSample &s) { s.order.isRemote = true; }, "No server", ""},
             Case{[](SyncSample &s) {
                      s.order.isRemote = true;
                      s.order.server = u"-e sh"_qs;
                  },
                  "no server's name", ""},
         }) {
        SyncSample sample;
        writeFile(sample.folder / "src/x", "x");
        writeFile(sample.folder / "src/d/y", "y");
        fs::create_directories(sample.folder / "src/empty");
        writeFile(sample.folder / "dst/empty/precious", "1");
        sample.add("x");
        sample.add("d");
        c.change(sample);
        Findings findings;
        lookAtSync(sample.order, findings);
        const std::string obstacles = findings.obstacles.join(u' ').toStdString();
        const std::string concerns = findings.concerns.join(u' ').toStdString();
        EXPECT_EQ(obstacles.empty(), !*c.obstacle) << obstacles;
        EXPECT_EQ(concerns.empty(), !*c.concern) << concerns << c.concern;
        EXPECT_NE(obstacles.find(c.obstacle), std::string::npos) << obstacles;
        EXPECT_NE(concerns.find(c.concern), std::string::npos) << concerns;
    }
}
