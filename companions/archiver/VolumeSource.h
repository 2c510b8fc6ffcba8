#pragma once

#include "Bytes.h"

#include <optional>
#include <string>

namespace archiver {

/// An open file of that many bytes, which can be read from anywhere.
struct FileSource {
    int descriptor = -1;
    std::uint64_t size = 0;
    base::FileDescriptor own{}; ///< none where the descriptor is somebody else's
};

/// A file read from front to back through a buffer, whose bytes are used in place.
class SourceWindow {
public:
    SourceWindow() = default;
    explicit SourceWindow(FileSource source) : m_source(std::move(source)) {}

    /// What is in the buffer from the present position on: at least `wanted` bytes, unless the file ends
    /// before or can't be read. Valid until the next call.
    Bytes peek(std::size_t wanted);
    void skip(std::uint64_t count);
    /// Goes past as many bytes as `into` has, which are copied there; how many there were.
    std::size_t read(std::span<std::uint8_t> into);
    [[nodiscard]] std::uint64_t left() const;
    /// errno of a read that failed, else 0.
    [[nodiscard]] int error() const { return m_error; }

private:
    FileSource m_source;
    ByteBuffer m_buffer;
    std::size_t m_begin = 0; ///< of what is left in the buffer
    std::size_t m_end = 0;
    std::uint64_t m_position = 0; ///< in the file, of m_begin
    int m_error = 0;
};

/// The files that an archive consists of.
class VolumeSource {
public:
    virtual ~VolumeSource() = default;
    /// The volume of that index, 0 being the first; none with errno set. Indices are asked for in order.
    virtual std::optional<FileSource> open(std::size_t index) = 0;
    /// Its name for messages.
    [[nodiscard]] virtual std::string name(std::size_t index) const = 0;
};

/// An archive on disk, given by its first volume; the names of the others follow from that one's.
class VolumeFiles final : public VolumeSource {
public:
    explicit VolumeFiles(std::string firstPath) : m_paths{std::move(firstPath)} {}
    /// ENXIO where it is a pipe, a socket or a device, which nobody waits for.
    std::optional<FileSource> open(std::size_t index) override;
    [[nodiscard]] std::string name(std::size_t index) const override;

private:
    mutable std::vector<std::string> m_paths;
};

} // namespace archiver
