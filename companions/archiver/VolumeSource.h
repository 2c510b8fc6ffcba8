#pragma once

#include "Bytes.h"

#include <algorithm>
#include <cerrno>
#include <optional>

namespace archiver {

/// "NAME.part03.rar" taken apart.
struct VolumeName {
    std::string base; ///< "NAME", with the folder before it
    std::uint64_t number = 0;
    std::size_t digits = 0;
    std::string extension; ///< ".rar", in the case that it is written in
};

/// None where `path` is not the name of a numbered volume.
[[nodiscard]] std::optional<VolumeName> parseVolumeName(std::string_view path);
[[nodiscard]] std::string volumePath(std::string_view base, std::uint64_t number, std::size_t digits);
/// The name of the volume after `path`: one more in ".partN.rar", or the older ".rar", ".r00", ".r01" …
/// ".s00".
[[nodiscard]] std::string nextVolumePath(std::string_view path);
/// `path` without a final ".rar".
[[nodiscard]] std::string withoutExtension(std::string_view path);

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
    Bytes peek(std::size_t wanted)
    {
        if (m_end - m_begin < wanted && m_error == 0) {
            const std::uint64_t there = left();
            const auto useful =
                static_cast<std::size_t>(std::min<std::uint64_t>(std::max(wanted, windowSize), there));
            // What is left over moves to the front, even when it must first be made longer.
            std::copy(m_buffer.begin() + static_cast<std::ptrdiff_t>(m_begin),
                      m_buffer.begin() + static_cast<std::ptrdiff_t>(m_end), m_buffer.begin());
            m_end -= m_begin;
            m_begin = 0;
            if (useful > m_buffer.size()) m_buffer.resize(useful);
            if (useful > m_end) {
                const ssize_t count =
                    base::readFullyAt(m_source.descriptor, std::span(m_buffer).subspan(m_end, useful - m_end),
                                      m_position + m_end);
                if (count < 0)
                    m_error = errno;
                else
                    m_end += static_cast<std::size_t>(count);
            }
        }
        return Bytes(m_buffer).subspan(m_begin, m_end - m_begin);
    }

    void skip(std::uint64_t count)
    {
        m_position += count;
        if (count <= m_end - m_begin) {
            m_begin += static_cast<std::size_t>(count);
            return;
        }
        m_begin = 0;
        m_end = 0;
    }

    /// Goes past as many bytes as `into` has, which are copied there; how many there were.
    std::size_t read(std::span<std::uint8_t> into)
    {
        // What is long goes past the buffer.
        const std::size_t wanted = into.size() < windowSize / 2 ? into.size() : 0;
        const Bytes buffered = peek(wanted);
        const Bytes first = buffered.first(std::min(buffered.size(), into.size()));
        std::ranges::copy(first, into.begin());
        skip(first.size());
        const std::span<std::uint8_t> rest = into.subspan(first.size());
        if (rest.empty() || m_error != 0) return first.size();
        const ssize_t count = base::readFullyAt(m_source.descriptor, rest, m_position);
        if (count < 0)
            m_error = errno;
        else
            skip(static_cast<std::size_t>(count));
        return first.size() + static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }

    [[nodiscard]] std::uint64_t left() const
    {
        return m_source.size > m_position ? m_source.size - m_position : 0;
    }

    /// errno of a read that failed, else 0.
    [[nodiscard]] int error() const { return m_error; }

private:
    static constexpr std::size_t windowSize = 256 << 10; // fits the cache, where the bytes are used at once

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

    [[nodiscard]] std::string name(std::size_t index) const override
    {
        while (m_paths.size() <= index)
            m_paths.push_back(nextVolumePath(m_paths.back()));
        return m_paths[index];
    }

private:
    mutable std::vector<std::string> m_paths;
};

} // namespace archiver
