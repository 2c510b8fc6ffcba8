#include "Rar.h"

using Kind = archiver::LinkTarget::Kind;

/// Archives that want to write outside of the folder they are extracted to.
using Hostile = ArchiverTest;

TEST_F(Hostile, nothingLeavesTheFolder)
{
    const fs::path outside = temporary / "outside";
    const std::string file = outside / "file";
    writeFile(outside / "file", "untouched");
    struct Case {
        std::vector<HandmadeEntry> entries;
        std::string reason;    ///< in what is said; empty: it is extracted
        std::string made = {}; ///< a file that has the content "inside" then
    };
    const std::string leadsOut = "leads out of the destination";
    const std::string way = "is a link or a file in the destination";
    std::vector<Case> cases = {{{folderEntry("../outside/folder")}, leadsOut},
                               {{linkEntry("../outside/link", "x")}, leadsOut},
                               {{storedFile(std::string("zero\0byte", 9), "bad")}, "zero"},
                               {{storedFile(file, "inside")}, "", file.substr(1)},
                               {{storedFile("a\\..\\b", "inside")}, "", "a\\..\\b"},
                               {{linkEntry("file", file), storedFile("file", "inside")}, "", "file"},
                               {{storedFile("pipe", "inside")}, "", "pipe"},
                               {{storedFile("folder", "bad")}, "folder"},
                               {{linkEntry("folder", "x")}, "folder"},
                               {{storedFile("folder/kept/below", "bad")}, way}};
    for (const std::string name : {"../outside/new", "a/../../outside/new", "..", "", "/", "a/..", "."})
        cases.push_back({{storedFile(name, "bad")}, leadsOut});
    for (const std::string &target : {outside.string(), std::string("../outside")})
        for (const HandmadeEntry &entry :
             {storedFile("door/new", "bad"), storedFile("door/file", "bad"), folderEntry("door/folder"),
              folderEntry("door", 0700), linkEntry("door/link", "x")})
            cases.push_back({{linkEntry("door", target), entry}, way});
    for (const Kind kind : {Kind::Hard, Kind::Copy}) {
        cases.push_back({{linkEntry("copy", "../outside/file", kind)}, leadsOut});
        cases.push_back({{linkEntry("door", file), linkEntry("copy", "door", kind)}, "is missing"});
        cases.push_back({{linkEntry("copy", "missing", kind)}, "is missing"});
        cases.push_back(
            {{storedFile("original", "inside"), linkEntry("copy", "original", kind)}, "", "copy"});
    }
    // Large files are under way for a while; what would come into their way waits.
    const std::string large(3'000'000, 'x');
    cases.push_back({{storedFile("way", large), storedFile("way/below", "bad")}, way});
    cases.push_back({{storedFile("twice", large), storedFile("twice", "inside")}, "", "twice"});
    cases.push_back({{storedFile("x", large), linkEntry("x", "y"), storedFile("y", "inside")}, "", "x"});
    const TreeSnapshot before = snapshotTree(outside);
    for (const Case &each : cases)
        for (const Environment &environment : fileSystems) {
            SCOPED_TRACE(each.entries.back().header.name);
            fs::remove_all(out);
            writeFile(out / "folder/kept", "kept");
            ASSERT_EQ(mkfifo((out / "pipe").c_str(), 0600), 0); // would be waited for, if it were opened
            const std::size_t entries = snapshotTree(out).size() + each.entries.size();
            writeFile(archive, handmadeArchive(each.entries));
            const CommandResult result = rar({"x", "-o+", archive, out}, {.environment = environment});
            EXPECT_EQ(treeDifference(before, snapshotTree(outside)), "");
            EXPECT_EQ(result.errors.empty(), result.status == 0 && each.reason.empty()) << result.errors;
            EXPECT_NE(result.errors.find(each.reason), std::string::npos) << result.errors;
            EXPECT_TRUE(each.made.empty() || readFile(out / each.made) == "inside");
            EXPECT_EQ(readFile(out / "folder/kept"), "kept");
            EXPECT_TRUE(each.made == file.substr(1) || snapshotTree(out).size() <= entries) << "unfinished";
        }
}

TEST_F(Hostile, foldersMayBeDeeperThanManyMayBeOpenOrFitOnTheStack)
{
    std::string deep = "top";
    for (unsigned depth = 0; depth < 2000; ++depth)
        deep += "/a";
    writeFile(archive, handmadeArchive({storedFile(deep + "/file", "x"), storedFile("top/next/file", "y")}));
    fs::create_directory(out);
    const auto limited = [&](const Arguments &arguments) {
        const Arguments shell{"sh", "-c", "ulimit -n 150; ulimit -s 512; exec \"$0\" \"$@\"", QUILLORENT_RAR};
        return runCommand(shell + arguments, {.folder = out}).errors;
    };
    EXPECT_EQ(limited({"x", archive}), "");
    EXPECT_EQ(limited({"a", "-t", "-v20", "again.rar", "top"}), "");
    EXPECT_GT(volumesOf(out / "again.rar").size(), 150u);
    EXPECT_EQ(limited({"x", volumesOf(out / "again.rar").front(), "second"}), "");
    const auto found = [&](const std::string &folder) {
        return runCommand({"find", ".", "-printf", "%d %f %m\n"}, {.folder = out / folder}).output;
    };
    EXPECT_NE(found("top").find("\n2001 file 644\n"), std::string::npos);
    EXPECT_EQ(found("top"), found("second/top"));
    EXPECT_EQ(runCommand({"rm", "-r", out}).status, 0); // too deep for anything that calls itself
}

using Attributes = ArchiverTest;

TEST_F(Attributes, comeLastAndMakeNobodyAnother)
{
    HandmadeEntry folder = folderEntry("closed", 0555);
    folder.header.modified = archiver::Timestamp{1'000'000'000, 5};
    HandmadeEntry program = storedFile("program", "in");
    program.header.mode = 0107755;
    // This order is not ours; other archivers have it.
    writeFile(archive, handmadeArchive({folder, storedFile("closed/implied/file", "in"), program,
                                        folderEntry("shared", 07777)}));
    EXPECT_EQ(rar({"x", "-idq", archive, out}).errors, "");
    const TreeSnapshot tree = snapshotTree(out);
    EXPECT_EQ(tree.at("closed").mode, 0555u);
    EXPECT_EQ(tree.at("closed").seconds, 1'000'000'000);
    EXPECT_EQ(tree.at("closed").nanoseconds, 5);
    EXPECT_EQ(tree.at("closed/implied/file").size, 2u);
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(tree.at("closed/implied").mode, 0777u & ~mask); // no entry of its own
    EXPECT_EQ(tree.at("program").mode, 01755u);
    EXPECT_EQ(tree.at("shared").mode, 01777u);

    EXPECT_EQ(rar({"e", archive, temporary / "flat"}).errors, "");
    EXPECT_EQ(snapshotTree(temporary / "flat").size(), 3u); // the files alone, and the folder itself
}
