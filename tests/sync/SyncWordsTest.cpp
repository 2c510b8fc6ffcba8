#include "OrderOf.h"

#include "sync/SyncExplanation.h"
#include "sync/SyncMeaning.h"

#include <gtest/gtest.h>

TEST(SyncWords, SayWhatTheSwitchesDo)
{
    const QString remote = u"server=box user=me"_qs;
    for (const auto &[usual, change, words] : {
             std::tuple(u""_qs, u""_qs, "Deletes nothing"),
             {u""_qs, u"checksum"_qs, "also over a newer one"},
             {u""_qs, u"delete"_qs, "Deletes at the destination, inside the listed folders"},
             {u""_qs, u"remove"_qs, "removed here"},
             {u""_qs, u"delete remove"_qs, "a second run deletes there what the first one moved there"},
             {u""_qs, u"dst=/a/d/copy"_qs, "lies inside \"/a/d\""},
             {u""_qs, u"add=/x/a/y"_qs, "\"/x/a/y\" will not be found"},
             {remote, u"user="_qs, "fill one in"},
             {remote, u"port=22"_qs, "The port becomes"},
             {remote, u"only=/a/d"_qs, "must exist on the server"},
         }) {
        EXPECT_EQ(describeSync(orderOf(usual)).count(u'\n'), 1) << "a trap where there is none";
        const QString meaning = describeSync(orderOf(usual + u' ' + change));
        EXPECT_TRUE(meaning.contains(QString::fromLatin1(words))) << qPrintable(meaning);
    }
}

// What can't be provoked on every machine, as the tools say it.
TEST(SyncWords, ExplainWhatRsyncSays)
{
    const QString remote = u"server=box user=me"_qs;
    for (const auto &[changes, output, words] : {
             std::tuple(u""_qs, "[receiver] write failed on \"/d/x\": No space left on device (28)",
                        "is full"),
             {u""_qs, "[receiver] mkstemp \"/d/.x\" failed: Read-only file system (30)", "only be read"},
             {u""_qs, "[receiver] write failed on \"/d/x\": File too large (27)", "larger than"},
             {u""_qs,
              "[sender] send_files failed to open \"/a/b\": Permission denied (13)\n"
              "IO error encountered -- skipping file deletion",
              "may not read some of the files; they are not copied. Nothing was deleted"},
             {remote, "[Receiver] mkdir \"/x\" failed: No such file or directory (2)", "to be made does not"},
             {remote, "ssh: Could not resolve hostname box: Name or service not known",
              "no server of the name"},
             {remote, "bash: line 1: rsync: command not found", "has no rsync"},
             {remote, "client_loop: send disconnect: Broken pipe", "ended early"},
             {u""_qs, "something new", "what it said follows"},
         }) {
        const QString sentence = explainSync(u"rsync: "_qs + QString::fromLatin1(output), orderOf(changes));
        EXPECT_TRUE(sentence.contains(QString::fromLatin1(words))) << qPrintable(sentence);
    }
}
