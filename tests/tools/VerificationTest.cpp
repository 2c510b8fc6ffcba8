#include "app/tools/Compliance.h"

#include "ProgramTest.h"
#include "Stub.h"
#include "tools/Verification.h"

using namespace quillorentLibrary;

namespace {

class Verification : public ProgramTest {
protected:
    plist::Dictionary table(const QString &name) const { return delegate.configPlist().dictionary(name); }
};

} // namespace

TEST_F(Verification, CountsTheToolsThatAreInOrder)
{
    EXPECT_TRUE(delegate.compliance());
    program.useTool(u"OpenSSL"_qs, "/usr/bin/openssl"); // the system's own will do, too
    program.useTool(u"RSync"_qs, "/nowhere/rsync");
    EXPECT_FALSE(compliance());
    EXPECT_EQ(delegate.compliant(), 2);
    EXPECT_EQ(delegate.compliantBase(), 3);
    EXPECT_DOUBLE_EQ(delegate.level01.state().critical, 2.04);

    for (const QString &name : table(u"external"_qs).keys())
        table(u"external"_qs).remove(name);
    EXPECT_TRUE(compliance()) << "no tool is registered, so none fails";
    EXPECT_EQ(delegate.compliantBase(), 0);
}

TEST_F(Verification, NeedsBothTexts)
{
    const Stub stub(program.folder(), "my-rar", "print usage: Unknown option");
    const Stub elsewhere(program.folder() / "rar", "other", "print Unknown option"); // the folder's name
    const QString path = toQString(stub.path());
    EXPECT_TRUE(test(path, u"Unknown option"_qs, u"rar"_qs));
    EXPECT_FALSE(test(path, u"unknown option"_qs, u"rar"_qs));
    EXPECT_FALSE(test(path, u"Unknown option"_qs, u"zip"_qs));
    EXPECT_FALSE(test(toQString(elsewhere.path()), u"Unknown option"_qs, u"rar"_qs));
    stub.behave("bad-bytes");
    EXPECT_FALSE(test(path, u"caf"_qs, u"rar"_qs));

    EXPECT_TRUE(testAll(u"RAR"_qs));
    for (const QString &missing : {u"verifiers"_qs, u"executables"_qs}) {
        const std::optional<QString> text = table(missing).string(u"RAR"_qs);
        table(missing).remove(u"RAR"_qs);
        EXPECT_FALSE(testAll(u"RAR"_qs)) << qPrintable(missing);
        table(missing).setValue(u"RAR"_qs, *text);
    }
    EXPECT_FALSE(testAll(u"no such tool"_qs));
}
