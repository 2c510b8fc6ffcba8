#include "EntryName.h"
#include "HeaderFlags.h"
#include "Headers.h"

namespace archiver {

namespace {

constexpr std::size_t sizeWidth = 6;
static_assert(largestSize >> 7 * sizeWidth == 0);

void putRecord(ByteBuffer &into, const ByteBuffer &record)
{
    putVint(into, record.size());
    putBytes(into, record);
}

ByteBuffer timeRecord(const Timestamp &time)
{
    ByteBuffer record;
    putVint(record, extrarecord::times);
    if (time.seconds >= 0 && time.seconds <= 0xFFFFFFFF) {
        putVint(record, timeflag::unixFormat | timeflag::modified | timeflag::nanoseconds);
        putU32(record, static_cast<std::uint32_t>(time.seconds));
        putU32(record, time.nanoseconds);
        return record;
    }
    // The Unix form has 32 bits without a sign. The other one reaches from 1601 on, in steps of 100 ns.
    putVint(record, timeflag::modified);
    const std::int64_t seconds = std::max<std::int64_t>(time.seconds + windowsEpoch, 0);
    putU64(record, static_cast<std::uint64_t>(seconds * windowsTicks + time.nanoseconds / 100));
    return record;
}

ByteBuffer linkRecord(const LinkTarget &link)
{
    const std::string target = encodeName(link.path);
    ByteBuffer record;
    putVint(record, extrarecord::link);
    putVint(record, static_cast<std::uint64_t>(link.kind));
    putVint(record, link.toFolder ? 1 : 0);
    putVint(record, target.size());
    putText(record, target);
    return record;
}

ByteBuffer extraArea(const FileHeader &header)
{
    ByteBuffer extra;
    if (header.modified) putRecord(extra, timeRecord(*header.modified));
    if (header.link) putRecord(extra, linkRecord(*header.link));
    return extra;
}

void putFileFields(ByteBuffer &body, const FileHeader &header)
{
    const bool hasData = !header.folder && !header.link;
    putVint(body, (header.folder ? fileflag::folder : 0) | (hasData ? fileflag::crc : 0));
    putVint(body, header.unpackedSize, hasData ? sizeWidth : 1);
    putVint(body, header.mode);
    if (hasData) putU32(body, header.crc.value_or(0));
    putVint(body, header.version | (header.solid ? 0x40u : 0u) | header.method << 7 | header.dictionary << 10,
            2);
    putVint(body, header.unixHost ? 1 : 0);
    const std::string name = encodeName(header.name);
    putVint(body, name.size());
    putText(body, name);
}

} // namespace

void putFramed(ByteBuffer &into, const ByteBuffer &body)
{
    ByteBuffer checked;
    putVint(checked, body.size());
    putBytes(checked, body);
    putU32(into, crc32(checked));
    putBytes(into, checked);
}

void putMainHeader(ByteBuffer &into, const MainHeader &header)
{
    ByteBuffer body;
    putVint(body, static_cast<std::uint64_t>(HeaderType::Main));
    putVint(body, 0);
    const std::uint64_t index = header.volumeIndex.value_or(0);
    putVint(body, (header.volume ? mainflag::volume : 0) | (index > 0 ? mainflag::number : 0) |
                      (header.solid ? mainflag::solid : 0));
    if (index > 0) putVint(body, index);
    putFramed(into, body);
}

void putFileHeader(ByteBuffer &into, const FileHeader &header)
{
    const ByteBuffer extra = extraArea(header);
    ByteBuffer body;
    putVint(body, static_cast<std::uint64_t>(HeaderType::File));
    // Data of no size is declared as well for folders and links: some readers reject a file header without.
    putVint(body, (extra.empty() ? 0 : headerflag::extra) | headerflag::data |
                      (header.continuesBefore ? headerflag::continuesBefore : 0) |
                      (header.continuesAfter ? headerflag::continuesAfter : 0));
    if (!extra.empty()) putVint(body, extra.size());
    putVint(body, header.packedSize, header.folder || header.link ? 1 : sizeWidth);
    putFileFields(body, header);
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

} // namespace archiver
