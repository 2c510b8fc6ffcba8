#include "Headers.h"

#include "EntryName.h"

#include <algorithm>

namespace archiver {

namespace {

// The bits and numbers of the headers' fields: flags of all headers, of the main and of a file's one, kinds
// of extra records, and flags of the one with times.
constexpr std::uint64_t hasExtra = 0x01;
constexpr std::uint64_t hasData = 0x02;
constexpr std::uint64_t continuesBefore = 0x08;
constexpr std::uint64_t continuesAfter = 0x10;

constexpr std::uint64_t mainVolume = 0x01;
constexpr std::uint64_t mainNumber = 0x02;
constexpr std::uint64_t mainSolid = 0x04;

constexpr std::uint64_t fileFolder = 0x01;
constexpr std::uint64_t fileTime = 0x02;
constexpr std::uint64_t fileCrc = 0x04;
constexpr std::uint64_t fileSizeUnknown = 0x08;

constexpr std::uint64_t encryptionRecord = 1;
constexpr std::uint64_t hashRecord = 2;
constexpr std::uint64_t timesRecord = 3;
constexpr std::uint64_t linkRecord = 5;

constexpr std::uint64_t unixTimes = 0x01;
constexpr std::uint64_t modifiedTime = 0x02;
constexpr std::uint64_t changedTime = 0x04;
constexpr std::uint64_t accessedTime = 0x08;
constexpr std::uint64_t nanoseconds = 0x10;

/// Seconds from 1601, where Windows times start (in steps of 100 ns), to 1970.
constexpr std::int64_t windowsEpoch = 11'644'473'600;
constexpr std::int64_t windowsTicks = 10'000'000; ///< a second

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

void parseTimes(ByteReader reader, FileHeader &header)
{
    const std::uint64_t flags = reader.vint();
    if (!(flags & modifiedTime)) return;
    Timestamp time;
    if (!(flags & unixTimes)) {
        const std::uint64_t ticks = reader.u64();
        const auto perSecond = static_cast<std::uint64_t>(windowsTicks);
        time.seconds = static_cast<std::int64_t>(ticks / perSecond) - windowsEpoch;
        time.nanoseconds = static_cast<std::uint32_t>(ticks % perSecond) * 100;
    } else {
        time.seconds = reader.u32();
        if (flags & changedTime) reader.u32();
        if (flags & accessedTime) reader.u32();
        if (flags & nanoseconds) time.nanoseconds = reader.u32() & 0x3FFFFFFF;
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
        if (kind == encryptionRecord) header.encrypted = true;
        if (kind == hashRecord) parseHash(record, header);
        if (kind == timesRecord) parseTimes(record, header);
        if (kind == linkRecord && !parseLink(record, header)) return false;
    }
    return true;
}

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
    const std::uint64_t extraSize = frame.flags & hasExtra ? reader.vint() : 0;
    if (frame.flags & hasData) frame.dataSize = reader.vint();
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
    header.volume = flags & mainVolume;
    header.volumeIndex = flags & mainNumber ? reader.vint() : 0;
    header.solid = flags & mainSolid;
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
    header.continuesBefore = frame.flags & continuesBefore;
    header.continuesAfter = frame.flags & continuesAfter;
    header.packedSize = frame.dataSize;

    const std::uint64_t flags = reader.vint();
    header.folder = flags & fileFolder;
    header.sizeUnknown = flags & fileSizeUnknown;
    header.unpackedSize = reader.vint();
    header.mode = static_cast<std::uint32_t>(reader.vint());
    if (flags & fileTime) header.modified = Timestamp{reader.u32(), 0};
    if (flags & fileCrc) header.crc = reader.u32();
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

constexpr std::size_t sizeWidth = 6;
static_assert(largestSize >> 7 * sizeWidth == 0);

void putSized(ByteBuffer &into, const ByteBuffer &bytes)
{
    putVint(into, bytes.size());
    putBytes(into, bytes);
}

void putName(ByteBuffer &into, const std::string &name)
{
    const std::string stored = encodeName(name);
    putVint(into, stored.size());
    putText(into, stored);
}

ByteBuffer makeTimeRecord(const Timestamp &time)
{
    ByteBuffer record;
    putVint(record, timesRecord);
    if (time.seconds >= 0 && time.seconds <= 0xFFFFFFFF) {
        putVint(record, unixTimes | modifiedTime | nanoseconds);
        putNumber(record, static_cast<std::uint64_t>(time.seconds), 4);
        putNumber(record, time.nanoseconds, 4);
        return record;
    }
    // The Unix form has 32 bits without a sign. The other one reaches from 1601 on, in steps of 100 ns.
    putVint(record, modifiedTime);
    const std::int64_t seconds = std::max<std::int64_t>(time.seconds + windowsEpoch, 0);
    putNumber(record, static_cast<std::uint64_t>(seconds * windowsTicks + time.nanoseconds / 100), 8);
    return record;
}

ByteBuffer makeLinkRecord(const LinkTarget &link)
{
    ByteBuffer record;
    putVint(record, linkRecord);
    putVint(record, static_cast<std::uint64_t>(link.kind));
    putVint(record, link.toFolder ? 1 : 0);
    putName(record, link.path);
    return record;
}

void putMainHeader(ByteBuffer &into, const MainHeader &header)
{
    ByteBuffer body;
    putVint(body, static_cast<std::uint64_t>(HeaderType::Main));
    putVint(body, 0);
    const std::uint64_t index = header.volumeIndex.value_or(0);
    putVint(body,
            (header.volume ? mainVolume : 0) | (index > 0 ? mainNumber : 0) | (header.solid ? mainSolid : 0));
    if (index > 0) putVint(body, index);
    putFramed(into, body);
}

void putFileHeader(ByteBuffer &into, const FileHeader &header)
{
    ByteBuffer extra;
    if (header.modified) putSized(extra, makeTimeRecord(*header.modified));
    if (header.link) putSized(extra, makeLinkRecord(*header.link));
    ByteBuffer body;
    putVint(body, static_cast<std::uint64_t>(HeaderType::File));
    // Data of no size is declared as well for folders and links: some readers reject a file header without.
    putVint(body, (extra.empty() ? 0 : hasExtra) | hasData | (header.continuesBefore ? continuesBefore : 0) |
                      (header.continuesAfter ? continuesAfter : 0));
    if (!extra.empty()) putVint(body, extra.size());
    putVint(body, header.packedSize, header.folder || header.link ? 1 : sizeWidth);
    const bool isFile = !header.folder && !header.link;
    putVint(body, (header.folder ? fileFolder : 0) | (isFile ? fileCrc : 0));
    putVint(body, header.unpackedSize, isFile ? sizeWidth : 1);
    putVint(body, header.mode);
    if (isFile) putNumber(body, header.crc.value_or(0), 4);
    putVint(body, header.version | (header.solid ? 0x40u : 0u) | header.method << 7 | header.dictionary << 10,
            2);
    putVint(body, header.unixHost ? 1 : 0);
    putName(body, header.name);
    putBytes(body, extra);
    putFramed(into, body);
}

void putEndHeader(ByteBuffer &into, bool moreVolumes)
{
    ByteBuffer body;
    putVint(body, static_cast<std::uint64_t>(HeaderType::End));
    putVint(body, 0);
    putVint(body, moreVolumes ? 1 : 0);
    putFramed(into, body);
}

} // namespace

void putFramed(ByteBuffer &into, const ByteBuffer &body)
{
    ByteBuffer checked;
    putSized(checked, body);
    putNumber(into, crc32(checked), 4);
    putBytes(into, checked);
}

constinit const HeaderFormat presentFormat{signature,       headerLength,    parseFrame,
                                           parseMainHeader, parseFileHeader, parseEndHeader,
                                           putMainHeader,   putFileHeader,   putEndHeader};

} // namespace archiver
