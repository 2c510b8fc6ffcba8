#include "sync/SyncExplanation.h"
#include "sync/SyncMeaning.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

SyncOrder local() { return {.entries = {u"/a/b"_qs, u"/a/c"_qs}, .destination = u"/d"_qs, .mode = u"0"_qs}; }

SyncOrder remote()
{
    SyncOrder order = local();
    order.isRemote = true;
    order.user = u"me"_qs;
    order.server = u"box"_qs;
    return order;
}

struct Change {
    SyncOrder order;
    std::function<void(SyncOrder &)> change;
    QString words;
};

} // namespace

TEST(SyncWords, SayWhatTheSwitchesDo)
{
    for (const Change &c : {
             Change{local(), [](SyncOrder &) {}, u"Deletes nothing"_qs},
             Change{local(), [](SyncOrder &) {}, u"newer at the destination stay"_qs},
             Change{local(), [](SyncOrder &o) { o.mode = u"1"_qs; }, u"also over a newer one"_qs},
             Change{local(), [](SyncOrder &o) { o.deletesExtra = true; },
                    u"Deletes at the destination, inside the listed folders"_qs},
             Change{local(), [](SyncOrder &o) { o.removesSources = true; }, u"removed here"_qs},
             Change{local(), [](SyncOrder &o) { o.deletesExtra = o.removesSources = true; },
                    u"a second run deletes there what the first one moved there"_qs},
             Change{local(), [](SyncOrder &o) { o.destination = u"/a/b/copy"_qs; },
                    u"lies inside \"/a/b\""_qs},
             Change{local(), [](SyncOrder &o) { o.entries.append(u"/x/a/y"_qs); },
                    u"\"/x/a/y\" will not be found"_qs},
             Change{remote(), [](SyncOrder &o) { o.user.clear(); }, u"fill one in"_qs},
             Change{remote(), [](SyncOrder &o) { o.port = u"22"_qs; }, u"The port becomes"_qs},
             Change{remote(), [](SyncOrder &o) { o.entries.removeLast(); }, u"must exist on the server"_qs},
         }) {
        SyncOrder order = c.order;
        EXPECT_EQ(describeSync(order).count(u'\n'), 1) << "a trap where there is none";
        c.change(order);
        EXPECT_TRUE(describeSync(order).contains(c.words)) << qPrintable(describeSync(order));
    }
}

// What can't be provoked on every machine, as the tools say it.
TEST(SyncWords, ExplainWhatRsyncSays)
{
    const SyncOrder withPort = [] {
        SyncOrder order = remote();
        order.port = u"22"_qs;
        return order;
    }();
    struct Case {
        SyncOrder order;
        const char *output;
        QString words;
    };
    for (const Case &c : {
             Case{local(), "rsync: [receiver] write failed on \"/d/x\": No space left on device (28)\n",
                  u"is full"_qs},
             Case{local(), "rsync: [receiver] mkstemp \"/d/.x\" failed: Read-only file system (30)\n",
                  u"only be read"_qs},
             Case{local(),
                  "rsync: [sender] send_files failed to open \"/a/b\": Permission denied (13)\n"
                  "IO error encountered -- skipping file deletion\n",
                  u"may not read some of the files; they are not copied. Nothing was deleted"_qs},
             Case{local(), "rsync: [receiver] mkstemp \"/d/.x\" failed: Permission denied (13)\n",
                  u"may not write to the destination \"/d\""_qs},
             Case{remote(), "ssh: Could not resolve hostname box: Name or service not known\n",
                  u"no server of the name \"box\""_qs},
             Case{remote(), "bash: line 1: rsync: command not found\n", u"has no rsync"_qs},
             Case{remote(), "rsync: [Receiver] mkdir \"/x/d\" failed: No such file or directory (2)\n",
                  u"to be made does not exist"_qs},
             Case{withPort, "rsync: [Receiver] mkdir \"22:/d\" failed: No such file or directory (2)\n",
                  u"took the port"_qs},
             Case{remote(), "client_loop: send disconnect: Broken pipe\n", u"ended early"_qs},
             Case{local(), "something new\n", u"what it said follows"_qs},
         })
        EXPECT_TRUE(explainSync(QString::fromUtf8(c.output), c.order).contains(c.words))
            << qPrintable(explainSync(QString::fromUtf8(c.output), c.order));
}
