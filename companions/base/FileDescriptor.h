#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace base {

using Bytes = std::span<const std::uint8_t>;

/// Owns an open file or folder; -1 owns none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(other.release()) {}

    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        if (this == &other) return *this;
        close();
        m_descriptor = other.release();
        return *this;
    }

    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] int get() const { return m_descriptor; }
    [[nodiscard]] explicit operator bool() const { return m_descriptor >= 0; }
    int release() { return std::exchange(m_descriptor, -1); }
    /// False, with errno set, where the system reports a write that failed late.
    bool close()
    {
        const int descriptor = release();
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int m_descriptor = -1;
};

/// Reads until `into` is full or the file ends; the number of bytes, or -1 with errno set.
[[nodiscard]] ssize_t readFully(int file, std::span<std::uint8_t> into);
/// The same from an offset of its own.
[[nodiscard]] ssize_t readFullyAt(int file, std::span<std::uint8_t> into, std::uint64_t offset);
/// False with errno set.
[[nodiscard]] bool writeFully(int file, Bytes bytes);
[[nodiscard]] bool writeFullyAt(int file, Bytes bytes, std::uint64_t offset);

/// Has the system begin with bringing what was written to the disk, without waiting for it.
void startWriteBack(int file);
/// Waits until a file, or the names in a folder, are on the disk. False with errno set; a file system that
/// knows no such thing is none of the caller's business.
[[nodiscard]] bool syncToDisk(int file);

/// The descriptor's own name for programs and calls that take nothing but names.
[[nodiscard]] std::string descriptorPath(int descriptor);

/// The last component of a path.
[[nodiscard]] std::string nameIn(const std::string &path);
/// The folder that a path's last component is in. Closed, with errno set: it can't be opened.
[[nodiscard]] FileDescriptor openFolderOf(const std::string &path);
/// The names in an open folder for which `isWanted` is true; none where it can't be read.
[[nodiscard]] std::vector<std::string> namesIn(int folder,
                                               const std::function<bool(const std::string &)> &isWanted);

/// Whether both are of the same file or folder.
[[nodiscard]] bool isSame(const struct stat &one, const struct stat &other);
/// "a named pipe", "a socket", "a symbolic link" … for messages.
[[nodiscard]] const char *kindOf(mode_t mode);

} // namespace base
