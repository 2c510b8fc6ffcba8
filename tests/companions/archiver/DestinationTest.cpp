#include "Rar.h"
#include "Tree.h"

#include <sys/stat.h>

namespace fs = std::filesystem;
using Kind = archiver::LinkTarget::Kind;

namespace {

/// Archives that want to write outside of the folder they are extracted to.
class Hostile : public ArchiverTest {
protected:
    void SetUp() override
    {
        writeFile(outside / "file", "untouched");
        fs::create_directories(out);
    }

    std::string extract(const std::vector<HandmadeEntry> &entries, const std::string &command = "x")
    {
        writeFile(archive, handmadeArchive(entries));
        const TreeSnapshot before = snapshotTree(outside);
        const CommandResult result = rar({command, "-o+", "-idq", archive, out});
        EXPECT_EQ(treeDifference(before, snapshotTree(outside)), "");
        EXPECT_EQ(result.errors.empty(), result.status == 0);
        return result.errors;
    }

    const fs::path outside = temporary / "outside";
};

} // namespace

TEST_F(Hostile, namesThatLeadOut)
{
    const auto refuses = [this](const HandmadeEntry &entry) {
        return extract({entry}).find("leads out of the destination") != std::string::npos &&
               fs::is_empty(out);
    };
    for (const std::string name : {"../outside/new", "a/../../outside/new", "..", "", "/", "a/..", "."})
        EXPECT_TRUE(refuses(storedFile(name, "bad"))) << name;
    EXPECT_TRUE(refuses(folderEntry("../outside/folder")));
    EXPECT_TRUE(refuses(symbolicLink("../outside/link", "x")));
    EXPECT_NE(extract({storedFile(std::string("zero\0byte", 9), "bad")}), "");
}

TEST_F(Hostile, absoluteNamesStayBelow)
{
    const fs::path name = outside / "file";
    EXPECT_EQ(extract({storedFile(name, "inside"), storedFile("a\\..\\b", "a plain name")}), "");
    EXPECT_EQ(readFile(out / name.relative_path()), "inside");
    EXPECT_EQ(readFile(out / "a\\..\\b"), "a plain name");
}

TEST_F(Hostile, linksAreNotFollowed)
{
    for (const std::string &target : {outside.string(), std::string("../outside")})
        for (const HandmadeEntry &entry :
             {storedFile("door/new", "bad"), storedFile("door/file", "bad"), folderEntry("door/folder"),
              folderEntry("door", 0700), symbolicLink("door/link", "x")})
            EXPECT_NE(extract({symbolicLink("door", target), entry}), "") << entry.header.name;
    // A link where the file itself goes is replaced.
    EXPECT_EQ(extract({symbolicLink("file", outside / "file"), storedFile("file", "inside")}), "");
    EXPECT_EQ(readFile(out / "file"), "inside");
}

TEST_F(Hostile, copiesTakeNothingFromOutside)
{
    for (const Kind kind : {Kind::Hard, Kind::Copy}) {
        const auto copyOf = [kind](const std::string &target) {
            HandmadeEntry entry = storedFile("copy", "");
            entry.header.link = archiver::LinkTarget{kind, false, target};
            return entry;
        };
        EXPECT_NE(extract({copyOf("../outside/file")}), "");
        EXPECT_NE(extract({symbolicLink("door", outside / "file"), copyOf("door")}), "");
        EXPECT_NE(extract({copyOf("missing")}), "");
        EXPECT_FALSE(fs::exists(out / "copy"));
        EXPECT_EQ(extract({storedFile("original", "same"), copyOf("original")}), "");
        EXPECT_EQ(readFile(out / "copy"), "same");
        fs::remove(out / "copy");
    }
}

TEST_F(Hostile, foldersAreNotReplacedByFiles)
{
    writeFile(out / "folder/kept", "kept");
    for (const HandmadeEntry &entry :
         {storedFile("folder", "bad"), symbolicLink("folder", "x"), storedFile("folder/kept/below", "bad")})
        EXPECT_NE(extract({entry}), "") << entry.header.name;
    EXPECT_EQ(readFile(out / "folder/kept"), "kept");
    EXPECT_EQ(snapshotTree(out).size(), 3u); // nothing unfinished is left
}

TEST_F(Hostile, foldersMayBeDeeperThanManyMayBeOpenOrFitOnTheStack)
{
    std::string deep = "top";
    for (unsigned depth = 0; depth < 2000; ++depth)
        deep += "/a";
    writeFile(archive, handmadeArchive({storedFile(deep + "/file", "x"), storedFile("top/next/file", "y")}));
    const std::string limits = "ulimit -n 150; ulimit -s 512; exec \"$@\"";
    const auto limited = [&](const std::vector<std::string> &arguments) {
        const std::vector<std::string> start = {"sh", "-c", limits, "sh", QUILLORENT_RAR};
        std::vector<std::string> command = start;
        command.insert(command.end(), arguments.begin(), arguments.end());
        return runCommand(command, {.folder = out}).errors;
    };
    EXPECT_EQ(limited({"x", archive}), "");
    EXPECT_EQ(limited({"a", "-t", "again.rar", "top"}), "");
    EXPECT_EQ(limited({"x", "again.rar", "second"}), "");
    const auto found = [&](const std::string &folder) {
        return runCommand({"find", ".", "-printf", "%d %f %m\n"}, {.folder = out / folder}).output;
    };
    EXPECT_NE(found("top").find("\n2001 file 644\n"), std::string::npos);
    EXPECT_EQ(found("top"), found("second/top"));
    EXPECT_EQ(runCommand({"rm", "-r", out}).status, 0); // too deep for anything that calls itself
}

TEST_F(Hostile, withoutPathsAllGoesIntoTheFolder)
{
    EXPECT_EQ(extract({storedFile("/a/b/c", "1"), folderEntry("a/b"), storedFile("d", "2")}, "e"), "");
    EXPECT_EQ(readFile(out / "c"), "1");
    EXPECT_EQ(readFile(out / "d"), "2");
    EXPECT_EQ(snapshotTree(out).size(), 3u);
}

using Attributes = ArchiverTest;

TEST_F(Attributes, foldersAreClosedOnlyWhenAllIsInThem)
{
    HandmadeEntry folder = folderEntry("closed", 0555);
    folder.header.modified = archiver::Timestamp{1'000'000'000, 5};
    // This order is not ours; other archivers have it.
    writeFile(archive, handmadeArchive({folder, storedFile("closed/implied/file", "in")}));
    EXPECT_EQ(rar({"x", "-idq", archive, out}).errors, "");
    const TreeSnapshot tree = snapshotTree(out);
    EXPECT_EQ(tree.at("closed").mode, 0555u);
    EXPECT_EQ(tree.at("closed").seconds, 1'000'000'000);
    EXPECT_EQ(tree.at("closed").nanoseconds, 5);
    EXPECT_EQ(tree.at("closed/implied/file").size, 2u);
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(tree.at("closed/implied").mode, 0777u & ~mask); // no entry of its own
}
