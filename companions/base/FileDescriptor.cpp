#include "FileDescriptor.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <memory>

namespace base {

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

template <typename Call>
bool writeAll(Bytes bytes, Call call)
{
    const ssize_t written = repeat(bytes.size(), call);
    const bool isWhole = written == static_cast<ssize_t>(bytes.size());
    if (!isWhole && written >= 0) errno = EIO;
    return isWhole;
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
    return writeAll(bytes,
                    [=](std::size_t done) { return write(file, bytes.data() + done, bytes.size() - done); });
}

bool writeFullyAt(int file, Bytes bytes, std::uint64_t offset)
{
    return writeAll(bytes, [=](std::size_t done) {
        return pwrite(file, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
    });
}

void startWriteBack(int file) { sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE); }

bool syncToDisk(int file) { return fsync(file) == 0 || errno == EINVAL; }

std::string descriptorPath(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }

std::string nameIn(const std::string &path) { return path.substr(path.rfind('/') + 1); }

FileDescriptor openFolderOf(const std::string &path)
{
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    return FileDescriptor(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::vector<std::string> namesIn(int folder, const std::function<bool(const std::string &)> &isWanted)
{
    std::vector<std::string> names;
    FileDescriptor own(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(own ? fdopendir(own.get()) : nullptr, closedir);
    if (!entries) return names;
    own.release(); // closed with the entries
    while (const dirent *entry = readdir(entries.get()))
        if (isWanted(entry->d_name)) names.emplace_back(entry->d_name);
    return names;
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

const char *kindOf(mode_t mode)
{
    if (S_ISREG(mode)) return "a file";
    if (S_ISDIR(mode)) return "a folder";
    if (S_ISLNK(mode)) return "a symbolic link";
    if (S_ISFIFO(mode)) return "a named pipe";
    return S_ISSOCK(mode) ? "a socket" : "a device";
}

} // namespace base
