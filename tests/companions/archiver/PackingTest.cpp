#include "ArchiveWriter.h"
#include "HuffmanEncoder.h"
#include "Rar.h"

#include <fcntl.h>
#include <unistd.h>

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

/// Words in no order, unlike those of other seeds; and once more, from 200,000 on.
std::string prose(std::size_t size, unsigned seed)
{
    std::vector<std::string> words;
    for (const char letter : randomBytes(1500, seed)) {
        if (words.empty() || words.back().ends_with(' ')) words.emplace_back();
        words.back() += letter % 4 == 0 ? ' ' : static_cast<char>('m' + letter % 13);
    }
    std::string text;
    for (const char choice : randomBytes(60'000, seed + 1))
        text += words[static_cast<unsigned char>(choice) % words.size()];
    text = text.substr(0, 200'000);
    while (text.size() < size)
        text += text;
    return text.substr(0, size);
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

TEST_F(Packing, whatShrinksIsPackedAndTheRestStored)
{
    // With the largest ratio of packed to unpacked size, headers included; 0: stored.
    const std::vector<std::pair<std::string, double>> contents = {
        {base64Text(3'000'000), 0.755},
        {base64Text(block + 1), 0.755},
        {base64Text(3000), 0.8},
        {prose(3'000'000, 1), 0.05},
        {prose(200'000, 1), 0.45},
        {prose(3000, 1), 0.7},
        {std::string(1'500'000, 'x'), 0.01},
        {skewed(1'000'000), 0.01},
        {base64Text(1'000'000) + randomBytes(200'000), 0.82},
        {"", 0},
        {"x", 0},
        {randomBytes(100), 0},
        {randomBytes(1000), 0},
        {randomBytes(2'000'000), 0}};
    for (const auto &[bytes, ratio] : contents)
        for (const std::string how : {"-m5", "-m3 -s"}) {
            SCOPED_TRACE(bytes.substr(0, 20) + ", " + std::to_string(bytes.size()));
            writeFile(temporary / "file", bytes);
            ASSERT_EQ(rar(words("a -ep a.rar file " + how), {.folder = temporary.path()}).errors, "");
            const auto size = static_cast<double>(bytes.size());
            EXPECT_LE(static_cast<double>(fs::file_size(archive)),
                      ratio * size + (ratio > 0 ? 0 : size + 80));
        }
}

TEST_F(Packing, whateverItPacksUnpacksByEveryReader)
{
    // How far a reader looks ahead depends on the lengths of the codes, so there are even and uneven ones.
    for (std::size_t length = 3000; length < 3016; ++length) {
        writeFile(source / ("even " + std::to_string(length)), base64Text(length));
        writeFile(source / ("uneven " + std::to_string(length)), skewed(length).substr(0, length));
        writeFile(source / "prose" / std::to_string(length), prose(length, 1).substr(length - 3000));
    }
    for (const std::size_t border : {128u << 10, 512u << 10, 1u << 20, 2u << 20})
        for (const std::size_t length : {border - 1, border, border + 1})
            writeFile(source / "borders" / std::to_string(length), prose(length, 2));
    writeFile(source / "large", prose(6'000'000, 3)); // too much for the group of the files before
    writeFile(source / "mixed/empty", "");
    writeFile(source / "mixed/one", "x");
    writeFile(source / "mixed/random", randomBytes(100'000));
    writeFile(source / "mixed/random large", randomBytes(700'000));
    writeFile(source / "mixed/runs", std::string(700'000, 'a') + std::string(700'000, 'b'));
    writeFile(source / "mixed/zeros", std::string(40'000, '\0'));
    for (const std::string twin : {"twin 1", "twin 2", "twin 3"})
        writeFile(source / "mixed" / twin, readFile(source / "mixed/random"));
    fs::create_symlink("one", source / "mixed/link");
    for (const std::string how : {"-m3", "-m3 -s", "-m5 -s-", "-m1 -v700", "-m4 -s -v900"}) {
        SCOPED_TRACE(how);
        ASSERT_EQ(rar(words("a -ol a.rar source " + how), {.folder = temporary.path()}).errors, "");
        for (const fs::path &folder : extractedByAll(archive, out))
            for (const auto &entry : fs::recursive_directory_iterator(source)) {
                const fs::path came = folder / fs::relative(entry, temporary.path());
                EXPECT_TRUE(!entry.is_regular_file() || readFile(came) == readFile(entry)) << came;
            }
        for (const fs::path &volume : volumesOf(archive))
            fs::remove(volume);
        fs::remove_all(out);
    }
}

TEST_F(Packing, twinsArePackedOnceAndNamesakesDoNotPartAGroup)
{
    const std::string photo = randomBytes(30'000);
    for (const std::string folder : {"1", "2", "3"}) {
        writeFile(source / folder / "photo", photo);
        writeFile(source / folder / "text", prose(9000, static_cast<unsigned>(folder.front())));
    }
    ASSERT_EQ(rar({"a", "-m3", "-s", "-ep", archive, source}).errors, "");
    EXPECT_LT(fs::file_size(archive), 50'000u);
    ASSERT_EQ(rar({"x", archive, out}).errors, "");
    EXPECT_TRUE(readFile(out / "photo") == photo);
}

TEST_F(Packing, damageSpoilsItsSolidGroupOnly)
{
    const std::vector<std::pair<std::string, std::size_t>> groups = {
        {"1a", 8'380'000}, {"1b", 8'380'000}, {"2a", 100'000}, {"2b", 8'000'000}, {"3a", 17'000'000}};
    for (const auto &[name, size] : groups)
        writeFile(source / ("file " + name), prose(size, static_cast<unsigned>(name.front())));
    ASSERT_EQ(rar({"a", "-m3", "-s", "-ep", archive, source}).errors, "");
    std::string bytes = readFile(archive);
    bytes[bytes.find("file 2a") + 9000] ^= 1;
    writeFile(archive, bytes);
    EXPECT_NE(rar({"x", archive, out}).status, 0);
    for (const std::string name : {"file 1a", "file 1b", "file 3a"})
        EXPECT_TRUE(readFile(out / name) == readFile(source / name)) << name;
    EXPECT_FALSE(fs::exists(out / "file 2a"));
}

TEST_F(Packing, aFileThatShrinksIsReported)
{
    for (const Method method : {Method{0}, Method{5}, Method{3}, Method{3, true}})
        EXPECT_EQ(write(prose(4'000'000, 1), method, std::nullopt, 1),
                  "\nPATH/file became shorter while it was read\n");
    EXPECT_FALSE(fs::exists(archive));
    EXPECT_EQ(snapshotTree(temporary.path()).size(), 2u); // nothing unfinished is left beside the file
}

TEST_F(Packing, everyWayToCutIntoVolumesIsReadable)
{
    // Around every multiple of the packed size of a block the next volume starts in, before or behind a
    // block's header; and the last volume may hold next to nothing.
    std::vector<std::tuple<Method, std::uint64_t, std::size_t>> cuts;
    const std::size_t whole = 2 * block + 100'000;
    const std::uint64_t packed = 395'300;
    for (const std::uint64_t size : {200'001u, 262'144u, 500'009u, 600'000u})
        cuts.emplace_back(Method{5}, size, whole);
    for (std::uint64_t more = 40; more < 260; more += 11)
        cuts.emplace_back(Method{5}, packed + more, whole);
    for (std::uint64_t more = 40; more < 260; more += 23)
        cuts.emplace_back(Method{5}, 2 * packed + more, whole);
    for (std::size_t length = 1750; length < 1900; length += 10) // about 900 of 1000 bytes are data
        cuts.emplace_back(Method{0}, 1000, length);
    for (const auto &[method, size, length] : cuts) {
        const std::string content = base64Text(length);
        EXPECT_EQ(write(content, method, size), "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        ASSERT_GT(volumes.size(), 1u);
        for (const fs::path &volume : volumes)
            EXPECT_LE(fs::file_size(volume), std::max<std::uint64_t>(size, 600));
        EXPECT_GE(fs::file_size(volumes.back()), 512u);
        // Long texts are compared as a whole: googletest would take minutes over their difference.
        EXPECT_TRUE(rar({"p", "-idq", volumes.front()}).output == content);
        for (const fs::path &folder : extractedByAll(archive, out))
            EXPECT_TRUE(readFile(folder / "file") == content) << folder;
        fs::remove_all(out);
    }
}
