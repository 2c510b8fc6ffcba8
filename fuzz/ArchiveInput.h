#pragma once

#include "ArchiveWriter.h"
#include "VolumeSource.h"

/// What the first byte of an input asks for.
enum class InputKind : std::uint8_t {
    InMemory,  ///< test an archive
    OnDisk,    ///< test and extract an archive, with libarchive's help where it takes that
    Blocks,    ///< unpack blocks
    RoundTrip, ///< archive content and unpack it again
    Name,      ///< store a name and read it back
};
inline constexpr unsigned inputKinds = 5;

/// An archive: flags, the number of volumes less one, then for each volume its size in two bytes and its
/// bytes; the last one has no size and takes what is left.
struct ArchiveInput {
    static constexpr std::uint8_t damaged = 1;  ///< leave wrong checksums wrong
    static constexpr std::uint8_t flat = 2;     ///< extract without paths
    static constexpr std::uint8_t oldNames = 4; ///< of volumes
    static constexpr std::size_t mostVolumes = 4;

    std::uint8_t flags = 0;
    std::vector<archiver::ByteBuffer> volumes;

    [[nodiscard]] static ArchiveInput parse(archiver::Bytes input);
    [[nodiscard]] archiver::ByteBuffer serialize(InputKind kind) const;
};

/// Volumes without files.
class MemoryVolumes final : public archiver::VolumeSource {
public:
    explicit MemoryVolumes(const std::vector<archiver::ByteBuffer> &volumes) : m_volumes(volumes) {}
    std::optional<archiver::FileSource> open(std::size_t index) override;
    [[nodiscard]] std::string name(std::size_t index) const override
    {
        return "volume " + std::to_string(index);
    }

private:
    const std::vector<archiver::ByteBuffer> &m_volumes;
};

/// What our own writer makes of a file with that content; none where that fails, which has been reported.
[[nodiscard]] std::vector<archiver::ByteBuffer> writeVolumes(archiver::Bytes content,
                                                             archiver::ArchiveWriter::Packing packing,
                                                             std::optional<std::uint64_t> volumeSize,
                                                             archiver::Diagnostics &diagnostics);
