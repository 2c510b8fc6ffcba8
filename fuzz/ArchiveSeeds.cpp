#include "ArchiveSeeds.h"

#include "ArchiveInput.h"
#include "HuffmanEncoder.h"
#include "TemporaryFolder.h"

namespace fs = std::filesystem;
using namespace archiver;
using Kind = LinkTarget::Kind;

namespace {

struct Entry {
    FileHeader header;
    ByteBuffer data;
};

ByteBuffer text(std::size_t size)
{
    ByteBuffer text(size);
    for (std::size_t index = 0; index < size; ++index)
        text[index] = static_cast<std::uint8_t>("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdef\n"[index * index % 33]);
    return text;
}

ByteBuffer packedBlocks(Bytes content)
{
    HuffmanEncoder encoder;
    ByteBuffer blocks;
    putBytes(blocks, encoder.encode(content.first(content.size() / 2), false));
    putBytes(blocks, encoder.encode(content.subspan(content.size() / 2), true));
    return blocks;
}

Entry file(const std::string &name, const ByteBuffer &content, bool packed = false)
{
    Entry entry;
    entry.header.name = name;
    entry.header.mode = 0100644;
    entry.header.unpackedSize = content.size();
    entry.header.crc = crc32(content);
    entry.header.modified = Timestamp{1'000'000'000, 5};
    entry.data = packed ? packedBlocks(content) : content;
    entry.header.packedSize = entry.data.size();
    if (packed) entry.header.method = HuffmanEncoder::method;
    if (packed) entry.header.dictionary = HuffmanEncoder::dictionary;
    return entry;
}

Entry folder(const std::string &name)
{
    Entry entry = file(name, {});
    entry.header.folder = true;
    entry.header.mode = 040700;
    entry.header.modified = Timestamp{-5, 0};
    return entry;
}

Entry link(const std::string &name, Kind kind, const std::string &target)
{
    Entry entry = file(name, {});
    entry.header.link = LinkTarget{kind, false, target};
    return entry;
}

ByteBuffer archive(const std::vector<Entry> &entries)
{
    ByteBuffer bytes(signature.begin(), signature.end());
    putMainHeader(bytes, {});
    for (const Entry &entry : entries) {
        putFileHeader(bytes, entry.header);
        putBytes(bytes, entry.data);
    }
    putEndHeader(bytes, false);
    return bytes;
}

/// Of the format before, with one stored file.
ByteBuffer olderArchive()
{
    const std::string name = "folder\\old";
    const ByteBuffer content = text(20);
    const auto put = [](ByteBuffer &into, ByteBuffer header) {
        const std::uint32_t crc = crc32(Bytes(header));
        into.push_back(static_cast<std::uint8_t>(crc));
        into.push_back(static_cast<std::uint8_t>(crc >> 8));
        putBytes(into, header);
    };
    ByteBuffer bytes(oldSignature.begin(), oldSignature.end());
    put(bytes, {0x73, 0, 0, 13, 0, 0, 0, 0, 0, 0, 0});
    ByteBuffer header{0x74, 0x00, 0x80, static_cast<std::uint8_t>(32 + name.size()), 0};
    putU32(header, static_cast<std::uint32_t>(content.size()));
    putU32(header, static_cast<std::uint32_t>(content.size()));
    header.push_back(3); // Unix
    putU32(header, crc32(content));
    putU32(header, 0x3C21'0000);
    putBytes(header, ByteBuffer{20, 0x30, static_cast<std::uint8_t>(name.size()), 0}); // stored
    putU32(header, 0100644);
    putText(header, name);
    put(bytes, header);
    putBytes(bytes, content);
    put(bytes, {0x7B, 0, 0x40, 7, 0});
    return bytes;
}

std::vector<std::vector<ByteBuffer>> archives()
{
    Entry solid = file("solid", text(300), true);
    solid.header.solid = true;
    Entry windows = file("windows", text(10));
    windows.header.unixHost = false;
    Diagnostics diagnostics;
    return {
        {archive({file("a/b/c", text(40)), folder("a/b"), file("empty", {}), file("caf\xE9", text(2))})},
        {archive({file("packed", text(900), true), windows, solid})},
        {archive({file("old", text(9)), link("hard", Kind::Hard, "old"), link("copy", Kind::Copy, "old")})},
        {archive({link("door", Kind::Symbolic, ".."), file("door/guard", text(3)), folder("door/new"),
                  link("gate", Kind::Junction, "..\\guard"), link("taken", Kind::Copy, "gate")})},
        {archive({file("../guard", text(3)), file("/guard", text(3)), folder("../new")})},
        {olderArchive()},
        writeVolumes(text(900), ArchiveWriter::Packing::Store, 400, diagnostics),
        writeVolumes(text(1500), ArchiveWriter::Packing::Pack, 600, diagnostics),
    };
}

} // namespace

void writeSeeds(const fs::path &folder)
{
    std::vector<ByteBuffer> seeds;
    for (const std::vector<ByteBuffer> &volumes : archives()) {
        seeds.push_back(ArchiveInput{0, volumes}.serialize(InputKind::InMemory));
        for (const std::uint8_t flags : {std::uint8_t{0}, ArchiveInput::flat, ArchiveInput::oldNames})
            seeds.push_back(ArchiveInput{flags, volumes}.serialize(InputKind::OnDisk));
    }
    const auto add = [&seeds](InputKind kind, const ByteBuffer &options, const ByteBuffer &content) {
        seeds.push_back({static_cast<std::uint8_t>(kind)});
        putBytes(seeds.back(), options);
        putBytes(seeds.back(), content);
    };
    add(InputKind::Blocks, {}, packedBlocks(text(700)));
    add(InputKind::RoundTrip, {0, 0}, text(700));
    add(InputKind::RoundTrip, {0xFF, 0}, text(3000)); // more than a block
    add(InputKind::RoundTrip, {0xFE, 200}, text(3000));
    add(InputKind::Name, {}, text(9));
    for (std::size_t number = 0; number < seeds.size(); ++number)
        writeFile(folder / ("seed" + std::to_string(number)), {seeds[number].begin(), seeds[number].end()});
}
