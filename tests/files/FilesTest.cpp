#include "files/Paths.h"

#include "Command.h"
#include "ProgramTest.h"
#include "Tree.h"
#include "app/folders/Decisions.h"
#include "files/Names.h"
#include "files/Sizes.h"

namespace fs = std::filesystem;
using namespace quillorentLibrary;

class Files : public ProgramTest {};

TEST_F(Files, NamesakesAreToldApart)
{
    for (const auto &[path, paths, name] : std::vector<std::tuple<QString, QStringList, QString>>{
             {u"/a/docs"_s, {u"/a/docs"_s}, u"docs"_s},
             {u"/a/docs"_s, {u"/a/docs"_s, u"/b/docs"_s}, u"docs-0"_s},
             {u"/b/docs/"_s, {u"/a/docs"_s, u"/b/docs/"_s}, u"docs-1"_s},
             {u"/a/docs"_s, {u"/x"_s, u"/a/docs"_s, u"/a/docs"_s}, u"docs-1"_s},
             {u"/c/docs"_s, {u"/a/docs"_s, u"/b/docs"_s}, u"docs--1"_s},
             {u"/c/docs"_s, {u"/a/docs"_s}, u"docs"_s},
             {u"/a/Docs"_s, {u"/a/Docs"_s, u"/b/docs"_s}, u"Docs"_s},
         })
        EXPECT_EQ(nameRepeated(path, paths), name) << qPrintable(path + paths.join(u' '));
    for (const auto &[path, name] : {std::pair{u"/a/b.c"_s, u"b.c"_s},
                                     {u"/a/b//"_s, u"b"_s},
                                     {u"b"_s, u"b"_s},
                                     {u"/"_s, u"/"_s},
                                     {QString(), QString()}})
        EXPECT_EQ(lastPathComponent(path), name);
}

TEST_F(Files, AFolderIsEmptyWhereNothingButHiddenFilesAreInIt)
{
    delegate.prefCheck02.setOn(false);
    for (const char *name : {"hidden/.trash/file", "filled/file", "with space/file", "percent%41/file"})
        writeFile(program.folder() / name, "x");
    for (const char *name : {"empty", "nested/folder", "dangling"})
        fs::create_directories(program.folder() / name);
    fs::create_symlink("nowhere", program.folder() / "dangling/link");
    for (const char *empty : {"empty", "hidden", "missing"})
        EXPECT_TRUE(folderIsEmpty(program.path(empty))) << empty;
    for (const char *filled : {"filled", "nested", "dangling", "with space", "percent%41"})
        EXPECT_FALSE(folderIsEmpty(program.path(filled))) << filled;
    delegate.prefCheck02.setOn(true);
    EXPECT_TRUE(folderIsEmpty(program.path("filled")));
}

TEST_F(Files, PathsAndLinksAreFollowedAsFarAsTheyMay)
{
    writeFile(program.folder() / "home/Documents/file", "x");
    fs::create_symlink("/usr/bin/env", program.folder() / "absolute");
    fs::create_directory_symlink("home", program.folder() / "relative");
    for (const auto &[path, exists] : {std::pair{program.path("home"), true},
                                       {program.path("relative"), true},
                                       {program.path("absolute"), false},
                                       {program.path("missing"), false},
                                       {QString(), false}})
        EXPECT_EQ(folderExists(path), exists) << qPrintable(path);

    EXPECT_EQ(translatePath({u"~/Documents"_s, program.path("home/../home//Documents/./file"),
                             program.path("missing"), u"~"_s}),
              (QStringList{program.path("home/Documents"), program.path("home/Documents/file"),
                           program.path("home")}));

    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("absolute")), u"/usr/bin/env"_s);
    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("relative")), std::nullopt);
    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("home")), program.path("home"));
    EXPECT_EQ(stringByConditionallyResolvingAlias(program.path("absolute")), std::nullopt);
}

TEST_F(Files, SizesAddUpEverythingBelowAndFollowNoLink)
{
    makeSampleTree(program.folder() / "tree");
    fs::create_directory_symlink(program.folder(), program.folder() / "tree/loop");
    // The same figure by another tool.
    const std::string folder = program.folder() / "tree";
    const quint64 expected = std::stoull(
        runCommand({"sh", "-c", "echo $((0$(find \"$0\" -mindepth 1 -printf +%s)))", folder}).output);
    ASSERT_GT(expected, 1'500'000U);
    for (const auto &[name, size] : {std::pair{"tree", expected},
                                     {"tree/", expected},
                                     {"tree/one byte", 1U},
                                     {"tree/dangling link", 14U},
                                     {"missing", 0U}})
        EXPECT_EQ(calculateSize(program.path(name)), size) << name;
}
