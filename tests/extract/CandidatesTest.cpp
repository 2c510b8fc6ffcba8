#include "app/extraction/ExtractDecisions.h"

#include "ProgramTest.h"

class Candidates : public ProgramTest {};

TEST_F(Candidates, ComeAndGo)
{
    const auto shown = [&] { return delegate.extractFullList.strings(); };
    const auto taken = [&] { return delegate.extractList.strings(); };
    const QStringList volumes{u"/x/a.part1.rar"_s, u"/x/a.part2.rar"_s, u"/x/a.part10.rar"_s, u"/x/b.rar"_s};
    delegate.openPanel = [&](const outlets::OpenPanel &panel) {
        EXPECT_TRUE(panel.canChooseFiles && panel.allowsMultipleSelection && !panel.canChooseDirectories);
        EXPECT_EQ(panel.allowedFileTypes, QStringList{u"rar"_s});
        return std::optional(volumes);
    };
    delegate.extractButton01Action();
    delegate.extractButton01Action();
    EXPECT_EQ(shown(), volumes + volumes);
    EXPECT_EQ(taken(), (QStringList{volumes[0], volumes[3], volumes[0], volumes[3]}));
    const auto *table = dynamic_cast<extractTable *>(delegate.extractTableView.dataSource());
    EXPECT_EQ(table->objectValue(u"c10"_s, 1), volumes[1]);
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
    for (const auto &[path, said] :
         {std::pair{program.path("drop/notes.txt"), u"no archive"_s},
          {u"/x/b.part2.rar"_s, u"first volume is missing"_s},
          {u"/x/b%2%1.part7.rar"_s, u"\"b%2%1.part7.rar\" is volume 7 of its set"_s},
          {u"/x/b.part1.rar"_s, QString()},
          {u"/Apartment/a.rar"_s, QString()},
          {u"/Departments/report2.rar"_s, u"Move or rename"_s}}) {
        delegate.addArchives({path});
        EXPECT_TRUE(delegate.outputText02.text().contains(said)) << qPrintable(said);
        EXPECT_EQ(delegate.outputText02.text().isEmpty(), said.isEmpty());
    }
}

TEST_F(Candidates, AreDecryptedByChoiceOrByName)
{
    using quillorentLibrary::decideDecryption;
    const QString archive = u"/x/a.rar.bf.part01.rar"_s;
    const QStringList choices{u"aes-256-cbc"_s, u"bf-cbc"_s, u"des-ede3-cbc"_s, u"smime"_s};
    for (const int choice : {-1, 0, 1, 2, 3, 5}) {
        delegate.decryptionCombo01.selectIndex(choice);
        EXPECT_EQ(decideDecryption(archive), choices.value(choice, choices.first())) << choice;
    }
    delegate.decryptionCombo01.selectIndex(ExtractTab::automaticDecryption);
    EXPECT_EQ(decideDecryption(archive), u"bf-cbc"_s);
    EXPECT_EQ(decideDecryption(u"/x/holiday.rar"_s), std::nullopt);
}
