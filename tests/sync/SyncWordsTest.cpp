#include "OrderOf.h"

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
