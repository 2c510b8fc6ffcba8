#include "ForeignReader.h"

#include "ArchiveProcessor.h"
#include "HuffmanEncoder.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using archiver::ForeignReader;

namespace {

/// A packed file. One that says it shares the dictionary of the one before can only be unpacked by the
/// foreign reader.
HandmadeEntry packedFile(const std::string &name, const std::string &content, bool sharesDictionary)
{
    archiver::HuffmanEncoder encoder;
    const archiver::Bytes packed = encoder.encode(bytesOf(content), true);
    HandmadeEntry entry = storedFile(name, {packed.begin(), packed.end()});
    entry.header.method = archiver::HuffmanEncoder::method;
    entry.header.dictionary = archiver::HuffmanEncoder::dictionary;
    entry.header.solid = sharesDictionary;
    entry.header.unpackedSize = content.size();
    entry.header.crc = archiver::crc32(bytesOf(content));
    return entry;
}

} // namespace

TEST(ForeignReader, unpacksWhatTheOwnReaderLeavesToIt)
{
    TemporaryFolder temporary;
    const std::string content = base64Text(100'000);
    const std::string text = base64Text(5000);
    writeFile(temporary / "a.rar",
              handmadeArchive({packedFile("before", text, false), symbolicLink("link", "before"),
                               packedFile("middle", content, true), storedFile("after", "2")},
                              true));
    EXPECT_EQ(rar({"t", "-idq", temporary / "a.rar"}).errors, "");
    EXPECT_EQ(rar({"x", "-idq", temporary / "a.rar", temporary / "out"}).errors, "");
    EXPECT_TRUE(readFile(temporary / "out/before") == text);
    EXPECT_TRUE(readFile(temporary / "out/middle") == content);
    EXPECT_EQ(readFile(temporary / "out/after"), "2");

    HandmadeEntry damaged = packedFile("middle", content, true);
    damaged.data[5000] ^= 4;
    writeFile(temporary / "a.rar",
              handmadeArchive({packedFile("before", text, false), damaged, storedFile("after", "2")}, true));
    const CommandResult result = rar({"x", "-o+", "-idq", temporary / "a.rar", temporary / "second"});
    EXPECT_NE(result.status, 0);
    EXPECT_TRUE(result.errors.starts_with("\nmiddle: ")) << result.errors;
    EXPECT_FALSE(fs::exists(temporary / "second/middle"));
    EXPECT_EQ(readFile(temporary / "second/after"), "2");
}

TEST(ForeignReader, describesEntriesAndNoticesTheEndOfASet)
{
    TemporaryFolder temporary;
    const std::string content = base64Text(60'000);
    writeFile(temporary / "file", content);
    ASSERT_EQ(packFile(temporary / "a.rar", temporary / "file", "-v10").errors, "");
    std::vector<std::string> paths;
    for (const fs::path &volume : volumesOf(temporary / "a.rar"))
        paths.push_back(volume);

    const auto read = [&paths](std::string &messages, CollectingReceiver &receiver) {
        archiver::Diagnostics diagnostics(messages);
        ForeignReader reader(paths, diagnostics);
        archiver::FileHeader header;
        if (reader.next(header) != ForeignReader::Step::Entry) return false;
        EXPECT_EQ(header.name, "file");
        EXPECT_EQ(header.unpackedSize, 60'000u);
        if (!reader.unpack(header, *receiver.beginFile(header))) return false;
        receiver.finishFile(header);
        return reader.next(header) == ForeignReader::Step::End;
    };
    std::string messages;
    CollectingReceiver receiver;
    EXPECT_TRUE(read(messages, receiver)) << messages;
    EXPECT_TRUE(receiver.files["file"] == content);

    paths.pop_back();
    CollectingReceiver cut;
    EXPECT_FALSE(read(messages, cut));
    EXPECT_NE(messages, "");
    EXPECT_TRUE(cut.files.empty());
}
