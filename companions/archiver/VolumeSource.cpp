#include "VolumeSource.h"

#include "VolumeNames.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace archiver {

namespace {

constexpr std::size_t windowSize = 256 << 10; // fits the processor's cache, where the bytes are used at once

} // namespace

Bytes SourceWindow::peek(std::size_t wanted)
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
            const ssize_t count = base::readFullyAt(
                m_source.descriptor, std::span(m_buffer).subspan(m_end, useful - m_end), m_position + m_end);
            if (count < 0)
                m_error = errno;
            else
                m_end += static_cast<std::size_t>(count);
        }
    }
    return Bytes(m_buffer).subspan(m_begin, m_end - m_begin);
}

void SourceWindow::skip(std::uint64_t count)
{
    m_position += count;
    if (count <= m_end - m_begin) {
        m_begin += static_cast<std::size_t>(count);
        return;
    }
    m_begin = 0;
    m_end = 0;
}

std::size_t SourceWindow::read(std::span<std::uint8_t> into)
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

std::uint64_t SourceWindow::left() const
{
    return m_source.size > m_position ? m_source.size - m_position : 0;
}

std::optional<FileSource> VolumeFiles::open(std::size_t index)
{
    base::FileDescriptor file(::open(name(index).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file || fstat(file.get(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : ENXIO;
        return std::nullopt;
    }
    posix_fadvise(file.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    const int descriptor = file.get();
    return FileSource{descriptor, static_cast<std::uint64_t>(status.st_size), std::move(file)};
}

std::string VolumeFiles::name(std::size_t index) const
{
    while (m_paths.size() <= index)
        m_paths.push_back(nextVolumePath(m_paths.back()));
    return m_paths[index];
}

} // namespace archiver
