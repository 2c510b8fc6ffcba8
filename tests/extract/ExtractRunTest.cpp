#include "ExtractionTest.h"

#include "Tree.h"

#include <QDir>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class ExtractRun : public ExtractionTest {};

} // namespace

TEST_F(ExtractRun, BringsBackWhatWasBackedUp)
{
    const fs::path tree = program.folder() / "odd tree";
    makeSampleTree(tree);
    makeKeyPair();
    const QStringList methods{u"OpenSSL-AES"_qs, u"OpenSSL-BF"_qs, u"OpenSSL-3D"_qs, u"OpenSSL-SMIME"_qs};
    for (int method = 0; method < methods.size(); ++method)
        for (const int volume : {0, 300})
            for (const bool keepDate : {true, false}) {
                SCOPED_TRACE(methods[method].toStdString() + (volume ? " split" : " whole") +
                             (keepDate ? " dated" : ""));
                fs::remove_all(program.folder() / "archives");
                fs::create_directories(program.folder() / "archives");
                fs::remove_all(out);
                fs::create_directories(out);
                delegate.checkBox05.setOn(keepDate);
                backUp({toQString(tree)}, methods[method], volume);
                // Half of them by the method that is chosen, half by the one that the name tells.
                delegate.decryptionCombo01.selectIndex(keepDate ? ExtractTab::automaticDecryption : method);
                extract({program.path("archives")});

                EXPECT_EQ(console(), QString());
                EXPECT_EQ(concerns, QString());
                EXPECT_EQ(treeDifference(tree, extracted(tree)), "");
                EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1)
                    << "an intermediate file is left";
                EXPECT_EQ(delegate.extractedFolder(), toQString(out));
                EXPECT_TRUE(delegate.outputText02.text().startsWith(u"Extracted 1 of 1 "));
            }
}

TEST_F(ExtractRun, TakesSetsOfAnyNumberOfVolumes)
{
    const fs::path file = program.folder() / "data";
    writeFile(file, randomBytes(1'500'000));
    for (const auto &[size, least, first] : {std::tuple{1000, 2, u"data.rar.aes.part1.rar"_qs},
                                             std::tuple{130, 12, u"data.rar.aes.part01.rar"_qs},
                                             std::tuple{13, 115, u"data.rar.aes.part001.rar"_qs}}) {
        SCOPED_TRACE(size);
        backUp({toQString(file)}, u"OpenSSL-AES"_qs, size);
        const QStringList volumes = volumesOf(u"data.rar.aes"_qs);
        ASSERT_GE(volumes.size(), least);
        ASSERT_TRUE(volumes.first().endsWith(first)) << qPrintable(volumes.first());
        fs::remove_all(extracted(file));
        extract(volumes);
        EXPECT_EQ(console(), QString());
        EXPECT_EQ(concerns, QString());
        EXPECT_EQ(delegate.foldersToDo(), volumes.size());
        EXPECT_EQ(delegate.foldersDone(), 1);
        EXPECT_TRUE(readFile(extracted(file)) == readFile(file));

        // The first volume is enough where the others lie beside it.
        fs::remove_all(extracted(file));
        extract({volumes.first()});
        EXPECT_TRUE(readFile(extracted(file)) == readFile(file));
    }
}

TEST_F(ExtractRun, TakesArchivesThatWereRenamed)
{
    const fs::path file = program.folder() / "data";
    writeFile(file, randomBytes(500'000));
    backUp({toQString(file)}, u"OpenSSL-BF"_qs, 200);
    const QStringList volumes = volumesOf(u"data.rar.bf"_qs);
    ASSERT_EQ(volumes.size(), 3);
    for (const char *name :
         {"other.rar.bf", "holiday", "holiday.2024", "a.part1.b.rar.bf", "with*[x]?.rar.bf"}) {
        SCOPED_TRACE(name);
        const fs::path renamed = program.folder() / "renamed";
        for (int volume = 1; volume <= 3; ++volume) {
            fs::create_directories(renamed);
            fs::copy_file(volumes[volume - 1].toStdString(),
                          renamed / (std::string(name) + ".part" + std::to_string(volume) + ".rar"));
        }
        extract({toQString(renamed)});
        EXPECT_EQ(console(), QString());
        EXPECT_TRUE(readFile(extracted(file)) == readFile(file));
        EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1) << "an intermediate file is left";
        fs::remove_all(extracted(file));
        fs::remove_all(renamed);
    }
    // One that looks like a volume in the middle of its name is none.
    const QString whole = backUpSmallFolder("report.part1.final");
    extract({whole});
    EXPECT_EQ(console(), QString());
    EXPECT_EQ(concerns, QString());
    EXPECT_TRUE(fs::exists(extracted(program.folder() / "report.part1.final/file")));
}

TEST_F(ExtractRun, RunsItsToolsWithExactlyTheseArguments)
{
    const Stub rar(program.folder() / "tools", "rar", "relay " + libexec + "/rar");
    const Stub openssl(program.folder() / "tools", "openssl", "relay " + libexec + "/openssl");
    makeKeyPair();
    writeFile(program.folder() / "my docs/file", "x");
    backUp({program.path("my docs")}, u"OpenSSL-SMIME"_qs, 1000);
    backUp({program.path("my docs")}, u"OpenSSL-3D"_qs, 1000);
    program.useTool(u"RAR"_qs, rar.path());
    program.useTool(u"OpenSSL"_qs, openssl.path());
    extract({program.path("archives/my docs.rar.3d.rar"), program.path("archives/my docs.rar.smime.rar")});
    EXPECT_EQ(console(), QString());

    using Arguments = std::vector<std::string>;
    const std::string threeD = (program.folder() / "archives/my docs.rar.3d.rar").string();
    const std::string smime = (program.folder() / "archives/my docs.rar.smime.rar").string();
    const std::string encrypted = (out / "my docs.rar").string();
    const auto sorted = [](std::vector<Arguments> runs) {
        std::sort(runs.begin(), runs.end());
        return runs;
    };
    // Both go at once, so their order is open but for the tests.
    EXPECT_EQ(sorted(rar.recordedArguments()), sorted({{"t", "-idq", threeD},
                                                       {"t", "-idq", smime},
                                                       {"e", "-o+", "-idq", threeD, out.string()},
                                                       {"e", "-o+", "-idq", smime, out.string()},
                                                       {"x", "-o+", "-idq", encrypted, out.string()},
                                                       {"x", "-o+", "-idq", encrypted, out.string()}}));
    EXPECT_EQ(sorted(openssl.recordedArguments()),
              sorted({{"des-ede3-cbc", "-d", "-a", "-salt", "-in", encrypted + ".3d", "-out", encrypted,
                       "-pass", "pass:correct horse"},
                      {"smime", "-aes256", "-decrypt", "-binary", "-in", encrypted + ".smime", "-out",
                       encrypted, "-inkey", delegate.pkFile01.text().toStdString(),
                       delegate.certFile01.text().toStdString()}}));
}

TEST_F(ExtractRun, NeverHasMoreWorkersThanProcessors)
{
    const qsizetype processors = sysconf(_SC_NPROCESSORS_CONF);
    QStringList folders;
    for (int i = 0; i < 2 * processors + 1; ++i) {
        writeFile(program.folder() / ("folder" + std::to_string(i)) / "file", "x");
        folders.append(program.path("folder" + std::to_string(i)));
    }
    backUp(folders);
    delegate.addArchives({program.path("archives")});
    qsizetype most = 0;
    delegate.buttonLaunch02b();
    ASSERT_TRUE(TestProgram::waitUntil([&] {
        most = std::max(most, delegate.threadsRunning().size());
        return !delegate.isRunActive();
    }));
    EXPECT_EQ(delegate.foldersDone(), folders.size());
    EXPECT_EQ(delegate.sizeDone(), delegate.sizeToDo());
    EXPECT_LE(most, processors);
    EXPECT_GT(most, 0);
}
