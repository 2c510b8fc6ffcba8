#include "keys/Strength.h"

#include <gtest/gtest.h>

TEST(Strength, TellsWhatIsGuessedFromWhatIsNot)
{
    EXPECT_EQ(estimateStrength({}), Strength::None);
    for (const char *weak : {"secret", "Passw0rd!", "qwertyuiop12", "aaaaaaaaaaaaaaaaaaaaaaaa", "20031987"})
        EXPECT_EQ(estimateStrength(QString::fromLatin1(weak)), Strength::Weak) << weak;
    EXPECT_EQ(estimateStrength(u"rain otter violin"_qs), Strength::Fair);
    for (const QString &strong :
         {u"w7#Kq9!vZp2$Lm"_qs, u"rain otter violin magnet crispy dune"_qs, u"žluťoučký kůň úpěl"_qs})
        EXPECT_EQ(estimateStrength(strong), Strength::Strong) << qPrintable(strong);
    EXPECT_EQ(estimateStrength(QString(100'000, u'x') + u"w7#Kq9!vZp2$Lm"_qs), Strength::Weak);
}
