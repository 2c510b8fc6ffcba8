#include "TestProgram.h"

#include <gtest/gtest.h>

TEST(FolderList, AddsAndRemoves)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    const auto rows = [&] { return delegate.currentRecord().array(u"folders"_qs).strings(); };

    delegate.openPanel = [](const outlets::OpenPanel &panel) {
        EXPECT_TRUE(panel.canChooseFiles && panel.canChooseDirectories && panel.allowsMultipleSelection);
        EXPECT_FALSE(panel.canCreateDirectories);
        return QStringList{u"/a"_qs, u"/b"_qs, u"/a"_qs, u"/c"_qs};
    };
    delegate.folderButton01Action();
    EXPECT_EQ(rows(), (QStringList{u"/a"_qs, u"/b"_qs, u"/a"_qs, u"/c"_qs}));
    EXPECT_EQ(delegate.listTableView.dataSource()->numberOfRows(), 4);
    EXPECT_EQ(delegate.listTableView.dataSource()->objectValue(u"c10"_qs, 1), u"/b"_qs);
    EXPECT_EQ(delegate.listTableView.dataSource()->objectValue(u"c20"_qs, 1), QString());

    delegate.folderButton02Action();
    EXPECT_EQ(rows().size(), 4) << "nothing is selected";
    delegate.listTableView.setSelectedRows({0, 3});
    delegate.folderButton02Action();
    EXPECT_EQ(rows(), (QStringList{u"/b"_qs, u"/a"_qs}));

    delegate.openPanel = [](const outlets::OpenPanel &) { return std::nullopt; };
    delegate.folderButton01Action();
    delegate.fileButton01Action();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(delegate.fileText01.text(), QString());
}

TEST(FolderList, ChoosesTheDestination)
{
    TestProgram program;
    program.start();
    program.delegate().openPanel = [](const outlets::OpenPanel &panel) {
        EXPECT_TRUE(panel.canChooseDirectories && panel.canCreateDirectories);
        EXPECT_FALSE(panel.canChooseFiles || panel.allowsMultipleSelection);
        return QStringList{u"/archives"_qs};
    };
    program.delegate().fileButton01Action();
    EXPECT_EQ(program.delegate().fileText01.text(), u"/archives"_qs);
    EXPECT_EQ(program.delegate().currentRecord().string(u"path"_qs), u"/archives"_qs);
}
