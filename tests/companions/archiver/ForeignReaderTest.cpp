#include "HuffmanEncoder.h"
#include "Rar.h"

#include <algorithm>
#include <functional>

using namespace archiver;

namespace {

/// What comes out of an archive: contents by name, links with an arrow, and what is said.
struct Unpacked {
    std::map<std::string, std::string> entries;
    std::string messages;
};

class ForeignArchive : public ArchiverTest {
protected:
    Unpacked unpack(const std::vector<std::string> &volumes)
    {
        fs::remove_all(out);
        fs::create_directory(out);
        Unpacked unpacked{{}, rar({"x", writeSet(volumes), out}).errors};
        for (const auto &[path, entry] : snapshotTree(out)) {
            if (entry.type == 'l') unpacked.entries[path] = "-> " + entry.target;
            if (entry.type == 'f') unpacked.entries[path] = readFile(out / path);
            if (entry.type == 'd' && path != ".") unpacked.entries[path + "/"] = "";
        }
        return unpacked;
    }
};

HandmadeEntry encodedFile(const std::string &name, const std::string &content, bool solid)
{
    HuffmanEncoder encoder;
    const Bytes packed = content.empty() ? Bytes() : encoder.encode(bytesOf(content), true);
    return packedFile(name, content, {packed.begin(), packed.end()}, solid);
}

/// Packed in the older format, each byte but 255 as a code of eight bits that is the byte itself.
HandmadeEntry olderPackedFile(const std::string &name, const std::string &content)
{
    // Lengths of codes: 8 for 255 literals, 9 for the last and for the end.
    std::string tables(46, '\0');
    for (const int bit :
         {37, 40, 80, 337, 339, 341, 342, 344, 347, 348, 350, 351, 353, 356, 357, 359, 360, 362, 365, 366})
        tables[std::size_t(bit) / 8] = static_cast<char>(tables[std::size_t(bit) / 8] | 0x80 >> bit % 8);
    HandmadeEntry entry = packedFile(name, content, tables + content + std::string("\xFF\x80\0\0\0\0", 6));
    entry.header.version = 29;
    return entry;
}

/// An archive with `record` in the extra area of the header at `at`, which had none.
std::string withRecord(const std::string &bytes, std::size_t at, const ByteBuffer &record)
{
    const std::size_t length = *presentFormat.length(bytesOf(bytes.substr(at)));
    const std::string header = bytes.substr(at, length);
    const HeaderFrame frame = *presentFormat.frame(bytesOf(header));
    ByteBuffer body{static_cast<std::uint8_t>(frame.type), static_cast<std::uint8_t>(frame.flags | 1)};
    putVint(body, record.size() + 1);
    if (frame.flags & 2) putVint(body, frame.dataSize);
    putBytes(body, frame.fields);
    putVint(body, record.size());
    putBytes(body, record);
    ByteBuffer made;
    putFramed(made, body);
    return bytes.substr(0, at) + std::string(made.begin(), made.end()) + bytes.substr(at + length);
}

} // namespace

TEST_F(ForeignArchive, isReadWhateverElseItsHeadersSay)
{
    const std::string content(1000, 'A');
    const std::string bytes = handmadeArchive(
        {storedFile("file", content), encodedFile("empty", "", true), linkEntry("link", "file")});
    const std::map<std::string, std::string> expected = {
        {"file", content}, {"empty", ""}, {"link", "-> file"}};
    const std::size_t mainAt = signature.size();
    const std::size_t fileAt = mainAt + *presentFormat.length(bytesOf(bytes.substr(mainAt)));
    const auto record = [](ByteBuffer start, const std::vector<std::uint64_t> &numbers) {
        for (const std::uint64_t number : numbers)
            putNumber(start, number, 8);
        return start;
    };
    const ByteBuffer archiveName{2, 1, 5, 'a', '.', 'r', 'a', 'r'};
    const ByteBuffer times = record({3, 0x1D}, {1, 2}); // changed, accessed, nanoseconds, no last change
    const ByteBuffer windowsTimes =
        record({3, 0x0E}, {0x01D0'0000'0000'0001, 0x01D0'0000'0000'0002, 0x01D0'0000'0000'0003});
    // BLAKE2sp by another implementation: 8 leaves and a root of BLAKE2s.
    ByteBuffer hash =
        record({2, 0}, {0x24554964862af911u, 0x76bdf11ac6949b5bu, 0x6c720cb8da1820d7u, 0x155032dadc8eb00cu});
    for (const std::string &each :
         {bytes, withRecord(bytes, mainAt, archiveName), withRecord(bytes, fileAt, times),
          withRecord(bytes, fileAt, windowsTimes), withRecord(bytes, fileAt, hash)}) {
        const Unpacked unpacked = unpack({each});
        EXPECT_EQ(unpacked.messages, "");
        EXPECT_EQ(unpacked.entries, expected);
    }
    hash.back() ^= 1;
    EXPECT_EQ(unpack({withRecord(bytes, fileAt, hash)}).messages, "\nfile: checksum error\n");
}

TEST_F(ForeignArchive, thatIsBrokenIsSaidToBeOnceAndKeptBack)
{
    using Volumes = std::vector<std::string>;
    const std::string text = base64Text(6000);
    const Volumes others = handmadeSet({storedFile("other", text)}, {700, 1900}, presentFormat);
    const std::vector<std::pair<std::string, std::function<void(Volumes &)>>> cases = {
        {"Cannot find volume #3.rar", [](auto &set) { set.pop_back(); }},
        {"Unexpected end of archive #2.rar", [](auto &set) { set[1].resize(500); }},
        {"file: packed data checksum error in volume #2.rar", [](auto &set) { set[1][500] ^= 1; }},
        {"#2.rar is not a RAR archive", [](auto &set) { set[1].clear(); }},
        {"#2.rar is volume 3 of a set, where volume 2 was expected", [](auto &set) { set[1] = set[2]; }},
        {"#1.rar is not the first volume: start with the first one", [](auto &set) { set[0] = set[1]; }},
        {"#2.rar does not continue file: it belongs to another set", [&](auto &set) { set[1] = others[1]; }}};
    for (const HandmadeEntry &entry : {storedFile("file", text), encodedFile("file", text, true)})
        for (auto [message, spoil] : cases) {
            Volumes set = handmadeSet({encodedFile("first", text, false), entry}, {700, 1900}, presentFormat);
            spoil(set);
            const Unpacked unpacked = unpack(set);
            message.replace(message.find('#'), 1, temporary / "set.part");
            EXPECT_NE(unpacked.messages.find(message), std::string::npos) << unpacked.messages;
            EXPECT_EQ(std::ranges::count(unpacked.messages, '\n'), 2) << unpacked.messages;
            EXPECT_FALSE(unpacked.entries.contains("file"));
        }
}

TEST_F(ForeignArchive, ofTheOlderFormatIsReadAndChecked)
{
    const std::string text = base64Text(900);
    HandmadeEntry link = storedFile("folder\\link", "../target");
    link.header.mode = 0120777;
    const std::string wide("caf???\\z\0\x01\x01"
                           "caf\xE9\xAC\x3D\xD8\0\xDE\0",
                           21);
    std::map<std::string, std::string> expected = {{"caf\u01E9\U0001F600/", ""}};
    std::vector<HandmadeEntry> entries;
    for (const auto &[entry, name, content] :
         std::vector<std::tuple<HandmadeEntry, std::string, std::string>>{
             {storedFile("folder\\stored", text), "folder/stored", text},
             {link, "folder/link", "-> ../target"},
             {folderEntry("folder"), "folder/", ""},
             {olderPackedFile("packed", text + text), "packed", text + text},
             {storedFile("a\u0308", "NFD"), "a\u0308", "NFD"},
             {storedFile("\u00E4", "NFC"), "\u00E4", "NFC"},
             {storedFile("b\xE4", "latin"), "b\xE4", "latin"},
             {storedFile("empty", ""), "empty", ""},
             {storedFile(wide, "wide"), "caf\u01E9\U0001F600/z", "wide"}}) {
        entries.push_back(entry);
        expected[name] = content;
    }
    Unpacked unpacked = unpack({handmadeArchive(entries, olderFormat)});
    EXPECT_EQ(unpacked.messages, "");
    EXPECT_EQ(unpacked.entries, expected);
    for (const HandmadeEntry &entry : {storedFile("file", text), olderPackedFile("file", text)})
        for (const std::size_t cut : {1u, 100u, 400u}) {
            unpacked = unpack(handmadeSet({entry}, {cut, 2 * cut}, olderFormat));
            EXPECT_EQ(unpacked.messages, "");
            EXPECT_TRUE(unpacked.entries["file"] == text);
        }

    // A file that is damaged takes no other with it.
    HandmadeEntry damaged = storedFile("file", text);
    damaged.data[500] ^= 2;
    for (const HeaderFormat &format : {presentFormat, olderFormat}) {
        unpacked = unpack({handmadeArchive({damaged, storedFile("whole", "x")}, format)});
        EXPECT_EQ(unpacked.messages, "\nfile: checksum error\n");
        EXPECT_TRUE(unpacked.entries.size() == 1 && unpacked.entries.contains("whole"));
    }
    for (HandmadeEntry entry : {storedFile("file", text), olderPackedFile("file", text)}) {
        entry.header.encrypted = true;
        unpacked = unpack({handmadeArchive({entry, storedFile("clear", "x")}, olderFormat)});
        EXPECT_EQ(unpacked.messages, "\nfile is encrypted by the archiver, which is not supported\n");
        EXPECT_EQ(unpacked.entries, (std::map<std::string, std::string>{{"clear", "x"}}));
        entry.header.encrypted = false;
        entry.header.version = entry.header.stored() ? 29 : 20;
        unpacked = unpack({handmadeArchive({entry}, olderFormat)});
        EXPECT_EQ(unpacked.messages.find("only the archiver that made it") != std::string::npos,
                  !entry.header.stored());
        entry.header.version = 29;
        entry.data[500] ^= 2;
        unpacked = unpack({handmadeArchive({entry}, olderFormat)});
        EXPECT_TRUE(unpacked.messages.starts_with("\nfile: ") && unpacked.entries.empty());
    }
    EXPECT_TRUE(unpack({handmadeArchive({}, olderFormat, {.encrypted = true})})
                    .messages.ends_with("part1.rar is encrypted by the archiver, which is not supported\n"));
}
