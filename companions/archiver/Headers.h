#pragma once

#include "Bytes.h"

#include <array>
#include <compare>
#include <optional>

// The headers of the RAR 5 container, as its maker describes them publicly ("RAR 5.0 archive format"). A
// header is CRC32, size, type, flags, fields, extra area; packed data follows a file's or a service header.

namespace archiver {

inline constexpr std::array<std::uint8_t, 8> signature{0x52, 0x61, 0x72, 0x21, 0x1A, 0x07, 0x01, 0x00};
/// Of the format before it, RAR 3 and 4; one byte shorter.
inline constexpr std::array<std::uint8_t, 7> oldSignature{0x52, 0x61, 0x72, 0x21, 0x1A, 0x07, 0x00};

inline constexpr std::size_t largestHeader = 2u << 20; ///< bytes after the size field
inline constexpr std::size_t endHeaderSize = 8;
inline constexpr std::uint64_t largestSize = (1ull << 42) - 1; ///< of a file, as its header is written

enum class HeaderType : std::uint64_t { Main = 1, File = 2, Service = 3, Encryption = 4, End = 5 };

/// What all headers have in common; `fields` and `extra` point into the bytes that were parsed.
struct HeaderFrame {
    HeaderType type = HeaderType::End;
    std::uint64_t flags = 0;
    std::uint64_t dataSize = 0; ///< of the packed data behind the header
    Bytes fields;
    Bytes extra;
};

struct MainHeader {
    bool volume = false;
    std::optional<std::uint64_t> volumeIndex{}; ///< 0 for the first; none where it is not told
    bool solid = false;
    bool encrypted = false; ///< so are all headers behind it
};

struct Timestamp {
    std::int64_t seconds = 0; ///< since 1970
    std::uint32_t nanoseconds = 0;

    auto operator<=>(const Timestamp &) const = default;
};

struct LinkTarget {
    enum class Kind : std::uint64_t { Symbolic = 1, WindowsSymbolic = 2, Junction = 3, Hard = 4, Copy = 5 };
    Kind kind = Kind::Symbolic;
    bool toFolder = false;
    std::string path; ///< bytes as on disk; for Hard and Copy the name of an entry before
};

/// A file, folder or link, or the part of a file in one volume.
struct FileHeader {
    std::string name; ///< bytes as on disk, relative, '/' between components
    bool folder = false;
    bool continuesBefore = false; ///< its data began in the volume before
    bool continuesAfter = false;  ///< its data goes on in the next volume
    std::uint64_t unpackedSize = 0;
    bool sizeUnknown = false;
    std::uint64_t packedSize = 0; ///< in this volume
    std::uint32_t mode = 0;       ///< st_mode, where `unixHost`; else the attributes of Windows
    bool unixHost = true;
    std::optional<Timestamp> modified;
    std::optional<std::uint32_t>
        crc; ///< of the unpacked file; with continuesAfter, of this part's packed bytes
    using Hash = std::array<std::uint8_t, 32>;
    std::optional<Hash> hash; ///< BLAKE2sp of the unpacked file, likewise
    bool older = false;       ///< of the format before: other compression, and a link's target is its content
    unsigned version = 0;     ///< of the compression; in RAR 5 above 0 there are dictionaries of other sizes
    unsigned method = 0;      ///< 0 stored, 1 to 5 packed
    unsigned dictionary = 0;  ///< 128 KiB << dictionary; in the older format 64 KiB
    bool solid = false;
    bool encrypted = false;
    std::optional<LinkTarget> link;

    [[nodiscard]] bool stored() const { return method == 0; }
    /// Whether there is anything to be unpacked.
    [[nodiscard]] bool hasBlocks() const
    {
        return !stored() && (packedSize > 0 || unpackedSize > 0 || continuesAfter);
    }
    [[nodiscard]] std::uint64_t dictionarySize() const { return std::uint64_t{128 << 10} << dictionary; }
};

/// How one of the two formats writes its headers.
struct HeaderFormat {
    Bytes signature;
    /// Bytes that `start` (7 or more bytes from the header's first one) says its whole header has; none where
    /// that can't be.
    std::optional<std::size_t> (*length)(Bytes start);
    /// None where the checksum or the structure is wrong.
    std::optional<HeaderFrame> (*frame)(Bytes header);
    std::optional<MainHeader> (*mainHeader)(const HeaderFrame &frame);
    std::optional<FileHeader> (*fileHeader)(const HeaderFrame &frame);
    /// Whether more volumes follow.
    std::optional<bool> (*endHeader)(const HeaderFrame &frame);
    void (*putMain)(ByteBuffer &into, const MainHeader &header);
    /// In RAR 5 the same length for the same name, link and time, whatever the sizes (up to largestSize),
    /// flags and checksum: a header can be replaced when its data is behind it. A file has a checksum always,
    /// 0 as long as none is known.
    void (*putFile)(ByteBuffer &into, const FileHeader &header);
    void (*putEnd)(ByteBuffer &into, bool moreVolumes);
};

/// RAR 5.
extern const HeaderFormat presentFormat;
/// RAR 3 and 4. It writes names as they are, one with a zero byte as the two halves of a wide one, no links
/// and no times.
extern const HeaderFormat olderFormat;

/// A header of RAR 5: checksum and size before `body`, which begins with the type.
void putFramed(ByteBuffer &into, const ByteBuffer &body);

} // namespace archiver
