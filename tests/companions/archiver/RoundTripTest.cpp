#include "EntryName.h"
#include "Rar.h"

namespace {

/// Makes the source and an archive of it.
class RoundTrip : public ArchiverTest {
protected:
    void SetUp() override
    {
        makeSampleTree(source);
        ASSERT_EQ(packInto(archive), "");
    }
    /// As the first pass does. What is said.
    std::string packInto(const fs::path &made) const
    {
        return rar({"a", "-r", "-ol", "-o+", "-m0", "", "-t", "-idq", made, source}).errors;
    }
};

using Tree = ArchiverTest;

} // namespace

TEST_F(RoundTrip, everythingComesBackAlsoOverAnOlderState)
{
    EXPECT_EQ(snapshotTree(temporary.path()).at("a.rar").mode, 0600u);
    ASSERT_EQ(rar({"a", "-r", "-ol", "-m0", "-v50", "-t", temporary / "set.rar", source}).errors, "");
    for (const fs::path &first : {archive, volumesOf(temporary / "set.rar").front()})
        for (const std::string folder : {"out", "with slash/", "new/and/deep"}) {
            EXPECT_EQ(failure(rar({"x", "-o+", "-idq", first, temporary / folder})), "success");
            EXPECT_EQ(treeDifference(source, temporary / folder / source.relative_path()), "");
            fs::permissions(extracted / "read only folder", fs::perms::owner_all);
            fs::remove(extracted / "one byte");
            fs::create_symlink("empty.bin", extracted / "one byte"); // must be replaced, not written through
            writeFile(extracted / "empty.bin", "no longer empty");
            fs::remove(extracted / "absolute link");
            writeFile(extracted / "absolute link", "a file now");
        }
}

TEST_F(RoundTrip, otherArchiversReadIt)
{
    fs::create_directory(out);
    EXPECT_EQ(runCommand({"bsdtar", "-xpf", archive, "-C", out}).errors, "");
    TreeSnapshot stored; // names that are not UTF-8 stay as the archive has them
    for (auto [path, entry] : snapshotTree(source)) {
        entry.target = archiver::encodeName(entry.target);
        stored[archiver::encodeName(path)] = entry;
    }
    EXPECT_EQ(treeDifference(stored, snapshotTree(extracted), {.nanoseconds = false}), "");
    const CommandResult tested = runCommand({"7z", "t", archive});
    EXPECT_NE(tested.output.find("Everything is Ok"), std::string::npos) << tested.output;
}

TEST_F(RoundTrip, theArchiveItselfIsLeftOut)
{
    const fs::path inside = source / "inside.rar";
    ASSERT_EQ(packInto(inside), "");
    const auto size = fs::file_size(inside);
    ASSERT_EQ(packInto(inside), "");
    EXPECT_EQ(fs::file_size(inside), size);
    EXPECT_EQ(rar({"lb", inside}).output.find("inside.rar"), std::string::npos);
}

TEST_F(Tree, sourcesOfEachKindAndTimesBeyond32BitsComeBack)
{
    for (const std::int64_t seconds :
         {-300'000'000ll, -1ll, 0ll, 4'294'967'295ll, 4'294'967'296ll, 7'000'000'000ll})
        writeDated(source / std::to_string(seconds), seconds, 123'456'700);
    fs::create_symlink("0", source / "link");
    fs::create_directory(source / "folder");
    std::vector<std::string> command = {"a", "-r", "-ol", "-m0", "-idq", archive};
    for (const fs::directory_entry &entry : fs::directory_iterator(source))
        command.push_back(entry.path());
    ASSERT_EQ(mkfifo((source / "folder/pipe").c_str(), 0600), 0); // is passed over
    ASSERT_EQ(rar(command).errors, "");
    ASSERT_EQ(rar({"x", "-idq", archive, out}).errors, "");
    TreeSnapshot expected = snapshotTree(source);
    expected.erase("folder/pipe");
    EXPECT_EQ(treeDifference(expected, snapshotTree(extracted), {.root = false}), "");
}
