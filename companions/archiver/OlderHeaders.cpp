#include "EntryName.h"
#include "Headers.h"

#include <algorithm>
#include <ctime>

// The headers of the older format: 16 bits of a CRC32, type, flags and size, then the type's fields, and in
// all that have data behind them its size.

namespace archiver {

namespace {

constexpr std::size_t commonSize = 7; ///< of what all headers begin with

constexpr std::uint8_t mainType = 0x73;
constexpr std::uint8_t fileType = 0x74;
constexpr std::uint8_t serviceType = 0x7A;
constexpr std::uint8_t endType = 0x7B;

namespace oldflag {
constexpr std::uint64_t hasData = 0x8000;
constexpr std::uint64_t volume = 0x01; ///< main header
constexpr std::uint64_t mainSolid = 0x08;
constexpr std::uint64_t headersEncrypted = 0x80;
constexpr std::uint64_t firstVolume = 0x100;
constexpr std::uint64_t moreVolumes = 0x01;     ///< end header
constexpr std::uint64_t continuesBefore = 0x01; ///< file header
constexpr std::uint64_t continuesAfter = 0x02;
constexpr std::uint64_t encrypted = 0x04;
constexpr std::uint64_t solid = 0x10;
constexpr std::uint64_t largeSizes = 0x100;
constexpr std::uint64_t wideName = 0x200;
constexpr std::uint64_t salt = 0x400;
constexpr std::uint64_t times = 0x1000;
constexpr unsigned dictionaryShift = 5;
constexpr unsigned folder = 7; ///< in place of a dictionary's size
} // namespace oldflag

constexpr std::uint8_t storing = 0x30; ///< the first of the methods
constexpr std::uint8_t unixHost = 3;
constexpr std::uint8_t beHost = 5;
constexpr std::uint32_t windowsFolder = 0x10;

std::uint16_t shortCrc(Bytes bytes) { return static_cast<std::uint16_t>(crc32(bytes)); }

std::optional<std::size_t> oldLength(Bytes start)
{
    ByteReader reader(start);
    reader.take(5);
    const std::size_t length = reader.u16();
    if (!reader.ok() || length < commonSize) return std::nullopt;
    return length;
}

HeaderType typeOf(std::uint8_t type)
{
    if (type == mainType) return HeaderType::Main;
    if (type == endType) return HeaderType::End;
    return type == fileType ? HeaderType::File : HeaderType::Service;
}

std::optional<HeaderFrame> oldFrame(Bytes bytes)
{
    ByteReader reader(bytes);
    const std::uint16_t crc = reader.u16();
    const std::uint8_t type = reader.u8();
    HeaderFrame frame;
    frame.type = typeOf(type);
    frame.flags = reader.u16();
    reader.u16(); // its size, which oldLength() has read
    if (!reader.ok() || crc != shortCrc(bytes.subspan(2))) return std::nullopt;
    frame.fields = reader.take(reader.remaining());

    ByteReader fields(frame.fields);
    const bool isFile = type == fileType || type == serviceType;
    if (isFile || frame.flags & oldflag::hasData) frame.dataSize = fields.u32();
    if (isFile && frame.flags & oldflag::largeSizes) {
        fields.take(21);
        frame.dataSize |= std::uint64_t{fields.u32()} << 32;
    }
    return fields.ok() ? std::optional(frame) : std::nullopt;
}

std::optional<MainHeader> oldMainHeader(const HeaderFrame &frame)
{
    if (frame.type != HeaderType::Main) return std::nullopt;
    MainHeader header;
    header.volume = frame.flags & oldflag::volume;
    if (!header.volume || frame.flags & oldflag::firstVolume) header.volumeIndex = 0;
    header.solid = frame.flags & oldflag::mainSolid;
    header.encrypted = frame.flags & oldflag::headersEncrypted;
    return header;
}

std::optional<bool> oldEndHeader(const HeaderFrame &frame)
{
    if (frame.type != HeaderType::End) return std::nullopt;
    return frame.flags & oldflag::moreVolumes;
}

void putUtf8(std::string &text, std::uint32_t point)
{
    const unsigned more = point < 0x80      ? 0
                          : point < 0x800   ? 1
                          : point < 0x10000 ? 2
                                            : 3; // bytes behind the first
    const std::uint32_t length = more == 0 ? 0 : 0xFF00u >> (more + 1) & 0xFF;
    text += static_cast<char>(length | point >> 6 * more);
    for (unsigned left = more; left-- > 0;)
        text += static_cast<char>(0x80 | (point >> 6 * left & 0x3F));
}

std::string utf8Of(const std::vector<std::uint16_t> &units)
{
    std::string text;
    for (std::size_t index = 0; index < units.size(); ++index) {
        std::uint32_t point = units[index];
        const std::uint32_t next = index + 1 < units.size() ? units[index + 1] : 0u;
        if (point >> 10 == 0xD800 >> 10 && next >> 10 == 0xDC00 >> 10) {
            point = 0x10000 + ((point & 0x3FF) << 10) + (next & 0x3FF);
            ++index;
        }
        putUtf8(text, point);
    }
    return text;
}

/// A name in 16-bit units: `narrow` has the low bytes of most of them, `codes` tells how to make them whole,
/// two bits a step.
std::optional<std::string> wideName(Bytes narrow, Bytes codes)
{
    ByteReader reader(codes);
    const std::uint16_t high = static_cast<std::uint16_t>(reader.u8() << 8);
    std::vector<std::uint16_t> units;
    const auto repeat = [&](unsigned count, unsigned correction, unsigned top) {
        for (; count > 0 && units.size() < narrow.size(); --count)
            units.push_back(static_cast<std::uint16_t>(((narrow[units.size()] + correction) & 0xFF) | top));
    };
    unsigned steps = 0;
    for (unsigned left = 0; reader.remaining() > 0; --left, steps <<= 2) {
        if (left == 0) {
            steps = reader.u8();
            left = 4;
            if (reader.remaining() == 0) break;
        }
        switch (steps >> 6 & 3) {
        case 0:
            units.push_back(reader.u8());
            break;
        case 1:
            units.push_back(reader.u8() | high);
            break;
        case 2:
            units.push_back(reader.u16());
            break;
        default:
            const std::uint8_t length = reader.u8();
            const std::uint8_t correction = length & 0x80 ? reader.u8() : std::uint8_t{0};
            repeat((length & 0x7Fu) + 2, correction, length & 0x80 ? high : 0u);
        }
    }
    if (!reader.ok()) return std::nullopt;
    return utf8Of(units);
}

std::optional<std::string> oldName(Bytes bytes, bool isWide)
{
    std::optional<std::string> name(std::in_place, bytes.begin(), bytes.end());
    const std::size_t end = name->find('\0');
    if (isWide && end != std::string::npos) name = wideName(bytes.first(end), bytes.subspan(end + 1));
    if (!name) return std::nullopt;
    std::ranges::replace(*name, '\\', '/');
    return decodeName(*name);
}

std::optional<Timestamp> fromDosTime(std::uint32_t time)
{
    if (time == 0) return std::nullopt;
    std::tm parts{};
    parts.tm_sec = static_cast<int>(time & 0x1F) * 2;
    parts.tm_min = static_cast<int>(time >> 5 & 0x3F);
    parts.tm_hour = static_cast<int>(time >> 11 & 0x1F);
    parts.tm_mday = static_cast<int>(time >> 16 & 0x1F);
    parts.tm_mon = static_cast<int>(time >> 21 & 0x0F) - 1;
    parts.tm_year = static_cast<int>(time >> 25) + 80;
    parts.tm_isdst = -1; // as it was at that place then
    return Timestamp{std::mktime(&parts), 0};
}

/// The last change is the first of the times: what two seconds lack, in steps of 100 ns.
void refineTime(ByteReader &reader, Timestamp &time)
{
    const unsigned how = reader.u16() >> 12;
    if (!(how & 8)) return;
    if (how & 4) ++time.seconds;
    std::uint32_t ticks = 0;
    for (unsigned count = how & 3; count > 0; --count)
        ticks = static_cast<std::uint32_t>(reader.u8()) << 16 | ticks >> 8;
    if (reader.ok() && ticks < 10'000'000) time.nanoseconds = ticks * 100;
}

std::optional<FileHeader> oldFileHeader(const HeaderFrame &frame)
{
    ByteReader reader(frame.fields);
    FileHeader header;
    header.older = true;
    header.continuesBefore = frame.flags & oldflag::continuesBefore;
    header.continuesAfter = frame.flags & oldflag::continuesAfter;
    header.encrypted = frame.flags & oldflag::encrypted;
    header.solid = frame.flags & oldflag::solid;
    header.dictionary = static_cast<unsigned>(frame.flags >> oldflag::dictionaryShift & 7);
    header.packedSize = frame.dataSize;

    reader.u32(); // the packed size
    header.unpackedSize = reader.u32();
    const std::uint8_t host = reader.u8();
    header.unixHost = host == unixHost || host == beHost;
    const std::uint32_t crc = reader.u32();
    // That of a part is of its packed bytes in some versions only; the last one has the whole file's.
    if (!header.continuesAfter) header.crc = crc;
    header.modified = fromDosTime(reader.u32());
    header.version = reader.u8();
    const std::uint8_t method = reader.u8();
    const std::uint16_t nameSize = reader.u16();
    header.mode = reader.u32();
    if (frame.flags & oldflag::largeSizes) {
        reader.u32(); // the packed size goes on
        header.unpackedSize |= std::uint64_t{reader.u32()} << 32;
    }
    const std::optional<std::string> name = oldName(reader.take(nameSize), frame.flags & oldflag::wideName);
    if (frame.flags & oldflag::salt) reader.u64();
    if (frame.flags & oldflag::times && header.modified) refineTime(reader, *header.modified);
    if (!reader.ok() || !name || method < storing || method > storing + 5) return std::nullopt;
    header.name = *name;
    header.method = method - storing;
    header.folder = header.dictionary == oldflag::folder ||
                    (header.unixHost ? S_ISDIR(header.mode) : header.mode & windowsFolder);
    return header;
}

void putOld(ByteBuffer &into, std::uint8_t type, std::uint64_t flags, const ByteBuffer &fields)
{
    ByteBuffer checked{type};
    putNumber(checked, flags, 2);
    putNumber(checked, commonSize + fields.size(), 2);
    putBytes(checked, fields);
    putNumber(into, shortCrc(checked), 2);
    putBytes(into, checked);
}

void putOldMainHeader(ByteBuffer &into, const MainHeader &header)
{
    const bool isFirst = header.volume && header.volumeIndex == 0u;
    putOld(into, mainType,
           (header.volume ? oldflag::volume : 0) | (header.solid ? oldflag::mainSolid : 0) |
               (header.encrypted ? oldflag::headersEncrypted : 0) | (isFirst ? oldflag::firstVolume : 0),
           ByteBuffer(6));
}

void putOldFileHeader(ByteBuffer &into, const FileHeader &header)
{
    ByteBuffer fields;
    putNumber(fields, header.packedSize, 4);
    putNumber(fields, header.unpackedSize, 4);
    fields.push_back(header.unixHost ? unixHost : std::uint8_t{2});
    putNumber(fields, header.crc.value_or(0), 4);
    putNumber(fields, 0, 4); // no time
    putNumber(fields, header.version, 1);
    putNumber(fields, storing + header.method, 1);
    putNumber(fields, header.name.size(), 2);
    putNumber(fields, header.mode, 4);
    putNumber(fields, header.packedSize >> 32, 4);
    putNumber(fields, header.unpackedSize >> 32, 4);
    putText(fields, header.name);
    putOld(into, fileType,
           oldflag::hasData | oldflag::largeSizes | (header.continuesBefore ? oldflag::continuesBefore : 0) |
               (header.continuesAfter ? oldflag::continuesAfter : 0) |
               (header.encrypted ? oldflag::encrypted : 0) | (header.solid ? oldflag::solid : 0) |
               (header.name.find('\0') != std::string::npos ? oldflag::wideName : 0) |
               (header.folder ? oldflag::folder : header.dictionary) << oldflag::dictionaryShift,
           fields);
}

void putOldEndHeader(ByteBuffer &into, bool moreVolumes)
{
    putOld(into, endType, 0x4000 | (moreVolumes ? oldflag::moreVolumes : 0), {});
}

} // namespace

constinit const HeaderFormat olderFormat{oldSignature,     oldLength,        oldFrame,
                                         oldMainHeader,    oldFileHeader,    oldEndHeader,
                                         putOldMainHeader, putOldFileHeader, putOldEndHeader};

} // namespace archiver
