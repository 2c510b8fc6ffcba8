#include "ArchiveWriter.h"
#include "HuffmanEncoder.h"
#include "Rar.h"
#include "Tree.h"

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;
using Packing = archiver::ArchiveWriter::Packing;

namespace {

/// What the command line can't ask for: volumes of odd sizes, and a file that changes at the wrong moment.
class Writer : public ArchiverTest {
protected:
    /// Makes an archive of a file that had `lost` bytes more a moment ago. What is said; empty where all is
    /// well.
    std::string write(const std::string &content, Packing packing, std::optional<std::uint64_t> volumeSize,
                      int lost = 0)
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
        status.st_size += lost;
        EXPECT_TRUE(output.begin() && writer.addFile(file, status, "file", "PATH/file"));
        close(file);
        if (lost > 0) return messages;
        EXPECT_TRUE(output.finish() && output.publish(std::nullopt));
        return messages;
    }
};

} // namespace

TEST_F(Writer, aFileThatShrinksIsReported)
{
    for (const Packing packing : {Packing::Store, Packing::Pack})
        EXPECT_EQ(write(base64Text(1'000'000), packing, std::nullopt, 1),
                  "\nPATH/file became shorter while it was read\n");
    EXPECT_FALSE(fs::exists(archive));
    EXPECT_EQ(snapshotTree(temporary.path()).size(), 2u); // nothing unfinished is left beside the file
}

TEST_F(Writer, everyWayToCutABlockIsReadable)
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
        EXPECT_EQ(write(content, Packing::Pack, size), "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        ASSERT_GT(volumes.size(), 1u);
        for (const fs::path &volume : volumes)
            EXPECT_LE(fs::file_size(volume), std::max<std::uint64_t>(size, 600));
        expectContent(volumes, content);
    }
}

TEST_F(Writer, theLastVolumeMayHoldNextToNothing)
{
    const std::string content = randomBytes(3000);
    // 1000 bytes of volume leave about 900 for data.
    for (std::size_t length = 1750; length < 1900; length += 10) {
        const std::string part = content.substr(0, length);
        EXPECT_EQ(write(part, Packing::Store, 1000), "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        ASSERT_GE(volumes.size(), 2u);
        EXPECT_GE(fs::file_size(volumes.back()), 512u);
        expectContent(volumes, part);
    }
}
