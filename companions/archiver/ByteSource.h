#pragma once

#include "Bytes.h"
#include "FileDescriptor.h"

#include <memory>

namespace archiver {

/// Bytes that can be read from anywhere, such as a file.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// Fills `into`, except at the end; the number of bytes, or -1 with errno set.
    virtual ssize_t read(std::uint64_t offset, std::span<std::uint8_t> into) = 0;
    [[nodiscard]] virtual std::uint64_t size() const = 0;
};

class FileSource final : public ByteSource {
public:
    /// Of a regular file; null with errno set where it can't be opened, ENXIO where it is a pipe, a socket or
    /// a device, which nobody waits for.
    [[nodiscard]] static std::unique_ptr<FileSource> open(const std::string &path);
    /// `descriptor` stays the caller's.
    FileSource(int descriptor, std::uint64_t size) : m_descriptor(descriptor), m_size(size) {}

    ssize_t read(std::uint64_t offset, std::span<std::uint8_t> into) override
    {
        return base::readFullyAt(m_descriptor, into, offset);
    }
    [[nodiscard]] std::uint64_t size() const override { return m_size; }

private:
    base::FileDescriptor m_own;
    int m_descriptor;
    std::uint64_t m_size;
};

/// A source read from front to back through a buffer, whose bytes are used in place.
class SourceWindow {
public:
    SourceWindow() = default;
    explicit SourceWindow(std::unique_ptr<ByteSource> source) : m_source(std::move(source)) {}

    /// What is in the buffer from the present position on: at least `wanted` bytes, unless the source ends
    /// before or can't be read. Valid until the next call.
    Bytes peek(std::size_t wanted);
    void skip(std::uint64_t count);
    /// Goes past as many bytes as `into` has, which are copied there; how many there were.
    std::size_t read(std::span<std::uint8_t> into);
    [[nodiscard]] std::uint64_t left() const;
    /// errno of a read that failed, else 0.
    [[nodiscard]] int error() const { return m_error; }

private:
    std::unique_ptr<ByteSource> m_source;
    ByteBuffer m_buffer;
    std::size_t m_begin = 0; ///< of what is left in the buffer
    std::size_t m_end = 0;
    std::uint64_t m_position = 0; ///< in the source, of m_begin
    int m_error = 0;
};

} // namespace archiver
