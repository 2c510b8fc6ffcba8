#include "EntryName.h"
#include "HeaderFlags.h"
#include "Headers.h"

#include <algorithm>

namespace archiver {

namespace {

constexpr std::size_t longestName = 65535; // longer ones can't be created anywhere

std::string readName(ByteReader &reader)
{
    const std::uint64_t length = reader.vint();
    if (length > longestName) {
        reader.take(reader.remaining() + 1);
        return {};
    }
    const Bytes bytes = reader.take(length);
    return decodeName({reinterpret_cast<const char *>(bytes.data()), bytes.size()});
}

Timestamp fromWindowsTime(std::uint64_t ticks)
{
    const auto perSecond = static_cast<std::uint64_t>(windowsTicks);
    return {static_cast<std::int64_t>(ticks / perSecond) - windowsEpoch,
            static_cast<std::uint32_t>(ticks % perSecond) * 100};
}

void parseTimes(ByteReader reader, FileHeader &header)
{
    const std::uint64_t flags = reader.vint();
    if (!(flags & timeflag::modified)) return;
    Timestamp time;
    if (!(flags & timeflag::unixFormat)) {
        time = fromWindowsTime(reader.u64());
    } else {
        time.seconds = reader.u32();
        if (flags & timeflag::changed) reader.u32();
        if (flags & timeflag::accessed) reader.u32();
        if (flags & timeflag::nanoseconds) time.nanoseconds = reader.u32() & 0x3FFFFFFF;
    }
    if (reader.ok() && time.nanoseconds < 1'000'000'000) header.modified = time;
}

void parseHash(ByteReader reader, FileHeader &header)
{
    constexpr std::uint64_t blake2sp = 0;
    if (reader.vint() != blake2sp) return;
    FileHeader::Hash hash{};
    const Bytes bytes = reader.take(hash.size());
    if (!reader.ok()) return;
    std::ranges::copy(bytes, hash.begin());
    header.hash = hash;
}

bool parseLink(ByteReader reader, FileHeader &header)
{
    LinkTarget link;
    const std::uint64_t kind = reader.vint();
    link.kind = LinkTarget::Kind{kind};
    link.toFolder = reader.vint() & 1;
    link.path = readName(reader);
    if (!reader.ok() || kind < 1 || kind > 5) return false;
    header.link = std::move(link);
    return true;
}

bool parseExtra(Bytes extra, FileHeader &header)
{
    ByteReader reader(extra);
    while (reader.remaining() > 0) {
        const std::uint64_t size = reader.vint();
        ByteReader record(reader.take(size));
        const std::uint64_t kind = record.vint();
        if (!reader.ok() || !record.ok()) return false;
        if (kind == extrarecord::encryption) header.encrypted = true;
        if (kind == extrarecord::hash) parseHash(record, header);
        if (kind == extrarecord::times) parseTimes(record, header);
        if (kind == extrarecord::link && !parseLink(record, header)) return false;
    }
    return true;
}

} // namespace

std::optional<std::size_t> headerLength(Bytes start)
{
    ByteReader reader(start);
    reader.u32();
    const std::size_t before = reader.remaining();
    const std::uint64_t size = reader.vint();
    if (!reader.ok() || size == 0 || size > largestHeader) return std::nullopt;
    return 4 + (before - reader.remaining()) + static_cast<std::size_t>(size);
}

std::optional<HeaderFrame> parseFrame(Bytes header)
{
    ByteReader reader(header);
    if (reader.u32() != crc32(header.subspan(std::min<std::size_t>(header.size(), 4)))) return std::nullopt;
    reader.vint(); // its size, which headerLength() has read

    HeaderFrame frame;
    frame.type = HeaderType{reader.vint()};
    frame.flags = reader.vint();
    const std::uint64_t extraSize = frame.flags & headerflag::extra ? reader.vint() : 0;
    if (frame.flags & headerflag::data) frame.dataSize = reader.vint();
    if (!reader.ok() || extraSize > reader.remaining()) return std::nullopt;
    frame.fields = reader.take(reader.remaining() - extraSize);
    frame.extra = reader.take(extraSize);
    return frame;
}

std::optional<MainHeader> parseMainHeader(const HeaderFrame &frame)
{
    ByteReader reader(frame.fields);
    const std::uint64_t flags = reader.vint();
    MainHeader header;
    header.volume = flags & mainflag::volume;
    header.volumeIndex = flags & mainflag::number ? reader.vint() : 0;
    header.solid = flags & mainflag::solid;
    if (frame.type != HeaderType::Main || !reader.ok()) return std::nullopt;
    return header;
}

std::optional<bool> parseEndHeader(const HeaderFrame &frame)
{
    ByteReader reader(frame.fields);
    const bool more = reader.vint() & 1;
    if (frame.type != HeaderType::End || !reader.ok()) return std::nullopt;
    return more;
}

std::optional<FileHeader> parseFileHeader(const HeaderFrame &frame)
{
    ByteReader reader(frame.fields);
    FileHeader header;
    header.continuesBefore = frame.flags & headerflag::continuesBefore;
    header.continuesAfter = frame.flags & headerflag::continuesAfter;
    header.packedSize = frame.dataSize;

    const std::uint64_t flags = reader.vint();
    header.folder = flags & fileflag::folder;
    header.sizeUnknown = flags & fileflag::sizeUnknown;
    header.unpackedSize = reader.vint();
    header.mode = static_cast<std::uint32_t>(reader.vint());
    if (flags & fileflag::time) header.modified = Timestamp{reader.u32(), 0};
    if (flags & fileflag::crc) header.crc = reader.u32();
    const std::uint64_t compression = reader.vint();
    header.version = compression & 0x3F;
    header.solid = compression & 0x40;
    header.method = compression >> 7 & 7;
    header.dictionary = compression >> 10 & 0x1F;
    header.unixHost = reader.vint() == 1;
    header.name = readName(reader);
    if (!reader.ok() || !parseExtra(frame.extra, header)) return std::nullopt;
    return header;
}

} // namespace archiver
