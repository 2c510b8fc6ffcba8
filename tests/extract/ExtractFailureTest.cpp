#include "ExtractionTest.h"

#include "Tree.h"
#include "runs/Pauses.h"
#include "tools/ToolRun.h"

#include <QDir>
#include <QRegularExpression>
#include <csignal>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ExtractFailure : public ExtractionTest {
protected:
    /// The console must be this sentence, a pattern, and then these stage lines.
    void expectConsole(const QString &sentence, const QStringList &lines, const QString &archive) const
    {
        const QStringList shown = console().split(u'\n');
        ASSERT_GE(shown.size(), 2) << qPrintable(console());
        EXPECT_EQ(shown[0], QString());
        EXPECT_TRUE(QRegularExpression(sentence).match(shown[1]).hasMatch()) << qPrintable(shown[1]);
        QStringList expected;
        for (const QString &line : lines + QStringList{u" *** ERROR! ***"_qs})
            expected.append(line + (line.endsWith(u'*') ? u" "_qs : u" - "_qs) + archive);
        EXPECT_EQ(shown.mid(2).join(u'\n').toStdString(), expected.join(u'\n').toStdString());
        EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Window);
        EXPECT_EQ(delegate.foldersDone(), 0);
        EXPECT_TRUE(delegate.cancelFlag());
        EXPECT_EQ(delegate.extractedFolder(), QString());
        EXPECT_TRUE(delegate.outputText02.text().startsWith(u"Failed: "));
    }

    void damage(const QString &path) const
    {
        std::string bytes = readFile(path.toStdString());
        bytes[bytes.size() / 2] ^= 1;
        writeFile(path.toStdString(), bytes);
    }
};

const QString firstOk = u"unRAR 1st OK"_qs;
const QString firstError = u"unRAR 1st ERROR"_qs;
const QString decodeOk = u"DECODE OK"_qs;
const QString decodeError = u"DECODE ERROR"_qs;
const QString secondError = u"unRAR 2nd ERROR"_qs;

} // namespace

TEST_F(ExtractFailure, EachCauseReadsDifferently)
{
    struct Case {
        const char *name;
        std::function<void()> spoil;
        QString sentence;
        QStringList lines;
    };
    const Stub rar(program.folder() / "tools", "rar", "mute-at t " + libexec + "/rar");
    const Stub openssl(program.folder() / "tools", "openssl", "write rubbish");
    const auto useStub = [this](const QString &tool, const Stub &stub) {
        program.useTool(tool, stub.path());
    };
    const QString archive = backUpSmallFolder();
    const fs::path place = out / "docs.rar";
    for (const Case &c : {
             Case{"damaged",
                  [&] { useStub(u"RAR"_qs, rar), damage(archive); },
                  u"is damaged: .*checksum"_qs,
                  {firstError}},
             Case{"cut short",
                  [&] {
                      useStub(u"RAR"_qs, rar);
                      fs::resize_file(archive.toStdString(), fs::file_size(archive.toStdString()) / 2);
                  },
                  u"is cut short"_qs,
                  {firstError}},
             Case{"encrypted file's name taken",
                  [&] { writeFile(place.string() + ".aes/x", "x"); },
                  u"docs.rar.aes\" is a folder"_qs,
                  {firstError}},
             Case{"inner archive's name taken",
                  [&] { writeFile(place / "x", "x"); },
                  u"docs.rar\" is a folder"_qs,
                  {firstOk, decodeError}},
             Case{"contents' name taken",
                  [&] { writeFile(out / *program.folder().relative_path().begin(), "x"); },
                  u"is taken by something else"_qs,
                  {firstOk, decodeOk, secondError}},
             Case{"other method",
                  [&] { delegate.decryptionCombo01.selectIndex(1); },
                  u"its name tells another one|password is probably wrong"_qs,
                  {}},
             Case{"silent rubbish",
                  [&] { useStub(u"OpenSSL"_qs, openssl); },
                  u"password is probably wrong"_qs,
                  {firstOk, decodeOk, secondError}},
             Case{"silent rubbish, silent archiver",
                  [&] {
                      useStub(u"OpenSSL"_qs, openssl);
                      rar.behave("mute-at x " + libexec + "/rar");
                      useStub(u"RAR"_qs, rar);
                  },
                  u"password is probably wrong"_qs,
                  {firstOk, decodeOk, secondError}},
             Case{"tool missing",
                  [&] { program.useTool(u"OpenSSL"_qs, "/nowhere/openssl"); },
                  u"Can't start \"/nowhere/openssl\""_qs,
                  {firstOk, decodeError}},
         }) {
        SCOPED_TRACE(c.name);
        const std::string whole = readFile(archive.toStdString());
        c.spoil();
        extract({archive});
        if (!c.lines.isEmpty()) expectConsole(c.sentence, c.lines, archive);
        EXPECT_TRUE(QRegularExpression(c.sentence).match(console()).hasMatch()) << qPrintable(console());

        program.useTool(u"RAR"_qs, libexec + "/rar");
        program.useTool(u"OpenSSL"_qs, libexec + "/openssl");
        delegate.decryptionCombo01.selectIndex(ExtractTab::automaticDecryption);
        writeFile(archive.toStdString(), whole);
        fs::remove_all(out);
        fs::create_directories(out);
    }
    extract({archive});
    EXPECT_EQ(console(), QString()) << "all is well again";
}

TEST_F(ExtractFailure, NoticesAWrongPasswordOrKey)
{
    const QString archive = backUpSmallFolder();
    delegate.secureText01a.setText(u"wrong"_qs);
    extract({archive});
    // By the salt, one wrong password in 256 gets past the decoder.
    EXPECT_TRUE(console().contains(u"password is wrong") || console().contains(u"password is probably wrong"))
        << qPrintable(console());
    EXPECT_TRUE(console().endsWith(u"ERROR - "_qs + archive + u"\n *** ERROR! *** "_qs + archive));
    EXPECT_EQ(delegate.foldersDone(), 0);
    EXPECT_FALSE(fs::exists(extracted(program.folder() / "docs")));

    makeKeyPair("first");
    backUp({program.path("docs")}, u"OpenSSL-SMIME"_qs);
    makeKeyPair("second");
    const QString message = program.path("archives/docs.rar.smime.rar");
    extract({message});
    EXPECT_TRUE(console().contains(u"with this private key and certificate") ||
                console().contains(u"The private key is wrong"))
        << qPrintable(console());
    EXPECT_EQ(concerns, QString());

    delegate.pkFile01.setText({});
    extract({message});
    EXPECT_TRUE(concerns.contains(u"No private key is chosen"));
    expectConsole(u"The private key can't be read"_qs, {firstOk, decodeError}, message);
    EXPECT_TRUE(fs::exists(out / "docs.rar.smime")) << "the encrypted file stays";
}

TEST_F(ExtractFailure, SaysThatNothingMayBeWritten)
{
    if (geteuid() == 0) GTEST_SKIP() << "root may write anywhere";
    const QString archive = backUpSmallFolder();
    fs::permissions(out, fs::perms::owner_read | fs::perms::owner_exec);
    extract({archive});
    EXPECT_TRUE(concerns.contains(u"Nothing may be written"));
    expectConsole(u"Nothing may be written into"_qs, {firstError}, archive);
}

TEST_F(ExtractFailure, ADamagedArchiveKeepsTheOthersBack)
{
    const QString good = backUpSmallFolder("a");
    writeFile(program.folder() / "data", randomBytes(300'000));
    backUp({program.path("data")}, u"OpenSSL-AES"_qs, 100);
    const QStringList volumes = volumesOf(u"data.rar.aes"_qs);
    ASSERT_EQ(volumes.size(), 4);
    struct Case {
        const char *name;
        std::function<void()> spoil;
        QString concern;
        QString reason;
    };
    for (const Case &c : {
             Case{"last missing", [&] { fs::remove(volumes.last().toStdString()); },
                  u"may not be the last"_qs, u"A volume is missing: Cannot find volume"_qs},
             Case{"middle missing", [&] { fs::remove(volumes[2].toStdString()); }, u"volume 3 is missing"_qs,
                  u"A volume is missing: Cannot find volume"_qs},
             Case{"last cut short",
                  [&] { fs::resize_file(volumes.last().toStdString(), 5000); },
                  {},
                  u"is cut short"_qs},
             Case{"middle cut short", [&] { fs::resize_file(volumes[1].toStdString(), 5000); },
                  u"volume 2 is shorter"_qs, u"is cut short"_qs},
             Case{"middle damaged", [&] { damage(volumes[1]); }, {}, u"is damaged"_qs},
             Case{"others missing",
                  [&] {
                      for (const QString &volume : volumes.mid(1))
                          fs::remove(volume.toStdString());
                  },
                  u"all volumes but the first"_qs, u"A volume is missing"_qs},
         }) {
        SCOPED_TRACE(c.name);
        c.spoil();
        extract({good, volumes.first()});
        EXPECT_EQ(damaged, volumes.first());
        EXPECT_TRUE(delegate.extractReasonText01.text().contains(c.reason))
            << qPrintable(delegate.extractReasonText01.text());
        EXPECT_TRUE(concerns.isEmpty() ? c.concern.isEmpty() : concerns.contains(c.concern))
            << qPrintable(concerns);
        EXPECT_TRUE(fs::is_empty(out));
        EXPECT_EQ(console(), QString());
        EXPECT_TRUE(delegate.outputText02.text().startsWith(u"Failed: "_qs + volumes.first()));
        backUp({program.path("data")}, u"OpenSSL-AES"_qs, 100);
    }
}

TEST_F(ExtractFailure, CancellingEndsEachStage)
{
    const QString archive = backUpSmallFolder();
    for (const auto &[tool, mark] :
         {std::pair<std::string, std::string>{"rar", "t"}, {"rar", "e"}, {"openssl", "-d"}, {"rar", "x"}}) {
        SCOPED_TRACE(mark);
        const Stub hanging(program.folder() / ("tools" + mark), tool,
                           "hang-at " + mark + " " + libexec + "/" + tool);
        const QString name = tool == "rar" ? u"RAR"_qs : u"OpenSSL"_qs;
        program.useTool(name, hanging.path());
        delegate.extractButton03Action();
        delegate.addArchives({archive, archive});
        delegate.buttonLaunch02b();
        const int process = hanging.processId();
        delegate.buttonKill01(delegate.buttonCancel02);
        EXPECT_EQ(delegate.buttonCancel02.title(), u"Wait..."_qs);
        program.waitForEnd();
        EXPECT_EQ(delegate.progressPanel02.place(), outlets::Panel::Place::Hidden);
        EXPECT_EQ(toolsRunning(), 0);
        EXPECT_NE(kill(process, 0), 0) << "the tool is left running";
        EXPECT_EQ(damaged, QString()) << "an archive whose test was cancelled is not damaged";
        EXPECT_TRUE(delegate.outputText02.text().startsWith(u"Cancelled"));

        program.useTool(name, libexec + "/" + tool);
        extract({archive});
        EXPECT_EQ(console(), QString());
    }
}

TEST_F(ExtractFailure, CancellingBeforeTheFirstStageExtractsNothing)
{
    const QString archive = backUpSmallFolder();
    pauses().beforeMeasuring = std::chrono::seconds(1); // time enough to press the button
    delegate.addArchives({archive});
    delegate.buttonLaunch02b();
    ASSERT_TRUE(TestProgram::waitUntil(
        [&] { return delegate.progressPanel02.place() == outlets::Panel::Place::Sheet; }));
    delegate.buttonKill01(delegate.buttonCancel02);
    program.waitForEnd();
    EXPECT_TRUE(fs::is_empty(out));
}
