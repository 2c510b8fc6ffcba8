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
