#include "OrderOf.h"

#include "sync/SyncMeaning.h"

#include <gtest/gtest.h>

TEST(SyncWords, SayWhatTheSwitchesDo)
{
    const QString remote = u"server=box user=me"_s;
    for (const auto &[usual, change, words] : {
             std::tuple(u""_s, u""_s, "Deletes nothing"),
             {u""_s, u"checksum"_s, "also over a newer one"},
             {u""_s, u"delete"_s, "Deletes at the destination, inside the listed folders"},
             {u""_s, u"remove"_s, "removed here"},
             {u""_s, u"delete remove"_s, "a second run deletes there what the first one moved there"},
             {u""_s, u"dst=/a/d/copy"_s, "lies inside \"/a/d\""},
             {u""_s, u"add=/x/a/y"_s, "\"/x/a/y\" will not be found"},
             {remote, u"user="_s, "fill one in"},
             {remote, u"port=22"_s, "The port becomes"},
             {remote, u"only=/a/d"_s, "must exist on the server"},
         }) {
        EXPECT_EQ(describeSync(orderOf(usual)).count(u'\n'), 1) << "a trap where there is none";
        const QString meaning = describeSync(orderOf(usual + u' ' + change));
        EXPECT_TRUE(meaning.contains(QString::fromLatin1(words))) << qPrintable(meaning);
    }
}
