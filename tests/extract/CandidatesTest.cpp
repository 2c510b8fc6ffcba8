#include "app/extraction/ExtractDecisions.h"

#include "TestProgram.h"
#include "extract/ArchiveName.h"

#include <gtest/gtest.h>

namespace {

class Candidates : public testing::Test {
protected:
    Candidates() { program.start(); }

    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();
};

} // namespace

TEST(ArchiveName, TellsWhereWhatGoes)
{
    for (const auto &[archive, whole, encrypted, inner] :
         {std::tuple{u"/x/Docs.rar.aes.rar"_qs, u"Docs.rar.aes.rar"_qs, u"Docs.rar.aes"_qs, u"Docs.rar"_qs},
          {u"/x/Docs.rar.3d.part07.rar"_qs, u"Docs.rar.3d.rar"_qs, u"Docs.rar.3d"_qs, u"Docs.rar"_qs},
          {u"/x/.h.rar.bf.part0001.rar"_qs, u".h.rar.bf.rar"_qs, u".h.rar.bf"_qs, u".h.rar"_qs},
          {u"/x/a.part1.b.rar.aes.rar"_qs, u"a.part1.b.rar.aes.rar"_qs, u"a.part1.b.rar.aes"_qs,
           u"a.part1.b.rar"_qs},
          {u"/x/holiday.part2.rar"_qs, u"holiday.rar"_qs, u"holiday"_qs, u"holiday.rar"_qs}}) {
        SCOPED_TRACE(archive.toStdString());
        EXPECT_EQ(withoutVolumePart(archive), u"/x/"_qs + whole);
        EXPECT_EQ(volumeName(archive).has_value(), !archive.endsWith(whole));
        const ExtractPaths paths = extractPaths(archive, u"/to"_qs, u".aes"_qs);
        EXPECT_EQ(paths.encrypted, u"/to/"_qs + encrypted);
        EXPECT_EQ(paths.inner, u"/to/"_qs + inner);
        EXPECT_EQ(paths.leftover, paths.encrypted + u".aes"_qs);
    }
    EXPECT_EQ(withoutVolumePart(u"/x.part1.rar/Docs.part1.rar.txt"_qs), u"/x.part1.rar/Docs.part1.rar.txt");
}

TEST_F(Candidates, LeaveOutLaterVolumes)
{
    for (const char16_t *path : {u"/x/a.part1.rar", u"/x/a.part001.rar", u"/x/a.Part2.rar", u"/x/a2.rar",
                                 u"/Apartment/x.rar", u"/x/report.part1.final.rar.aes.rar"})
        EXPECT_EQ(delegate.filterForExtraction({QString::fromUtf16(path)}).size(), 1)
            << qPrintable(QString::fromUtf16(path));
    for (const char16_t *path : {u"/x/a.part2.rar", u"/x/a.part10.rar", u"/x/a.part11.rar",
                                 u"/x/a.part120.rar", u"/Departments/report2.rar"})
        EXPECT_TRUE(delegate.filterForExtraction({QString::fromUtf16(path)}).isEmpty())
            << qPrintable(QString::fromUtf16(path));
}

TEST_F(Candidates, ComeAndGo)
{
    const auto shown = [&] { return delegate.extractFullList.strings(); };
    const auto taken = [&] { return delegate.extractList.strings(); };
    const QStringList volumes{u"/x/a.part1.rar"_qs, u"/x/a.part2.rar"_qs, u"/x/a.part10.rar"_qs,
                              u"/x/b.rar"_qs};
    delegate.openPanel = [&](const outlets::OpenPanel &panel) {
        EXPECT_TRUE(panel.canChooseFiles && panel.allowsMultipleSelection);
        EXPECT_FALSE(panel.canChooseDirectories);
        EXPECT_EQ(panel.allowedFileTypes, QStringList{u"rar"_qs});
        return std::optional(volumes);
    };
    delegate.extractButton01Action();
    delegate.extractButton01Action();
    EXPECT_EQ(shown(), volumes + volumes);
    EXPECT_EQ(taken(), (QStringList{volumes[0], volumes[3], volumes[0], volumes[3]}));
    const auto *table = dynamic_cast<extractTable *>(delegate.extractTableView.dataSource());
    EXPECT_EQ(table->objectValue(u"c10"_qs, 1), volumes[1]);
    EXPECT_TRUE(table->isExtracted(0) && !table->isExtracted(1));

    delegate.extractTableView.setSelectedRows({1, 3});
    delegate.extractButton02Action();
    EXPECT_EQ(shown(), (QStringList{volumes[0], volumes[2], volumes[0], volumes[2]}));
    EXPECT_EQ(taken(), (QStringList{volumes[0], volumes[0]}));
    delegate.extractButton03Action();
    EXPECT_EQ(table->numberOfRows(), 0);
    EXPECT_TRUE(taken().isEmpty());
}

TEST_F(Candidates, AFolderStandsForItsArchivesAndWhatIsLeftOutIsTold)
{
    for (const char *name : {"a.part9.rar", "a.part10.rar", "a.part1.rar", "notes.txt", "below/b.rar"})
        writeFile(program.folder() / "drop" / name, "x");
    delegate.addArchives({program.path("drop")});
    EXPECT_EQ(delegate.extractFullList.strings(),
              (QStringList{program.path("drop/a.part1.rar"), program.path("drop/a.part9.rar"),
                           program.path("drop/a.part10.rar")}));
    EXPECT_EQ(delegate.outputText02.text(), QString());
    for (const auto &[path, said] : {std::pair{program.path("drop/notes.txt"), u"no archive"_qs},
                                     {u"/x/b.part2.rar"_qs, u"first volume is missing"_qs},
                                     {u"/x/b.part1.rar"_qs, QString()},
                                     {u"/Departments/report2.rar"_qs, u"Move or rename"_qs}}) {
        delegate.addArchives({path});
        EXPECT_TRUE(delegate.outputText02.text().contains(said)) << qPrintable(said);
        EXPECT_EQ(delegate.outputText02.text().isEmpty(), said.isEmpty());
    }
}

TEST_F(Candidates, AreDecryptedByChoiceOrByName)
{
    using quillorentLibrary::decideDecryption;
    const QString archive = u"/x/a.rar.bf.part01.rar"_qs;
    const std::optional<QString> expected[] = {u"aes-256-cbc"_qs, u"bf-cbc"_qs, u"des-ede3-cbc"_qs,
                                               u"smime"_qs,       u"bf-cbc"_qs, u"aes-256-cbc"_qs};
    for (int choice = 0; choice < 6; ++choice) {
        delegate.decryptionCombo01.selectIndex(choice);
        EXPECT_EQ(decideDecryption(archive), expected[choice]) << choice;
    }
    delegate.decryptionCombo01.selectIndex(-1);
    EXPECT_EQ(decideDecryption(archive), u"aes-256-cbc"_qs);
    delegate.decryptionCombo01.selectIndex(ExtractTab::automaticDecryption);
    EXPECT_EQ(decideDecryption(u"/x/holiday.rar"_qs), std::nullopt);
}
