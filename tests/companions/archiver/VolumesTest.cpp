#include "ArchiveProcessor.h"
#include "ArchiveWriter.h"
#include "HuffmanEncoder.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string joined(const std::vector<fs::path> &volumes)
{
    std::string all;
    for (const fs::path &volume : volumes)
        all += readFile(volume);
    return all;
}

/// What a set unpacks to, by another archiver's reader.
std::string readByOther(const std::vector<fs::path> &volumes)
{
    TemporaryFolder temporary;
    writeFile(temporary / "joined", joined(volumes));
    const CommandResult result = runCommand({"bsdtar", "-xOf", temporary / "joined"});
    return result.status == 0 ? result.output : "failed: " + result.errors;
}

/// Volumes of a size that the command line can't ask for, packed and then tested.
class OddVolumes : public testing::Test {
protected:
    std::vector<fs::path> write(const std::string &content, std::uint64_t volumeSize,
                                archiver::ArchiveWriter::Packing packing)
    {
        for (const fs::path &old : volumesOf(archive))
            fs::remove(old);
        writeFile(temporary / "file", content);
        std::string messages;
        archiver::Diagnostics diagnostics(messages);
        archiver::OutputVolumes output(archive, volumeSize, diagnostics);
        archiver::ArchiveWriter writer(output, packing, diagnostics);
        const int file = open((temporary / "file").c_str(), O_RDONLY);
        struct stat status {};
        fstat(file, &status);
        const bool done = output.begin() && writer.addFile(file, status, "file", "file") && output.finish() &&
                          output.publish(std::nullopt);
        close(file);
        EXPECT_TRUE(done) << messages;
        return volumesOf(archive);
    }

    TemporaryFolder temporary;
    fs::path archive = temporary / "set.rar";
};

} // namespace

TEST_F(OddVolumes, everyWayToCutABlockIsReadable)
{
    // Around every multiple of the packed size of a block the next volume starts in, before or behind a
    // block's header.
    const std::string content = base64Text(2 * archiver::HuffmanEncoder::blockInput + 100'000);
    const std::uint64_t block = 395'300;
    std::vector<std::uint64_t> sizes = {200'001, 262'144, 500'009, 600'000};
    for (std::uint64_t size = block + 40; size < block + 260; size += 11)
        sizes.push_back(size);
    for (std::uint64_t size = 2 * block + 40; size < 2 * block + 260; size += 23)
        sizes.push_back(size);
    for (const std::uint64_t size : sizes) {
        const std::vector<fs::path> volumes = write(content, size, archiver::ArchiveWriter::Packing::Pack);
        ASSERT_GT(volumes.size(), 1u);
        for (const fs::path &volume : volumes)
            EXPECT_LE(fs::file_size(volume), std::max<std::uint64_t>(size, 600));
        EXPECT_TRUE(readByOther(volumes) == content) << size;
        CollectingReceiver receiver;
        std::string messages;
        archiver::Diagnostics diagnostics(messages);
        archiver::processArchive(volumes.front(), receiver, diagnostics);
        EXPECT_EQ(messages, "");
        EXPECT_TRUE(receiver.files["file"] == content) << size;
    }
}

TEST_F(OddVolumes, theLastVolumeMayHoldNextToNothing)
{
    const std::string content = randomBytes(3000);
    // 1000 bytes of volume leave about 900 for data.
    for (std::size_t length = 1750; length < 1900; length += 10) {
        const std::string part = content.substr(0, length);
        const std::vector<fs::path> volumes = write(part, 1000, archiver::ArchiveWriter::Packing::Store);
        ASSERT_GE(volumes.size(), 2u);
        EXPECT_GE(fs::file_size(volumes.back()), 512u);
        EXPECT_EQ(rar({"t", "-idq", volumes.front()}).errors, "");
        EXPECT_TRUE(readByOther(volumes) == part) << length;
    }
}

TEST(Volumes, setsOfManySizesAreReadByAll)
{
    TemporaryFolder temporary;
    const fs::path archive = temporary / "set.rar";
    const std::string content = base64Text(160'000);
    writeFile(temporary / "file", content);
    struct Case {
        std::string volume;
        std::size_t least, most;
        std::string first;
    };
    for (const Case &test : {Case{"-v61", 2, 2, "set.part1.rar"}, Case{"-v11", 12, 12, "set.part01.rar"},
                             Case{"-v1", 120, 150, "set.part001.rar"}}) {
        ASSERT_EQ(packFile(archive, temporary / "file", test.volume).errors, "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        EXPECT_GE(volumes.size(), test.least);
        EXPECT_LE(volumes.size(), test.most);
        ASSERT_FALSE(volumes.empty());
        EXPECT_EQ(volumes.front().filename(), test.first);
        EXPECT_FALSE(fs::exists(archive));
        EXPECT_EQ(rar({"t", "-idq", volumes.front()}).errors, "");
        EXPECT_EQ(rar({"e", "-o+", "-idq", volumes.front(), temporary / "out"}).errors, "");
        EXPECT_TRUE(readFile(temporary / "out/file") == content);
        EXPECT_TRUE(readByOther(volumes) == content);
        fs::remove_all(temporary / "third");
        const CommandResult third =
            runCommand({"unar", "-q", "-D", "-o", temporary / "third", volumes.front()});
        EXPECT_EQ(third.status, 0) << third.output;
        EXPECT_TRUE(readFile(temporary / "third/file") == content);
        // The set before has other names, and is gone.
        std::size_t files = 0;
        for (const auto &entry : fs::directory_iterator(temporary.path()))
            files += entry.is_regular_file();
        EXPECT_EQ(files, volumes.size() + 1);
    }
}

TEST(Volumes, aSetAndAPlainArchiveReplaceEachOther)
{
    TemporaryFolder temporary;
    const fs::path archive = temporary / "file.rar.aes.rar";
    writeFile(temporary / "file", base64Text(100'000));
    writeFile(temporary / "file.rar.aes.part1.rar.txt", "someone else's");
    writeFile(temporary / "other.part1.rar", "someone else's");
    ASSERT_EQ(packFile(archive, temporary / "file").errors, "");
    ASSERT_EQ(packFile(archive, temporary / "file", "-v10").errors, "");
    EXPECT_FALSE(fs::exists(archive));
    EXPECT_EQ(volumesOf(archive).size(), 8u);
    ASSERT_EQ(packFile(archive, temporary / "file", "-v30").errors, "");
    EXPECT_EQ(volumesOf(archive).size(), 3u);
    ASSERT_EQ(packFile(archive, temporary / "file", "-v1000").errors, "");
    EXPECT_TRUE(fs::exists(archive));
    EXPECT_TRUE(volumesOf(archive).empty());
    EXPECT_EQ(runCommand({"bsdtar", "-xOf", archive}).output, readFile(temporary / "file"));
    EXPECT_TRUE(fs::exists(temporary / "file.rar.aes.part1.rar.txt"));
    EXPECT_TRUE(fs::exists(temporary / "other.part1.rar"));
}

TEST(Volumes, aTreeMayBeSplitToo)
{
    TemporaryFolder temporary;
    makeSampleTree(temporary / "source");
    ASSERT_EQ(rar({"a", "-r", "-ol", "-m0", "-v50", "-t", temporary / "a.rar", temporary / "source"}).errors,
              "");
    const std::vector<fs::path> volumes = volumesOf(temporary / "a.rar");
    ASSERT_GT(volumes.size(), 20u);
    EXPECT_EQ(rar({"x", "-idq", volumes.front(), temporary / "out"}).errors, "");
    EXPECT_EQ(
        treeDifference(temporary / "source", temporary / "out" / (temporary / "source").relative_path()), "");
}

namespace {

/// A set of five volumes, one of which something happens to.
class BrokenSet : public testing::Test {
protected:
    void SetUp() override
    {
        writeFile(temporary / "file", base64Text(60'000));
        ASSERT_EQ(packFile(temporary / "a.rar", temporary / "file", "-v10").errors, "");
        volumes = volumesOf(temporary / "a.rar");
        ASSERT_EQ(volumes.size(), 5u);
    }

    void expectMessage(const fs::path &first, const std::string &message)
    {
        const CommandResult tested = rar({"t", "-idq", first});
        EXPECT_NE(tested.status, 0);
        EXPECT_EQ(tested.errors, "\n" + message + "\n");
        const CommandResult extracted = rar({"e", "-o+", "-idq", first, temporary / "out"});
        EXPECT_EQ(extracted.errors, tested.errors);
        EXPECT_TRUE(fs::is_empty(temporary / "out"));
    }

    TemporaryFolder temporary;
    std::vector<fs::path> volumes;
};

} // namespace

TEST_F(BrokenSet, missingVolume)
{
    fs::remove(volumes[2]);
    expectMessage(volumes[0], "Cannot find volume " + volumes[2].string());
}

TEST_F(BrokenSet, cutVolume)
{
    fs::resize_file(volumes[2], 5000);
    expectMessage(volumes[0], "file: Unexpected end of archive " + volumes[2].string());
}

TEST_F(BrokenSet, damagedVolume)
{
    std::string bytes = readFile(volumes[1]);
    bytes[5000] ^= 1;
    writeFile(volumes[1], bytes);
    expectMessage(volumes[0], "file: packed data checksum error in volume " + volumes[1].string());
}

TEST_F(BrokenSet, emptyVolume)
{
    writeFile(volumes[3], "");
    expectMessage(volumes[0], volumes[3].string() + " is not a RAR archive");
}

TEST_F(BrokenSet, swappedVolumes)
{
    fs::rename(volumes[2], temporary / "aside");
    fs::rename(volumes[3], volumes[2]);
    expectMessage(volumes[0], volumes[2].string() + " is volume 4 of a set, where volume 3 was expected");
}

TEST_F(BrokenSet, volumeOfAnotherSet)
{
    writeFile(temporary / "else", base64Text(60'000));
    ASSERT_EQ(packFile(temporary / "b.rar", temporary / "else", "-v10").errors, "");
    fs::rename(temporary / "b.part2.rar", volumes[1]);
    expectMessage(volumes[0],
                  volumes[1].string() + " does not continue file: it belongs to another set of volumes");
}

TEST_F(BrokenSet, startedInTheMiddle)
{
    expectMessage(volumes[1], volumes[1].string() + " is not the first volume: start with the first one");
}
