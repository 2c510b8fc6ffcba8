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
    program.useTool(u"OpenSSL"_s, "/usr/bin/openssl"); // the system's own will do, too
    program.useTool(u"RSync"_s, "/nowhere/rsync");
    EXPECT_FALSE(compliance());
    EXPECT_EQ(delegate.compliant(), 2);
    EXPECT_EQ(delegate.compliantBase(), 3);
    EXPECT_DOUBLE_EQ(delegate.level01.state().critical, 2.04);

    for (const QString &name : table(u"external"_s).keys())
        table(u"external"_s).remove(name);
    EXPECT_TRUE(compliance()) << "no tool is registered, so none fails";
    EXPECT_EQ(delegate.compliantBase(), 0);
}

TEST_F(Verification, NeedsBothTexts)
{
    const Stub stub(program.folder(), "my-rar", "print usage: Unknown option");
    const Stub elsewhere(program.folder() / "rar", "other", "print Unknown option"); // the folder's name
    const QString path = toQString(stub.path());
    EXPECT_TRUE(test(path, u"Unknown option"_s, u"rar"_s));
    EXPECT_FALSE(test(path, u"unknown option"_s, u"rar"_s));
    EXPECT_FALSE(test(path, u"Unknown option"_s, u"zip"_s));
    EXPECT_FALSE(test(toQString(elsewhere.path()), u"Unknown option"_s, u"rar"_s));
    stub.behave("bad-bytes");
    EXPECT_FALSE(test(path, u"caf"_s, u"rar"_s));

    EXPECT_TRUE(testAll(u"RAR"_s));
    for (const QString &missing : {u"verifiers"_s, u"executables"_s}) {
        const std::optional<QString> text = table(missing).string(u"RAR"_s);
        table(missing).remove(u"RAR"_s);
        EXPECT_FALSE(testAll(u"RAR"_s)) << qPrintable(missing);
        table(missing).setValue(u"RAR"_s, *text);
    }
    EXPECT_FALSE(testAll(u"no such tool"_s));
}
