#include "EntryName.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Makes `TEMPORARY/source` and `TEMPORARY/tree.rar` with it.
class RoundTrip : public testing::Test {
protected:
    void SetUp() override
    {
        makeSampleTree(source);
        const CommandResult added = addTree(archive, source);
        ASSERT_EQ(added.errors, "");
        ASSERT_EQ(added.status, 0);
    }

    /// Where an extraction to `folder` puts the source.
    fs::path extracted(const std::string &folder) const
    {
        return temporary / folder / source.relative_path();
    }

    /// What other readers make of the source: names that are not UTF-8 stay as the archive has them.
    TreeSnapshot withStoredNames() const
    {
        TreeSnapshot stored;
        for (auto [path, entry] : snapshotTree(source)) {
            entry.target = archiver::encodeName(entry.target);
            stored[archiver::encodeName(path)] = entry;
        }
        return stored;
    }

    TemporaryFolder temporary;
    fs::path source = temporary / "source";
    fs::path archive = temporary / "tree.rar";
};

} // namespace

TEST_F(RoundTrip, everythingComesBack)
{
    for (const std::string folder : {"out", "with slash/", "new/and/deep"}) {
        const CommandResult result = rar({"x", "-o+", "-idq", archive, temporary / folder});
        EXPECT_EQ(result.errors + result.output, "");
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(treeDifference(source, extracted(folder)), "");
    }
}

TEST_F(RoundTrip, overAnOlderStateAllIsReplaced)
{
    ASSERT_EQ(rar({"x", "-o+", "-idq", archive, temporary / "out"}).status, 0);
    const fs::path old = extracted("out");
    fs::permissions(old / "read only folder", fs::perms::owner_all);
    fs::remove(old / "one byte");
    fs::create_symlink("empty.bin", old / "one byte"); // must be replaced, not written through
    writeFile(old / "empty.bin", "no longer empty");
    fs::remove(old / "absolute link");
    writeFile(old / "absolute link", "a file now");
    const CommandResult result = rar({"x", "-o+", "-idq", archive, temporary / "out"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(treeDifference(source, old), "");
}

TEST_F(RoundTrip, anotherArchiverReadsIt)
{
    fs::create_directory(temporary / "out");
    const CommandResult result = runCommand({"bsdtar", "-xpf", archive, "-C", temporary / "out"});
    EXPECT_EQ(result.errors, "");
    TreeComparison comparison;
    comparison.nanoseconds = false; // its reader drops them
    EXPECT_EQ(treeDifference(withStoredNames(), snapshotTree(extracted("out")), comparison), "");
}

TEST_F(RoundTrip, aThirdArchiverReadsIt)
{
    // It takes a backslash for a separator and a name that starts with U+FFFE for UTF-16, and sets no modes.
    for (const std::string name : {"back\\slash", "\xFF\xFEraw", "\xEF\xBF\xBE marker"})
        fs::remove(source / "names" / name);
    ASSERT_EQ(addTree(archive, source).errors, "");
    const CommandResult result = runCommand({"unar", "-q", "-D", "-o", temporary / "out", archive});
    EXPECT_EQ(result.status, 0) << result.errors << result.output;
    TreeComparison comparison;
    comparison.nanoseconds = false;
    comparison.linkTimes = false;
    comparison.modes = false;
    EXPECT_EQ(treeDifference(withStoredNames(), snapshotTree(extracted("out")), comparison), "");
}

TEST_F(RoundTrip, aFourthArchiverTestsIt)
{
    const CommandResult result = runCommand({"7z", "t", archive});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_NE(result.output.find("Everything is Ok"), std::string::npos) << result.output;
}

TEST_F(RoundTrip, theArchiveIsPrivateAndAlone)
{
    struct stat status {};
    ASSERT_EQ(stat(archive.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777u, 0600u);
    std::size_t entries = 0;
    for ([[maybe_unused]] const auto &entry : fs::directory_iterator(temporary.path()))
        ++entries;
    EXPECT_EQ(entries, 2u);
}

TEST_F(RoundTrip, theArchiveItselfIsLeftOut)
{
    const fs::path inside = source / "inside.rar";
    ASSERT_EQ(addTree(inside, source).errors, "");
    const auto size = fs::file_size(inside);
    ASSERT_EQ(addTree(inside, source).errors, "");
    EXPECT_EQ(fs::file_size(inside), size);
    ASSERT_EQ(rar({"x", "-idq", inside, temporary / "out"}).errors, "");
    fs::remove(inside);
    TreeComparison comparison;
    comparison.root = false; // its time has changed
    EXPECT_EQ(treeDifference(source, extracted("out"), comparison), "");
}

TEST(Tree, singleSourcesOfEachKind)
{
    TemporaryFolder temporary;
    writeFile(temporary / "file", "content");
    writeFile(temporary / "*", "literal");
    fs::create_symlink("file", temporary / "link");
    fs::create_directory(temporary / "folder");
    for (const std::string name : {"file", "*", "link", "folder"}) {
        ASSERT_EQ(addTree(temporary / (name + ".rar"), temporary / name).errors, "") << name;
        ASSERT_EQ(rar({"x", "-idq", temporary / (name + ".rar"), temporary / "out"}).errors, "") << name;
    }
    const TreeSnapshot out = snapshotTree((temporary / "out") / temporary.path().relative_path());
    ASSERT_EQ(out.size(), 5u);
    EXPECT_EQ(out.at("link").target, "file");
    EXPECT_EQ(out.at("*").size, 7u);
    EXPECT_EQ(out.at("folder").type, 'd');
}

TEST(Tree, pipesAndSocketsArePassedOver)
{
    TemporaryFolder temporary;
    writeFile(temporary / "source/file", "content");
    ASSERT_EQ(mkfifo((temporary / "source/pipe").c_str(), 0600), 0);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = temporary / "source/socket";
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(listener);
    EXPECT_EQ(addTree(temporary / "a.rar", temporary / "source").errors, "");
    ASSERT_EQ(rar({"x", "-idq", temporary / "a.rar", temporary / "out"}).errors, "");
    const fs::path out = temporary / "out" / (temporary / "source").relative_path();
    EXPECT_EQ(snapshotTree(out).size(), 2u);
}

TEST(Tree, timesBeyond32BitsComeBack)
{
    TemporaryFolder temporary;
    for (const std::int64_t seconds :
         {-300'000'000ll, -1ll, 0ll, 4'294'967'295ll, 4'294'967'296ll, 7'000'000'000ll}) {
        const fs::path file = temporary / "source" / std::to_string(seconds);
        writeFile(file, "dated");
        const timespec times[2] = {{seconds, 123'456'700}, {seconds, 123'456'700}};
        ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    }
    ASSERT_EQ(addTree(temporary / "a.rar", temporary / "source").errors, "");
    ASSERT_EQ(rar({"x", "-idq", temporary / "a.rar", temporary / "out"}).errors, "");
    EXPECT_EQ(
        treeDifference(temporary / "source", temporary / "out" / (temporary / "source").relative_path()), "");
}
