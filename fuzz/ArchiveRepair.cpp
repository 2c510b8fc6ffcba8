#include "ArchiveRepair.h"

#include "Headers.h"

#include <algorithm>

using namespace archiver;

namespace {

void repairBlocks(std::span<std::uint8_t> packed)
{
    while (packed.size() >= 3) {
        const std::size_t sizeBytes = (packed[0] >> 3 & 3) + 1u;
        if (packed.size() < 2 + sizeBytes) return;
        std::uint64_t payload = 0;
        packed[1] = 0x5A ^ packed[0];
        for (std::size_t index = 0; index < sizeBytes; ++index) {
            packed[1] ^= packed[2 + index];
            payload |= std::uint64_t{packed[2 + index]} << 8 * index;
        }
        packed = packed.subspan(std::min<std::uint64_t>(packed.size(), 2 + sizeBytes + payload));
    }
}

} // namespace

void repairArchive(ByteBuffer &bytes)
{
    const bool isOlder = bytes.size() > 6 && bytes[6] == 0;
    const HeaderFormat &format = isOlder ? olderFormat : presentFormat;
    if (bytes.size() < format.signature.size()) return;
    std::ranges::copy(format.signature, bytes.begin());
    const std::size_t crcSize = isOlder ? 2 : 4;
    for (std::span<std::uint8_t> left = std::span(bytes).subspan(format.signature.size()); left.size() > 7;) {
        const std::optional<std::size_t> length = format.length(left);
        if (!length || *length > left.size()) return;
        const std::uint32_t crc = crc32(Bytes(left).subspan(crcSize, *length - crcSize));
        for (unsigned index = 0; index < crcSize; ++index)
            left[index] = static_cast<std::uint8_t>(crc >> 8 * index);
        const std::optional<HeaderFrame> frame = format.frame(left.first(*length));
        if (!frame) return;
        const auto data = left.subspan(*length);
        const auto packed = data.first(std::min<std::uint64_t>(data.size(), frame->dataSize));
        if (frame->type == HeaderType::File) {
            const std::optional<FileHeader> file = format.fileHeader(*frame);
            if (file && !file->stored() && !file->older) repairBlocks(packed);
        }
        left = data.subspan(packed.size());
    }
}
