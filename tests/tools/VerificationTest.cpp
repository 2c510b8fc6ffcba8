#include "app/tools/Compliance.h"

#include "Stub.h"
#include "TestProgram.h"
#include "app/tools/PathTable.h"
#include "tools/Verification.h"

#include <gtest/gtest.h>

using namespace quillorentLibrary;

namespace {

plist::Dictionary table(TestProgram &program, const QString &name)
{
    return program.delegate().configPlist().dictionary(name);
}

} // namespace

TEST(Verification, PassesTheToolsOfANewUser)
{
    TestProgram program;
    program.start();
    EXPECT_TRUE(program.delegate().compliance());
    EXPECT_EQ(program.delegate().compliant(), 3);
    EXPECT_EQ(program.delegate().compliantBase(), 3);
    for (const QString &name : {u"RAR"_qs, u"OpenSSL"_qs, u"RSync"_qs})
        EXPECT_TRUE(testAll(name)) << qPrintable(name);
}

TEST(Verification, PassesTheSystemsOpenSslToo)
{
    TestProgram program;
    program.start();
    program.useTool(u"OpenSSL"_qs, "/usr/bin/openssl");
    EXPECT_TRUE(testAll(u"OpenSSL"_qs));
}

TEST(Verification, NeedsBothTexts)
{
    TestProgram program;
    program.start();
    const Stub stub(program.folder(), "my-rar", "print usage: Unknown option");
    const QString path = toQString(stub.path());
    EXPECT_TRUE(test(path, u"Unknown option"_qs, u"rar"_qs));
    EXPECT_FALSE(test(path, u"unknown option"_qs, u"rar"_qs));
    EXPECT_FALSE(test(path, u"Unknown option"_qs, u"zip"_qs));
    stub.behave("bad-bytes");
    EXPECT_FALSE(test(path, u"caf"_qs, u"rar"_qs));

    // The folder's name does not count.
    const Stub elsewhere(program.folder() / "rar", "other", "print Unknown option");
    EXPECT_FALSE(test(toQString(elsewhere.path()), u"Unknown option"_qs, u"rar"_qs));
}

TEST(Verification, FailsAToolThatNothingIsKnownOf)
{
    TestProgram program;
    program.start();
    for (const QString &missing : {u"verifiers"_qs, u"executables"_qs}) {
        const std::optional<QString> text = table(program, missing).string(u"RAR"_qs);
        table(program, missing).remove(u"RAR"_qs);
        EXPECT_FALSE(testAll(u"RAR"_qs)) << qPrintable(missing);
        table(program, missing).setValue(u"RAR"_qs, *text);
    }
    EXPECT_FALSE(testAll(u"no such tool"_qs));
}

TEST(Compliance, IsCriticalAsSoonAsOneToolFails)
{
    TestProgram program;
    program.start();
    program.useTool(u"RSync"_qs, "/nowhere/rsync");
    EXPECT_FALSE(compliance());
    EXPECT_EQ(program.delegate().compliant(), 2);
    EXPECT_EQ(program.delegate().compliantBase(), 3);
    const auto level = program.delegate().level01.state();
    EXPECT_EQ(level.value, 2);
    EXPECT_EQ(level.maximum, 3);
    EXPECT_DOUBLE_EQ(level.warning, 2.05);
    EXPECT_DOUBLE_EQ(level.critical, 2.04);

    for (const QString &name : table(program, u"external"_qs).keys())
        table(program, u"external"_qs).remove(name);
    EXPECT_TRUE(compliance()) << "no tool is registered, so none fails";
    EXPECT_EQ(program.delegate().compliantBase(), 0);
}

TEST(PathTable, ShowsAndStoresPaths)
{
    TestProgram program;
    program.start();
    pathTable rows;
    ASSERT_EQ(rows.numberOfRows(), 3);
    EXPECT_EQ(rows.objectValue(u"c10"_qs, 2), u"RSync"_qs);
    EXPECT_EQ(rows.objectValue(u"c20"_qs, 2), u"/usr/bin/rsync"_qs);
    EXPECT_EQ(rows.objectValue(u"c30"_qs, 2), true);
    EXPECT_EQ(rows.objectValue(u"c40"_qs, 2), QString());
    EXPECT_EQ(rows.objectValue(u"c99"_qs, 2), QString());

    rows.setObjectValue(u"/somewhere/rsync"_qs, u"c20"_qs, 2);
    rows.setObjectValue(u"another name"_qs, u"c10"_qs, 2);
    EXPECT_EQ(rows.objectValue(u"c20"_qs, 2), u"/somewhere/rsync"_qs);
    EXPECT_EQ(rows.objectValue(u"c10"_qs, 2), u"RSync"_qs);
    EXPECT_EQ(rows.objectValue(u"c30"_qs, 2), false);
    EXPECT_EQ(program.delegate().compliant(), 3) << "typing a path does not count the tools again";
}

TEST(SelectFile, StoresTheChoiceForTheSelectedRow)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    delegate.openPanel = [](const outlets::OpenPanel &panel) {
        EXPECT_EQ(panel.directory, u"/usr/bin"_qs);
        EXPECT_EQ(panel.allowedFileTypes, QStringList{u""_qs});
        return QStringList{u"/usr/bin/openssl"_qs};
    };
    delegate.selectFile();
    EXPECT_NE(table(program, u"external"_qs).string(u"OpenSSL"_qs), u"/usr/bin/openssl"_qs)
        << "no row is selected";

    delegate.pathTableView.setSelectedRows({1});
    delegate.selectFile();
    EXPECT_EQ(table(program, u"external"_qs).string(u"OpenSSL"_qs), u"/usr/bin/openssl"_qs);
}
