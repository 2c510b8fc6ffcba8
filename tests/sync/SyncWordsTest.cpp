#include "sync/SyncExplanation.h"
#include "sync/SyncMeaning.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

SyncOrder local()
{
    return {.entries = {u"/a/b"_qs, u"/a/c"_qs}, .destination = u"/d"_qs, .mode = u"0"_qs};
}

SyncOrder remote()
{
    SyncOrder request = local();
    request.isRemote = true;
    request.user = u"me"_qs;
    request.server = u"box"_qs;
    return request;
}

struct Change {
    SyncOrder request;
    std::function<void(SyncOrder &)> change;
    QString words;
};

} // namespace

TEST(SyncWords, SayWhatTheSwitchesDo)
{
    for (const Change &c : {
             Change{local(), [](SyncOrder &) {}, u"Deletes nothing"_qs},
             Change{local(), [](SyncOrder &) {}, u"newer at the destination stay"_qs},
             Change{local(), [](SyncOrder &r) { r.mode = u"1"_qs; }, u"also over a newer one"_qs},
             Change{local(), [](SyncOrder &r) { r.deletesExtra = true; },
                    u"Deletes at the destination, inside the listed folders"_qs},
             Change{local(), [](SyncOrder &r) { r.removesSources = true; }, u"removed here"_qs},
             Change{local(), [](SyncOrder &r) { r.deletesExtra = r.removesSources = true; },
                    u"a second run deletes there what the first one moved there"_qs},
             Change{local(), [](SyncOrder &r) { r.destination = u"/a/b/copy"_qs; },
                    u"lies inside \"/a/b\""_qs},
             Change{local(), [](SyncOrder &r) { r.entries.append(u"/x/a/y"_qs); },
                    u"\"/x/a/y\" will not be found"_qs},
             Change{remote(), [](SyncOrder &r) { r.user.clear(); }, u"fill one in"_qs},
             Change{remote(), [](SyncOrder &r) { r.port = u"22"_qs; }, u"The port becomes"_qs},
             Change{remote(), [](SyncOrder &r) { r.entries.removeLast(); }, u"must exist on the server"_qs},
         }) {
        SyncOrder request = c.request;
        EXPECT_EQ(describeSync(request).count(u'\n'), 1) << "a trap where there is none";
        c.change(request);
        EXPECT_TRUE(describeSync(request).contains(c.words)) << qPrintable(describeSync(request));
    }
}

TEST(SyncWords, SayWhatIsMissing)
{
    EXPECT_EQ(whatIsMissing(local()), QString());
    EXPECT_EQ(whatIsMissing(remote()), QString());
    for (const Change &c : {
             Change{local(), [](SyncOrder &r) { r.entries.clear(); }, u"list is empty"_qs},
             Change{local(), [](SyncOrder &r) { r.entries.append(u"b/c"_qs); },
                    u"\"b/c\" is no absolute"_qs},
             Change{local(), [](SyncOrder &r) { r.entries.append(u"/a/x\ny"_qs); }, u"line break"_qs},
             Change{local(), [](SyncOrder &r) { r.entries.append(u"/a/x\ry"_qs); }, u"line break"_qs},
             Change{local(), [](SyncOrder &r) { r.destination.clear(); }, u"No destination"_qs},
             Change{local(), [](SyncOrder &r) { r.destination = u"-d"_qs; }, u"no absolute path"_qs},
             Change{remote(), [](SyncOrder &r) { r.server.clear(); }, u"No server"_qs},
             Change{remote(), [](SyncOrder &r) { r.server = u"-e sh"_qs; }, u"no server's name"_qs},
         }) {
        SyncOrder request = c.request;
        c.change(request);
        EXPECT_TRUE(whatIsMissing(request).contains(c.words)) << qPrintable(whatIsMissing(request));
    }
    // A line break in the common folder's own path does no harm: the list does not hold it.
    EXPECT_EQ(whatIsMissing({.entries = {u"/a\nb/c"_qs}, .destination = u"/d"_qs}), QString());
}

// What can't be provoked on every machine, as the tools say it.
TEST(SyncWords, ExplainWhatRsyncSays)
{
    const SyncOrder withPort = [] {
        SyncOrder request = remote();
        request.port = u"22"_qs;
        return request;
    }();
    struct Case {
        SyncOrder request;
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
        EXPECT_TRUE(explainSync(QString::fromUtf8(c.output), c.request).contains(c.words))
            << qPrintable(explainSync(QString::fromUtf8(c.output), c.request));
}
