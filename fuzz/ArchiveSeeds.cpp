#include "ArchiveSeeds.h"

#include "ArchiveInput.h"
#include "HuffmanEncoder.h"
#include "TemporaryFolder.h"
#include "TokenStream.h"

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

/// Packed with everything that there is: matches, old ones, filters, blocks with tables and without.
TokenStream tokens(const std::string &before)
{
    TokenStream stream(before);
    for (const unsigned kind : {0u, 1u, 2u, 3u}) {
        if (kind % 2 == 0) stream.codes(kind ? 9 : 13);
        stream.filter(3, 40, kind, 2);
        for (const char byte : std::string("\xE8 some \0 text\xEB", 15))
            stream.literal(byte);
        stream.match(7, 6);
        stream.match(1, 300);
        stream.same();
        stream.again(1, 9);
        stream.endBlock(false);
    }
    stream.match(600, 12);
    stream.endBlock(true);
    return stream;
}

Entry tokenFile(const std::string &name, const TokenStream &stream, bool solid)
{
    Entry entry = file(name, ByteBuffer(stream.content().size()));
    entry.header.crc.reset();
    entry.data.assign(stream.packed().begin(), stream.packed().end());
    entry.header.packedSize = entry.data.size();
    entry.header.method = 3;
    entry.header.solid = solid;
    return entry;
}

/// As the target for blocks reads them.
ByteBuffer bareBlocks(std::string packed, std::uint8_t options)
{
    ByteBuffer blocks{options};
    while (packed.size() > 5) {
        const std::size_t size =
            static_cast<unsigned char>(packed[2]) | std::size_t(static_cast<unsigned char>(packed[3])) << 8;
        packed.erase(1, 1).erase(3, 1);
        putText(blocks, packed.substr(0, 3 + size));
        packed.erase(0, 3 + size);
    }
    return blocks;
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

ByteBuffer archive(const std::vector<Entry> &entries, const HeaderFormat &format = presentFormat,
                   const MainHeader &main = {}, bool moreVolumes = false)
{
    ByteBuffer bytes(format.signature.begin(), format.signature.end());
    format.putMain(bytes, main);
    for (const Entry &entry : entries) {
        format.putFile(bytes, entry.header);
        putBytes(bytes, entry.data);
    }
    format.putEnd(bytes, moreVolumes);
    return bytes;
}

/// The entry is cut in two.
std::vector<ByteBuffer> volumes(const Entry &entry, const HeaderFormat &format)
{
    Entry first = entry;
    Entry second = entry;
    first.data.resize(entry.data.size() / 3);
    second.data.erase(second.data.begin(), second.data.begin() + std::ptrdiff_t(first.data.size()));
    first.header.packedSize = first.data.size();
    second.header.packedSize = second.data.size();
    first.header.crc = crc32(first.data);
    first.header.continuesAfter = second.header.continuesBefore = true;
    return {archive({first}, format, {.volume = true, .volumeIndex = 0}, true),
            archive({second}, format, {.volume = true, .volumeIndex = 1})};
}

std::vector<std::vector<ByteBuffer>> archives()
{
    Entry solid = file("solid", text(300), true);
    solid.header.solid = true;
    Entry windows = file("windows", text(10));
    windows.header.unixHost = false;
    Entry older = file("older", text(300), true);
    older.header.version = 29;
    const std::string wide("caf?\\z\0\x01\x01"
                           "caf\xE9\xAC\x3D\xD8\0\xDE\0",
                           19);
    Diagnostics diagnostics;
    return {
        {archive({file("a/b/c", text(40)), folder("a/b"), file("empty", {}), file("caf\xE9", text(2))})},
        {archive({file("packed", text(900), true), windows, solid})},
        {archive({file("old", text(9)), link("hard", Kind::Hard, "old"), link("copy", Kind::Copy, "old")})},
        {archive({link("door", Kind::Symbolic, ".."), file("door/guard", text(3)), folder("door/new"),
                  link("gate", Kind::Junction, "..\\guard"), link("taken", Kind::Copy, "gate")})},
        {archive({file("../guard", text(3)), file("/guard", text(3)), folder("../new")})},
        {archive({file("folder\\old", text(20)), link("empty", Kind::Hard, ""), older, folder("folder"),
                  file(wide, text(5))},
                 olderFormat)},
        {archive({tokenFile("first", tokens({}), false), file("between", text(9)),
                  tokenFile("second", tokens(tokens({}).window()), true)},
                 presentFormat, {.solid = true})},
        volumes(tokenFile("token", tokens({}), false), presentFormat),
        volumes(solid, presentFormat),
        volumes(older, olderFormat),
        writeVolumes(text(900), {.method = 0}, 400, diagnostics),
        writeVolumes(text(1500), {.method = 5}, 600, diagnostics),
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
    ByteBuffer entries = bareBlocks(tokens({}).packed(), 2);
    putBytes(entries, bareBlocks(tokens(tokens({}).window()).packed(), 1));
    add(InputKind::Blocks, {}, entries);
    add(InputKind::RoundTrip, {0, 0}, text(700));
    add(InputKind::RoundTrip, {0xFF, 0}, text(3000)); // more than a block
    add(InputKind::RoundTrip, {0xFE, 200}, text(3000));
    add(InputKind::Name, {}, text(9));
    for (std::size_t number = 0; number < seeds.size(); ++number)
        writeFile(folder / ("seed" + std::to_string(number)), {seeds[number].begin(), seeds[number].end()});
}
