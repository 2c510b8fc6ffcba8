#include "File.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <limits>
#include <sys/random.h>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace archiver {

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

TemporaryFile::TemporaryFile(TemporaryFile &&other) noexcept
    : m_file(std::move(other.m_file))
    , m_name(std::move(other.m_name))
    , m_folder(other.m_folder)
    , m_named(std::exchange(other.m_named, false))
{
}

TemporaryFile &TemporaryFile::operator=(TemporaryFile &&other) noexcept
{
    if (this == &other) return *this;
    discard();
    m_file = std::move(other.m_file);
    m_name = std::move(other.m_name);
    m_folder = other.m_folder;
    m_named = std::exchange(other.m_named, false);
    return *this;
}

std::string temporaryName()
{
    // A start that differs from run to run, then counting: trying a name that exists is rare, and harmless.
    static std::uint64_t next = [] {
        std::uint64_t start = static_cast<std::uint64_t>(getpid()) << 32;
        const ssize_t count = getrandom(&start, sizeof start, GRND_NONBLOCK);
        static_cast<void>(count);
        return start;
    }();
    char name[32];
    std::snprintf(name, sizeof name, ".rar-%016llx", static_cast<unsigned long long>(next++));
    return name;
}

TemporaryFile TemporaryFile::create(int folder)
{
    for (int attempt = 0; attempt < 1000; ++attempt) {
        std::string name = temporaryName();
        FileDescriptor file(
            openat(folder, name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!file && errno == EEXIST) continue;
        TemporaryFile created;
        if (!file) return created;
        created.m_file = std::move(file);
        created.m_name = std::move(name);
        created.m_folder = folder;
        created.m_named = true;
        return created;
    }
    return {};
}

bool TemporaryFile::reopenFile()
{
    m_file = FileDescriptor(openat(m_folder, m_name.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    return static_cast<bool>(m_file);
}

bool TemporaryFile::rename(const std::string &name)
{
    if (renameat(m_folder, m_name.c_str(), m_folder, name.c_str()) != 0) return false;
    m_named = false;
    m_file.close();
    return true;
}

void TemporaryFile::discard()
{
    if (std::exchange(m_named, false)) unlinkat(m_folder, m_name.c_str(), 0);
    m_file.close();
}

void raiseOpenFileLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, 65536);
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace archiver
