#include "app/folders/Decisions.h"

#include "TestProgram.h"

#include <gtest/gtest.h>

using namespace quillorentLibrary;

TEST(Decisions, FollowSourceAndMethod)
{
    struct Case {
        int source;
        QString method;
        std::optional<QString> cipher;
        std::optional<QString> extension;
    };
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    for (const Case &c : {
             Case{0, u"OpenSSL-AES"_qs, u"aes-256-cbc"_qs, u".aes"_qs},
             Case{-1, u"OpenSSL-BF"_qs, u"bf-cbc"_qs, u".bf"_qs},
             Case{1, u"OpenSSL-3D"_qs, u"des-ede3-cbc"_qs, u".3d"_qs},
             Case{2, u"OpenSSL-AES"_qs, u"smime"_qs, u".smime"_qs},
             Case{0, u"unknown"_qs, std::nullopt, std::nullopt},
         }) {
        delegate.passCombo01.selectIndex(c.source);
        delegate.currentRecord().setValue(u"symencryption"_qs, c.method);
        EXPECT_EQ(decideEncryption(), c.cipher) << qPrintable(c.method);
        EXPECT_EQ(decideExtension(), c.extension) << qPrintable(c.method);
    }
    delegate.passCombo01.selectIndex(PasswordTab::Certificate);
    delegate.currentRecord().setValue(u"asymencryption"_qs, u"");
    EXPECT_EQ(decideEncryption(), std::nullopt);
}

TEST(Decisions, ReadTheMethodFromAName)
{
    TestProgram program;
    program.start();
    for (const auto &[name, method] : {
             std::pair{u"/x/Docs.rar.aes.rar"_qs, u"OpenSSL-AES"_qs},
             std::pair{u"/x/Docs.rar.smime.rar"_qs, u"OpenSSL-SMIME"_qs},
             std::pair{u"/x.rar.bf.rar/Docs.rar.3d.rar"_qs, u"OpenSSL-3D"_qs},
             std::pair{u"Docs.rar.aes.rar.bf.rar"_qs, u"OpenSSL-BF"_qs},
             std::pair{u"Docs.rar"_qs, u""_qs},
             std::pair{u"Docs.aes"_qs, u""_qs},
             std::pair{u".aes"_qs, u"OpenSSL-AES"_qs},
         })
        EXPECT_EQ(detectExtension(name), method) << qPrintable(name);
    EXPECT_EQ(decideEncryption(u"Docs.rar.bf.rar"_qs), u"bf-cbc"_qs);
    EXPECT_EQ(decideExtension(u"Docs.rar"_qs), std::nullopt);
}

TEST(Decisions, JoinTheArchiversArguments)
{
    TestProgram program;
    program.start();
    EXPECT_EQ(decideSplit(), u"-v10000"_qs);
    EXPECT_EQ(decideKeepDate(), u"-tl"_qs);
    program.delegate().checkBox04.setOn(false);
    program.delegate().checkBox05.setOn(false);
    EXPECT_FALSE(decideSplit().isNull()) << "an argument that is off is an empty one, not a missing one";
    EXPECT_EQ(decideKeepDate(), u""_qs);
}
