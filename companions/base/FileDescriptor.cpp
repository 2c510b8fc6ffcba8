#include "FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <unistd.h>
#include <utility>

namespace base {

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this == &other) return *this;
    close();
    m_descriptor = other.release();
    return *this;
}

int FileDescriptor::release() { return std::exchange(m_descriptor, -1); }

bool FileDescriptor::close()
{
    const int descriptor = release();
    return descriptor < 0 || ::close(descriptor) == 0;
}

namespace {

/// Repeats a call that moves part of `total` bytes until all are moved or it gives 0 (the end) or an error.
template <typename Call>
ssize_t repeat(std::size_t total, Call call)
{
    std::size_t done = 0;
    while (done < total) {
        const ssize_t count = call(done);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return -1;
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

bool wroteAll(ssize_t written, Bytes bytes)
{
    if (written < 0) return false;
    if (static_cast<std::size_t>(written) == bytes.size()) return true;
    errno = EIO;
    return false;
}

} // namespace

ssize_t readFully(int file, std::span<std::uint8_t> into)
{
    return repeat(into.size(),
                  [=](std::size_t done) { return read(file, into.data() + done, into.size() - done); });
}

ssize_t readFullyAt(int file, std::span<std::uint8_t> into, std::uint64_t offset)
{
    if (offset > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max()) - into.size()) return 0;
    return repeat(into.size(), [=](std::size_t done) {
        return pread(file, into.data() + done, into.size() - done, static_cast<off_t>(offset + done));
    });
}

bool writeFully(int file, Bytes bytes)
{
    const auto call = [=](std::size_t done) { return write(file, bytes.data() + done, bytes.size() - done); };
    return wroteAll(repeat(bytes.size(), call), bytes);
}

bool writeFullyAt(int file, Bytes bytes, std::uint64_t offset)
{
    const auto call = [=](std::size_t done) {
        return pwrite(file, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
    };
    return wroteAll(repeat(bytes.size(), call), bytes);
}

void startWriteBack(int file) { sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE); }

bool syncToDisk(int file) { return fsync(file) == 0 || errno == EINVAL; }

std::string descriptorPath(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

const char *kindOf(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return "a file";
    case S_IFDIR:
        return "a folder";
    case S_IFLNK:
        return "a symbolic link";
    case S_IFIFO:
        return "a named pipe";
    case S_IFSOCK:
        return "a socket";
    default:
        return "a device";
    }
}

} // namespace base
