#include "ArchiveProcessor.h"
#include "HuffmanEncoder.h"
#include "Rar.h"

#include <map>

using namespace archiver;

namespace {

/// What comes out of an archive: contents by name, links with an arrow, and what is said.
struct Unpacked final : EntryReceiver, ContentSink {
    std::map<std::string, std::string> entries;
    std::string messages;
    std::string name;
    std::string content;

    void folder(const FileHeader &header) override { entries[header.name + "/"]; }
    void link(const FileHeader &header) override { entries[header.name] = "-> " + header.link->path; }
    ContentSink *beginFile(const FileHeader &header) override
    {
        name = header.name;
        content.clear();
        return this;
    }
    void finishFile(const FileHeader &) override { entries[name] = content; }
    void abandonFile() override {}
    bool write(Bytes bytes) override
    {
        content.append(bytes.begin(), bytes.end());
        return true;
    }
};

class ForeignArchive : public ArchiverTest {
protected:
    Unpacked unpack(const std::vector<std::string> &volumes)
    {
        for (std::size_t index = 0; index < volumes.size(); ++index)
            writeFile(temporary / ("set.part" + std::to_string(index + 1) + ".rar"), volumes[index]);
        Unpacked unpacked;
        Diagnostics diagnostics(unpacked.messages);
        processArchive(temporary / "set.part1.rar", unpacked, diagnostics);
        return unpacked;
    }
};

/// Packed in blocks of that many bytes. What says that it shares the dictionary of the entry before is
/// nothing that the own reader unpacks.
HandmadeEntry packedFile(const std::string &name, const std::string &content, bool sharesDictionary,
                         std::size_t block = HuffmanEncoder::blockInput)
{
    HuffmanEncoder encoder;
    HandmadeEntry entry = storedFile(name, content);
    entry.data.clear();
    for (std::size_t at = 0; at < content.size(); at += block) {
        const Bytes packed = encoder.encode(bytesOf(content.substr(at, block)), at + block >= content.size());
        entry.data.append(packed.begin(), packed.end());
    }
    entry.header.packedSize = entry.data.size();
    entry.header.method = HuffmanEncoder::method;
    entry.header.dictionary = HuffmanEncoder::dictionary;
    entry.header.solid = sharesDictionary;
    return entry;
}

/// Packed in the older format, each byte but 255 as a code of eight bits.
HandmadeEntry olderPackedFile(const std::string &name, const std::string &content)
{
    std::vector<bool> bits;
    const auto put = [&bits](unsigned value, unsigned count) {
        while (count-- > 0)
            bits.push_back(value >> count & 1);
    };
    put(0, 2);                                       // no context model, new tables
    for (unsigned length = 0; length < 20; ++length) // as codes: 8 is 0, 9 is 10, some zeros are 11
        put(length == 8 ? 1 : length == 9 || length == 19 ? 2 : 0, 4);
    for (unsigned literal = 0; literal < 255; ++literal)
        put(0, 1);
    put(0b1010, 4);
    put(3, 2), put(74 - 11, 7), put(3, 2), put(73 - 11, 7);
    for (const char byte : content)
        put(static_cast<unsigned char>(byte), 8);
    put(0x1FF, 9); // the end
    put(0, 31);
    HandmadeEntry entry = storedFile(name, content);
    entry.data.assign(bits.size() / 8, '\0');
    for (std::size_t bit = 0; bit < entry.data.size() * 8; ++bit)
        if (bits[bit]) entry.data[bit / 8] = static_cast<char>(entry.data[bit / 8] | 0x80 >> bit % 8);
    entry.header.packedSize = entry.data.size();
    entry.header.method = 3;
    entry.header.version = 29;
    return entry;
}

/// An archive with `record` in the extra area of the header at `at`, which had none.
std::string withRecord(const std::string &bytes, std::size_t at, const ByteBuffer &record)
{
    const std::size_t length = *headerLength(bytesOf(bytes.substr(at)));
    const std::string header = bytes.substr(at, length);
    const HeaderFrame frame = *parseFrame(bytesOf(header));
    ByteBuffer body{static_cast<std::uint8_t>(frame.type), static_cast<std::uint8_t>(frame.flags | 1)};
    putVint(body, record.size() + 1);
    if (frame.flags & 2) putVint(body, frame.dataSize);
    putBytes(body, frame.fields);
    putVint(body, record.size());
    putBytes(body, record);
    ByteBuffer checked;
    putVint(checked, body.size());
    putBytes(checked, body);
    ByteBuffer made;
    putU32(made, crc32(checked));
    putBytes(made, checked);
    return bytes.substr(0, at) + std::string(made.begin(), made.end()) + bytes.substr(at + length);
}

} // namespace

TEST_F(ForeignArchive, thatIsValidComesBack)
{
    const std::string text = base64Text(5000);
    const std::string more = base64Text(100'000);
    HandmadeEntry empty = packedFile("empty", "", true);
    const std::string solid = handmadeArchive(
        {packedFile("before", text, false), storedFile("stored", ""), empty, linkEntry("link", "before"),
         packedFile("middle", more, true), packedFile("after", text + "x", true), storedFile("last", "2"),
         packedFile("alone", text, false), packedFile("end", more, true)},
        presentFormat, {.solid = true});
    const std::map<std::string, std::string> expected = {
        {"before", text},      {"stored", ""}, {"empty", ""},   {"link", "-> before"}, {"middle", more},
        {"after", text + "x"}, {"last", "2"},  {"alone", text}, {"end", more}};
    const std::size_t mainAt = signature.size();
    const std::size_t fileAt = mainAt + *headerLength(bytesOf(solid.substr(mainAt)));
    const ByteBuffer archiveName{2, 1, 5, 'a', '.', 'r', 'a', 'r'};
    ByteBuffer times{3, 0x1D}; // changed, accessed, nanoseconds, no last change
    for (std::uint32_t time = 1; time <= 4; ++time)
        putU32(times, time);
    ByteBuffer windowsTimes{3, 0x0E};
    for (std::uint64_t time = 1; time <= 3; ++time)
        putU64(windowsTimes, 0x01D0'0000'0000'0000 + time);
    for (const std::string &bytes :
         {solid, withRecord(solid, mainAt, archiveName), withRecord(solid, fileAt, times),
          withRecord(solid, fileAt, windowsTimes)}) {
        const Unpacked unpacked = unpack({bytes});
        EXPECT_EQ(unpacked.messages, "");
        EXPECT_TRUE(unpacked.entries == expected);
    }
}

TEST_F(ForeignArchive, isReadWhereverItsVolumesEnd)
{
    constexpr std::size_t block = 2000;
    const std::string content = base64Text(3 * block);
    const HandmadeEntry first = packedFile("first", content.substr(0, block), false);
    const HandmadeEntry entry = packedFile("file", content, true, block);
    const std::size_t header = packedFile("", content.substr(0, block), true, block).data.size();
    for (std::size_t cut = header - 3; cut < header + 9; ++cut) {
        const Unpacked unpacked = unpack(handmadeSet({first, entry}, {cut, 2 * cut}, presentFormat));
        EXPECT_EQ(unpacked.messages, "") << cut - header;
        EXPECT_TRUE(unpacked.entries.contains("file") && unpacked.entries.at("file") == content);
    }
    // Each fault is told once, and nothing comes out.
    std::vector<std::string> volumes = handmadeSet({first, entry}, {700, 1900}, presentFormat);
    const auto expectFault = [&](const std::string &message) {
        const Unpacked unpacked = unpack(volumes);
        EXPECT_EQ(unpacked.messages.substr(unpacked.messages.size() - message.size()), message);
        EXPECT_EQ(unpacked.entries.size(), 1u);
    };
    std::swap(volumes[1], volumes[2]);
    expectFault("part2.rar is volume 3 of a set, where volume 2 was expected\n");
    std::swap(volumes[1], volumes[2]);
    volumes[1][500] ^= 1;
    expectFault(temporary / "set.part2.rar\n");
}

TEST_F(ForeignArchive, ofTheOlderFormatIsReadAndChecked)
{
    const std::string text = base64Text(900);
    HandmadeEntry link = storedFile("folder\\link", "../target");
    link.header.mode = 0120777;
    const std::string wide("caf???\\z\0\x01\x01"
                           "caf\xE9\xAC\x3D\xD8\0\xDE\0",
                           21);
    const std::map<std::string, std::string> expected = {
        {"folder/", ""},         {"folder/stored", text}, {"folder/link", "-> ../target"},
        {"packed", text + text}, {"a\u0308", "NFD"},      {"\u00E4", "NFC"},
        {"b\xE4", "latin"},      {"empty", ""},           {"caf\u01E9\U0001F600/z", "wide"}};
    const std::vector<HandmadeEntry> entries = {storedFile("folder\\stored", text),
                                                link,
                                                folderEntry("folder"),
                                                olderPackedFile("packed", text + text),
                                                storedFile("a\u0308", "NFD"),
                                                storedFile("\u00E4", "NFC"),
                                                storedFile("b\xE4", "latin"),
                                                storedFile("empty", ""),
                                                storedFile(wide, "wide")};
    Unpacked unpacked = unpack({handmadeArchive(entries, olderFormat)});
    EXPECT_EQ(unpacked.messages, "");
    EXPECT_TRUE(unpacked.entries == expected);
    for (const HandmadeEntry &entry : {storedFile("file", text), olderPackedFile("file", text)})
        for (const std::size_t cut : {1u, 100u, 400u}) {
            unpacked = unpack(handmadeSet({entry}, {cut, 2 * cut}, olderFormat));
            EXPECT_EQ(unpacked.messages, "");
            EXPECT_TRUE(unpacked.entries["file"] == text);
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
