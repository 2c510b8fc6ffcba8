#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// Archives that want to write outside of the folder they are extracted to.
class Hostile : public testing::Test {
protected:
    void SetUp() override
    {
        fs::create_directories(temporary / "outside");
        writeFile(temporary / "outside/file", "untouched");
        fs::create_directories(temporary / "out");
    }

    std::string extract(const std::vector<HandmadeEntry> &entries, const std::string &command = "x")
    {
        writeFile(temporary / "a.rar", handmadeArchive(entries));
        const TreeSnapshot before = snapshotTree(temporary / "outside");
        const CommandResult result = rar({command, "-o+", "-idq", temporary / "a.rar", temporary / "out"});
        EXPECT_EQ(treeDifference(before, snapshotTree(temporary / "outside")), "");
        EXPECT_EQ(result.errors.empty(), result.status == 0);
        return result.errors;
    }

    TemporaryFolder temporary;
};

} // namespace

TEST_F(Hostile, namesThatLeadOut)
{
    const std::string outside = temporary / "outside/new";
    for (const std::string name : {"../outside/new", "a/../../outside/new", "..", "", "/", "a/..", "."}) {
        EXPECT_NE(extract({storedFile(name, "bad")}).find("leads out of the destination"), std::string::npos)
            << name;
        EXPECT_TRUE(fs::is_empty(temporary / "out")) << name;
    }
    EXPECT_NE(extract({storedFile(std::string("zero\0byte", 9), "bad")}), "");
    EXPECT_NE(extract({folderEntry("../outside/folder")}), "");
    EXPECT_NE(extract({symbolicLink("../outside/link", "x")}), "");
}

TEST_F(Hostile, absoluteNamesStayBelow)
{
    const fs::path name = temporary / "outside/file";
    EXPECT_EQ(extract({storedFile(name, "inside")}), "");
    EXPECT_EQ(readFile(temporary / "out" / name.relative_path()), "inside");
    EXPECT_EQ(extract({storedFile("a\\..\\b", "a plain name")}), "");
    EXPECT_EQ(readFile(temporary / "out/a\\..\\b"), "a plain name");
}

TEST_F(Hostile, linksAreNotFollowed)
{
    const std::string outside = temporary / "outside";
    for (const std::string &target : {outside, std::string("../outside")}) {
        EXPECT_NE(extract({symbolicLink("door", target), storedFile("door/new", "bad")}), "");
        EXPECT_NE(extract({symbolicLink("door", target), storedFile("door/file", "bad")}), "");
        EXPECT_NE(extract({symbolicLink("door", target), folderEntry("door/folder")}), "");
        EXPECT_NE(extract({symbolicLink("door", target), folderEntry("door", 0700)}), "");
        EXPECT_NE(extract({symbolicLink("door", target), symbolicLink("door/link", "x")}), "");
    }
    // A link where the file itself goes is replaced.
    EXPECT_EQ(extract({symbolicLink("file", outside + "/file"), storedFile("file", "inside")}), "");
    EXPECT_EQ(readFile(temporary / "out/file"), "inside");
}

TEST_F(Hostile, copiesTakeNothingFromOutside)
{
    const auto copyOf = [](const std::string &target, archiver::LinkTarget::Kind kind) {
        HandmadeEntry entry = storedFile("copy", "");
        entry.header.link = archiver::LinkTarget{kind, false, target};
        return entry;
    };
    for (const auto kind : {archiver::LinkTarget::Kind::Hard, archiver::LinkTarget::Kind::Copy}) {
        EXPECT_NE(extract({copyOf("../outside/file", kind)}), "");
        EXPECT_NE(extract({symbolicLink("door", temporary / "outside/file"), copyOf("door", kind)}), "");
        EXPECT_NE(extract({copyOf("missing", kind)}), "");
        EXPECT_FALSE(fs::exists(temporary / "out/copy"));
        EXPECT_EQ(extract({storedFile("original", "same"), copyOf("original", kind)}), "");
        EXPECT_EQ(readFile(temporary / "out/copy"), "same");
        fs::remove(temporary / "out/copy");
    }
}

TEST_F(Hostile, foldersAreNotReplacedByFiles)
{
    writeFile(temporary / "out/folder/kept", "kept");
    EXPECT_NE(extract({storedFile("folder", "bad")}), "");
    EXPECT_NE(extract({symbolicLink("folder", "x")}), "");
    EXPECT_EQ(readFile(temporary / "out/folder/kept"), "kept");
    EXPECT_NE(extract({storedFile("folder/kept/below", "bad")}), "");
    EXPECT_EQ(snapshotTree(temporary / "out").size(), 3u); // nothing unfinished is left
}

TEST_F(Hostile, withoutPathsAllGoesIntoTheFolder)
{
    EXPECT_EQ(extract({storedFile("/a/b/c", "1"), folderEntry("a/b"), storedFile("d", "2")}, "e"), "");
    EXPECT_EQ(readFile(temporary / "out/c"), "1");
    EXPECT_EQ(readFile(temporary / "out/d"), "2");
    EXPECT_EQ(snapshotTree(temporary / "out").size(), 3u);
}

TEST(Attributes, foldersAreClosedOnlyWhenAllIsInThem)
{
    TemporaryFolder temporary;
    HandmadeEntry folder = folderEntry("closed", 0555);
    folder.header.modified = archiver::Timestamp{1'000'000'000, 5};
    // This order is not ours; other archivers have it.
    writeFile(temporary / "a.rar", handmadeArchive({folder, storedFile("closed/implied/file", "in")}));
    EXPECT_EQ(rar({"x", "-idq", temporary / "a.rar", temporary / "out"}).errors, "");
    const TreeSnapshot out = snapshotTree(temporary / "out");
    EXPECT_EQ(out.at("closed").mode, 0555u);
    EXPECT_EQ(out.at("closed").seconds, 1'000'000'000);
    EXPECT_EQ(out.at("closed").nanoseconds, 5);
    EXPECT_EQ(out.at("closed/implied/file").size, 2u);
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(out.at("closed/implied").mode, 0777u & ~mask); // no entry of its own
}
