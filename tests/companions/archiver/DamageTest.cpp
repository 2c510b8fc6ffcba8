#include "ArchiveProcessor.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

/// What is said about volumes in memory; empty where all is well.
std::string problems(std::vector<std::string> volumes)
{
    MemoryVolumes source(std::move(volumes));
    std::string messages;
    archiver::Diagnostics diagnostics(messages);
    archiver::EntryTester tester;
    archiver::processVolumes(source, tester, diagnostics);
    return messages;
}

/// Stored files, folders and a link, or a packed file; small enough to try every byte.
std::string sampleArchive(const std::string &kind)
{
    TemporaryFolder temporary;
    writeFile(temporary / "source/a", "some text\n");
    writeFile(temporary / "source/b", randomBytes(300));
    writeFile(temporary / "source/empty", "");
    fs::create_symlink("a", temporary / "source/link");
    writeFile(temporary / "text", base64Text(1500));
    const CommandOptions inside{.folder = temporary.path(), .environment = {}, .input = {}};
    const CommandResult result = kind == "stored" ? rar({"a", "-r", "-ol", "-m0", "a.rar", "source"}, inside)
                                                  : rar({"a", "-m5", "a.rar", "text"}, inside);
    EXPECT_EQ(result.errors, "");
    return readFile(temporary / "a.rar");
}

class Damage : public testing::TestWithParam<std::string> {};

} // namespace

TEST_P(Damage, anyFlippedBitIsFound)
{
    const std::string whole = sampleArchive(GetParam());
    ASSERT_EQ(problems({whole}), "");
    // The bits behind the last code in a packed block mean nothing.
    std::size_t unnoticed = 0;
    for (std::size_t index = 0; index < whole.size(); ++index) {
        for (const int bit : {0, 3, 7}) {
            std::string damaged = whole;
            damaged[index] = static_cast<char>(damaged[index] ^ 1 << bit);
            if (problems({damaged}).empty()) ++unnoticed;
        }
    }
    EXPECT_LE(unnoticed, GetParam() == "packed" ? 2u : 0u);
}

TEST_P(Damage, anyCutIsFound)
{
    const std::string whole = sampleArchive(GetParam());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_NE(problems({whole.substr(0, length)}), "") << length;
}

INSTANTIATE_TEST_SUITE_P(Archives, Damage, testing::Values("stored", "packed"),
                         [](const auto &test) { return test.param; });

TEST(Damage, aDamagedFileDoesNotTakeTheOthersWithIt)
{
    TemporaryFolder temporary;
    std::string bytes =
        handmadeArchive({storedFile("first", "1"), storedFile("second", "twice"), storedFile("third", "3")});
    bytes[bytes.find("twice")] = 'T';
    writeFile(temporary / "a.rar", bytes);
    const CommandResult result = rar({"x", "-o+", "-idq", temporary / "a.rar", temporary / "out"});
    EXPECT_NE(result.status, 0);
    EXPECT_EQ(result.errors, "\nsecond: checksum error\n");
    EXPECT_EQ(readFile(temporary / "out/first"), "1");
    EXPECT_EQ(readFile(temporary / "out/third"), "3");
    EXPECT_FALSE(fs::exists(temporary / "out/second"));
}

TEST(Damage, whatIsNoArchiveIsSaidToBeNone)
{
    TemporaryFolder temporary;
    const std::string path = temporary / "junk.rar";
    for (const std::string &junk :
         {std::string(), std::string("Rar!"), std::string("junk\n"), randomBytes(100'000)}) {
        writeFile(path, junk);
        for (const std::string command : {"t", "x", "e"}) {
            const CommandResult result = rar({command, "-idq", path});
            EXPECT_NE(result.status, 0);
            EXPECT_EQ(result.errors, "\n" + path + " is not a RAR archive\n");
        }
    }
    EXPECT_EQ(rar({"t", path + "x"}).errors, "\nCannot open " + path + "x: No such file or directory\n");
    EXPECT_EQ(rar({"t", temporary.path()}).errors,
              "\nCannot open " + temporary.path().string() + ": Is a directory\n");
}

TEST(Damage, sizesThatLieAskForNothing)
{
    HandmadeEntry huge = storedFile("huge", "little");
    huge.header.packedSize = 0xFFFFFFFFFFFFFFFFu;
    EXPECT_NE(problems({handmadeArchive({huge})}).find("Unexpected end of archive"), std::string::npos);
    huge.header.packedSize = 6;
    huge.header.unpackedSize = 1ull << 62;
    EXPECT_EQ(problems({handmadeArchive({huge})}), "\nhuge: checksum error\n");
}
