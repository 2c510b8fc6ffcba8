#include "files/FileCopy.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (m_number >= 0) close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    [[nodiscard]] int get() const { return m_number; }
    [[nodiscard]] bool isOpen() const { return m_number >= 0; }

private:
    const int m_number;
};

constexpr std::size_t blockBytes = 256 << 10;

int openFile(int folder, const std::string &name)
{
    // A pipe would block whoever opens it.
    return openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

/// As many as fit, or all up to the end; -1 on an error.
ssize_t readBlock(int file, std::vector<char> &block)
{
    std::size_t filled = 0;
    while (filled < block.size()) {
        const ssize_t count = read(file, block.data() + filled, block.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return -1;
        if (count == 0) break;
        filled += std::size_t(count);
    }
    return ssize_t(filled);
}

bool writeAll(int file, const char *bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = write(file, bytes, count);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes += written;
        count -= std::size_t(written);
    }
    return true;
}

bool haveSameBytes(int file, int other)
{
    std::vector<char> block(blockBytes);
    std::vector<char> otherBlock(blockBytes);
    for (;;) {
        const ssize_t count = readBlock(file, block);
        if (count < 0 || readBlock(other, otherBlock) != count) return false;
        if (std::memcmp(block.data(), otherBlock.data(), std::size_t(count)) != 0) return false;
        if (count == 0) return true;
    }
}

std::optional<std::string> targetOf(int folder, const std::string &name)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlinkat(folder, name.c_str(), target.data(), target.size());
    if (length < 0) return std::nullopt;
    return std::string(target.data(), std::size_t(length));
}

int copyBytes(int from, int to)
{
    std::vector<char> block(blockBytes);
    for (;;) {
        const ssize_t count = readBlock(from, block);
        if (count < 0) return errno;
        if (count == 0) return 0;
        if (!writeAll(to, block.data(), std::size_t(count))) return errno;
    }
}

} // namespace

bool haveSameContent(int folder, int other, const std::string &name)
{
    struct stat one {};
    struct stat two {};
    if (fstatat(folder, name.c_str(), &one, AT_SYMLINK_NOFOLLOW) != 0 ||
        fstatat(other, name.c_str(), &two, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    if ((one.st_mode & S_IFMT) != (two.st_mode & S_IFMT) || one.st_size != two.st_size) return false;
    if (S_ISLNK(one.st_mode)) return targetOf(folder, name) == targetOf(other, name);
    if (!S_ISREG(one.st_mode)) return false;
    const Descriptor file(openFile(folder, name));
    const Descriptor otherFile(openFile(other, name));
    return file.isOpen() && otherFile.isOpen() && haveSameBytes(file.get(), otherFile.get());
}

int copyToFree(int from, int to, const std::string &name)
{
    struct stat status {};
    if (fstatat(from, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
    if (S_ISLNK(status.st_mode)) {
        const auto target = targetOf(from, name);
        return target && symlinkat(target->c_str(), to, name.c_str()) == 0 ? 0 : errno;
    }
    const Descriptor source(openFile(from, name));
    if (!source.isOpen()) return errno;
    const Descriptor nameless(openat(to, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
    if (!nameless.isOpen()) return errno;
    if (const int error = copyBytes(source.get(), nameless.get())) return error;
    const timespec times[]{status.st_atim, status.st_mtim};
    if (fchmod(nameless.get(), status.st_mode & 0777) != 0 || futimens(nameless.get(), times) != 0 ||
        fsync(nameless.get()) != 0)
        return errno;
    const std::string path = "/proc/self/fd/" + std::to_string(nameless.get());
    return linkat(AT_FDCWD, path.c_str(), to, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}
