#include "app/folders/Decisions.h"

#include "TestProgram.h"

#include <gtest/gtest.h>

using namespace quillorentLibrary;

TEST(Decisions, FollowTheProfileAndTheSettings)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    for (const auto &[source, method, cipher, extension] :
         {std::tuple{0, u"OpenSSL-AES"_qs, std::optional(u"aes-256-cbc"_qs), std::optional(u".aes"_qs)},
          {-1, u"OpenSSL-BF"_qs, u"bf-cbc"_qs, u".bf"_qs},
          {1, u"OpenSSL-3D"_qs, u"des-ede3-cbc"_qs, u".3d"_qs},
          {2, u"OpenSSL-AES"_qs, u"smime"_qs, u".smime"_qs},
          {0, u"unknown"_qs, std::nullopt, std::nullopt}}) {
        delegate.passCombo01.selectIndex(source);
        delegate.currentRecord().setValue(u"symencryption"_qs, method);
        EXPECT_EQ(decideEncryption(), cipher) << qPrintable(method);
        EXPECT_EQ(decideExtension(), extension) << qPrintable(method);
    }
    for (const auto &[name, method] : {std::pair{u"/x/Docs.rar.aes.rar"_qs, u"OpenSSL-AES"_qs},
                                       {u"/x/Docs.rar.smime.rar"_qs, u"OpenSSL-SMIME"_qs},
                                       {u"/x.rar.bf.rar/Docs.rar.3d.rar"_qs, u"OpenSSL-3D"_qs},
                                       {u"Docs.rar.aes.rar.bf.rar"_qs, u"OpenSSL-BF"_qs},
                                       {u"Docs.rar"_qs, u""_qs},
                                       {u"Docs.aes"_qs, u""_qs},
                                       {u".aes"_qs, u"OpenSSL-AES"_qs}})
        EXPECT_EQ(detectExtension(name), method) << qPrintable(name);
    EXPECT_EQ(decideEncryption(u"Docs.rar.bf.rar"_qs), u"bf-cbc"_qs);
    EXPECT_EQ(decideExtension(u"Docs.rar"_qs), std::nullopt);

    EXPECT_EQ(decideSplit() + decideKeepDate(), u"-v10000-tl"_qs);
    delegate.checkBox04.setOn(false);
    delegate.checkBox05.setOn(false);
    EXPECT_EQ(decideSplit() + decideKeepDate(), u""_qs);
    EXPECT_FALSE(decideSplit().isNull()) << "an argument that is off is an empty one, not a missing one";
}
