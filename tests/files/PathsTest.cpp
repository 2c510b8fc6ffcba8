#include "files/Paths.h"

#include "TestProgram.h"
#include "app/folders/Decisions.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace quillorentLibrary;

TEST(FolderIsEmpty, LooksForWhatIsNotHidden)
{
    TestProgram program;
    program.delegate().prefCheck02.setOn(false);
    writeFile(program.folder() / "hidden/.trash/file", "x");
    writeFile(program.folder() / "filled/file", "x");
    writeFile(program.folder() / "with space/file", "x");
    writeFile(program.folder() / "percent%41/file", "x");
    fs::create_directories(program.folder() / "empty");
    fs::create_directories(program.folder() / "nested/folder");
    fs::create_directories(program.folder() / "dangling");
    fs::create_symlink("nowhere", program.folder() / "dangling/link");

    EXPECT_TRUE(folderIsEmpty(program.path("empty")));
    EXPECT_TRUE(folderIsEmpty(program.path("hidden")));
    EXPECT_TRUE(folderIsEmpty(program.path("missing")));
    EXPECT_FALSE(folderIsEmpty(program.path("filled")));
    EXPECT_FALSE(folderIsEmpty(program.path("nested")));
    EXPECT_FALSE(folderIsEmpty(program.path("dangling")));

    // The path is read as a URL: what does not parse as one counts as empty, and escapes are decoded.
    EXPECT_FALSE(folderIsEmpty(program.path("with space")));
    EXPECT_FALSE(folderIsEmpty(program.path("percent%41")));

    program.delegate().prefCheck02.setOn(true);
    EXPECT_TRUE(folderIsEmpty(program.path("filled")));
}

TEST(FolderExists, FollowsLinks)
{
    TestProgram program;
    writeFile(program.folder() / "file", "x");
    fs::create_directory_symlink(program.folder() / "home", program.folder() / "link");
    EXPECT_TRUE(folderExists(program.path("home")));
    EXPECT_TRUE(folderExists(program.path("link")));
    EXPECT_FALSE(folderExists(program.path("file")));
    EXPECT_FALSE(folderExists(program.path("missing")));
    EXPECT_FALSE(folderExists({}));
}

TEST(TranslatePath, KeepsWhatExistsInStandardForm)
{
    TestProgram program;
    writeFile(program.folder() / "home/Documents/file", "x");
    const QStringList translated =
        translatePath({u"~/Documents"_qs, program.path("home/../home//Documents/./file"),
                       program.path("missing"), u"~"_qs});
    EXPECT_EQ(translated, (QStringList{program.path("home/Documents"), program.path("home/Documents/file"),
                                       program.path("home")}));
}

TEST(ResolvingSymlink, TakesAbsoluteTargetsOnly)
{
    TestProgram program;
    fs::create_symlink("/usr/bin/env", program.folder() / "absolute");
    fs::create_symlink("home", program.folder() / "relative");
    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("absolute")), u"/usr/bin/env"_qs);
    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("relative")), std::nullopt);
    EXPECT_EQ(stringByConditionallyResolvingSymlink(program.path("home")), program.path("home"));
    EXPECT_EQ(stringByConditionallyResolvingAlias(program.path("absolute")), std::nullopt);
}
