#include "Headers.h"

#include "HeaderFlags.h"

namespace archiver {

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

} // namespace archiver
