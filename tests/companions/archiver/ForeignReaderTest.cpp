#include "ForeignReader.h"

#include "ContentSink.h"
#include "HuffmanEncoder.h"
#include "Rar.h"

namespace fs = std::filesystem;
using archiver::ForeignReader;

namespace {

/// A packed file. One that says it shares the dictionary of the one before can only be unpacked by the
/// foreign reader.
HandmadeEntry packedFile(const std::string &name, const std::string &content, bool sharesDictionary)
{
    archiver::HuffmanEncoder encoder;
    const archiver::Bytes packed = encoder.encode(bytesOf(content), true);
    HandmadeEntry entry = storedFile(name, content);
    entry.data.assign(packed.begin(), packed.end());
    entry.header.packedSize = packed.size();
    entry.header.method = archiver::HuffmanEncoder::method;
    entry.header.dictionary = archiver::HuffmanEncoder::dictionary;
    entry.header.solid = sharesDictionary;
    return entry;
}

struct Collected final : archiver::ContentSink {
    std::string content;
    bool write(archiver::Bytes bytes) override
    {
        content.append(bytes.begin(), bytes.end());
        return true;
    }
};

using ForeignReaderTest = ArchiverTest;

} // namespace

TEST_F(ForeignReaderTest, unpacksWhatTheOwnReaderLeavesToIt)
{
    const std::string content = base64Text(100'000);
    const std::string text = base64Text(5000);
    std::vector<HandmadeEntry> entries = {packedFile("before", text, false), linkEntry("link", "before"),
                                          packedFile("middle", content, true), storedFile("after", "2")};
    writeFile(archive, handmadeArchive(entries, true));
    EXPECT_EQ(rar({"t", "-idq", archive}).errors, "");
    EXPECT_EQ(rar({"x", "-idq", archive, out}).errors, "");
    EXPECT_TRUE(readFile(out / "before") == text);
    EXPECT_TRUE(readFile(out / "middle") == content);
    EXPECT_EQ(readFile(out / "after"), "2");

    entries[2].data[5000] ^= 4;
    writeFile(archive, handmadeArchive(entries, true));
    const CommandResult result = rar({"x", "-o+", "-idq", archive, temporary / "second"});
    EXPECT_TRUE(failure(result).starts_with("\nmiddle: ")) << result.errors;
    EXPECT_FALSE(fs::exists(temporary / "second/middle"));
    EXPECT_EQ(readFile(temporary / "second/after"), "2");
}

TEST_F(ForeignReaderTest, describesEntriesAndNoticesTheEndOfASet)
{
    const std::string content = base64Text(60'000);
    writeFile(temporary / "file", content);
    ASSERT_EQ(packFile(archive, temporary / "file", "-v10").errors, "");
    const std::vector<fs::path> volumes = volumesOf(archive);
    std::vector<std::string> paths(volumes.begin(), volumes.end());

    const auto read = [&paths](std::string &messages) {
        archiver::Diagnostics diagnostics(messages);
        ForeignReader reader(paths, diagnostics);
        archiver::FileHeader header;
        Collected collected;
        const bool whole = reader.next(header) == ForeignReader::Step::Entry &&
                           reader.unpack(header, collected) &&
                           header.unpackedSize == collected.content.size() &&
                           reader.next(header) == ForeignReader::Step::End;
        return std::pair(whole ? header.name : "", collected.content);
    };
    std::string messages;
    EXPECT_TRUE(read(messages) == std::pair(std::string("file"), content)) << messages;
    paths.pop_back();
    EXPECT_EQ(read(messages).first, "");
    EXPECT_NE(messages, "");
}
