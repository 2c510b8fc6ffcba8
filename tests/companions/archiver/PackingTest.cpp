#include "ArchiveWriter.h"
#include "HuffmanEncoder.h"
#include "Rar.h"
#include "Tree.h"

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;
using Method = archiver::ArchiveWriter::Packing;

namespace {

constexpr std::size_t block = archiver::HuffmanEncoder::blockInput;

std::string skewed(std::size_t size)
{
    // Frequencies like the Fibonacci numbers' need the longest codes.
    std::string bytes;
    std::size_t count = 1;
    std::size_t before = 1;
    for (unsigned char byte = 0; bytes.size() < size; ++byte) {
        bytes.append(count, static_cast<char>(byte));
        before = std::exchange(count, count + before);
    }
    return bytes;
}

class Packing : public ArchiverTest {
protected:
    /// Makes an archive of a file that had `lost` bytes more a moment ago, in volumes of sizes that the
    /// command line can't ask for. What is said; empty where all is well.
    std::string write(const std::string &content, Method method, std::optional<std::uint64_t> volumeSize,
                      int lost = 0)
    {
        for (const fs::path &old : volumesOf(archive))
            fs::remove(old);
        writeFile(temporary / "file", content);
        std::string messages;
        archiver::Diagnostics diagnostics(messages);
        archiver::OutputVolumes output(archive, volumeSize, diagnostics);
        archiver::ArchiveWriter writer(output, method, diagnostics);
        const int file = open((temporary / "file").c_str(), O_RDONLY);
        struct stat status {};
        fstat(file, &status);
        status.st_size += lost;
        EXPECT_TRUE(output.begin() && writer.addFile(file, status, "file", "PATH/file") && writer.finish());
        close(file);
        EXPECT_TRUE(lost > 0 || (output.finish() && output.publish(std::nullopt)));
        return messages;
    }
};

} // namespace

TEST_F(Packing, whateverItPacksUnpacksByEveryReader)
{
    // With the largest ratio of packed to unpacked size, headers included; 0: stored.
    const std::vector<std::pair<std::string, double>> contents = {
        {base64Text(3'000'000), 0.755},
        {base64Text(block), 0.755},
        {base64Text(block + 1), 0.755},
        {"", 0},
        {std::string(1'500'000, 'x'), 0.126},
        {std::string(700'000, 'a') + std::string(700'000, 'b'), 0.26},
        {skewed(1'000'000), 0.5},
        {randomBytes(2'000'000), 1.0001},
        {base64Text(1'000'000) + randomBytes(200'000), 0.82}};
    for (const auto &[bytes, ratio] : contents) {
        SCOPED_TRACE(bytes.substr(0, 20) + ", " + std::to_string(bytes.size()));
        writeFile(temporary / "file", bytes);
        ASSERT_EQ(packFile(archive, temporary / "file").errors, "");
        const auto size = static_cast<double>(bytes.size());
        EXPECT_LE(static_cast<double>(fs::file_size(archive)), ratio > 0 ? ratio * size : size + 80);
        expectContent({archive}, bytes);
    }
}

TEST_F(Packing, anyNumberOfBitsInTheLastByteIsReadable)
{
    // How far a reader looks ahead depends on the lengths of the codes, so there are even and uneven ones.
    for (std::size_t length = 3000; length < 3024; ++length) {
        writeFile(source / ("even " + std::to_string(length)), base64Text(length));
        writeFile(source / ("uneven " + std::to_string(length)), skewed(length).substr(0, length));
    }
    ASSERT_EQ(rar({"a", "-m5", "-t", "-ep", archive, source}).errors, "");
    const CommandResult third = runCommand({"unar", "-q", "-D", "-o", out, archive});
    EXPECT_EQ(third.status, 0) << third.output;
    for (const auto &file : fs::directory_iterator(source))
        EXPECT_TRUE(readFile(out / file.path().filename()) == readFile(file)) << file;
}

TEST_F(Packing, aFileThatShrinksIsReported)
{
    for (const Method method : {Method::Store, Method::Pack})
        EXPECT_EQ(write(base64Text(1'000'000), method, std::nullopt, 1),
                  "\nPATH/file became shorter while it was read\n");
    EXPECT_FALSE(fs::exists(archive));
    EXPECT_EQ(snapshotTree(temporary.path()).size(), 2u); // nothing unfinished is left beside the file
}

TEST_F(Packing, everyWayToCutIntoVolumesIsReadable)
{
    // Around every multiple of the packed size of a block the next volume starts in, before or behind a
    // block's header; and the last volume may hold next to nothing.
    struct Cut {
        Method method;
        std::uint64_t volume;
        std::size_t length;
    };
    std::vector<Cut> cuts;
    const std::size_t whole = 2 * block + 100'000;
    const std::uint64_t packed = 395'300;
    for (const std::uint64_t size : {200'001u, 262'144u, 500'009u, 600'000u})
        cuts.push_back({Method::Pack, size, whole});
    for (std::uint64_t more = 40; more < 260; more += 11)
        cuts.push_back({Method::Pack, packed + more, whole});
    for (std::uint64_t more = 40; more < 260; more += 23)
        cuts.push_back({Method::Pack, 2 * packed + more, whole});
    for (std::size_t length = 1750; length < 1900; length += 10) // about 900 of 1000 bytes are data
        cuts.push_back({Method::Store, 1000, length});
    for (const auto &[method, size, length] : cuts) {
        const std::string content = base64Text(length);
        EXPECT_EQ(write(content, method, size), "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        ASSERT_GT(volumes.size(), 1u);
        for (const fs::path &volume : volumes)
            EXPECT_LE(fs::file_size(volume), std::max<std::uint64_t>(size, 600));
        EXPECT_GE(fs::file_size(volumes.back()), 512u);
        expectContent(volumes, content);
    }
}
