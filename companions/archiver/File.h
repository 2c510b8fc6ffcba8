#pragma once

#include "Bytes.h"

#include <string>
#include <sys/types.h>

namespace archiver {

/// Owns an open file or folder; -1 owns none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(other.release()) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] int get() const { return m_descriptor; }
    [[nodiscard]] explicit operator bool() const { return m_descriptor >= 0; }
    int release();
    /// False, with errno set, where the system reports a write that failed late.
    bool close();

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

/// A name for something unfinished, unlikely to exist; another one each time.
[[nodiscard]] std::string temporaryName();

/// A file under a name that nothing else has, removed again unless it gets its final name. Its mode is 0600.
class TemporaryFile {
public:
    TemporaryFile() = default;
    ~TemporaryFile() { discard(); }
    TemporaryFile(TemporaryFile &&other) noexcept;
    TemporaryFile &operator=(TemporaryFile &&other) noexcept;
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    /// In the folder open as `folder`, which has to stay open. Not open, with errno set, where that fails.
    [[nodiscard]] static TemporaryFile create(int folder);

    [[nodiscard]] explicit operator bool() const { return m_named; }
    [[nodiscard]] int descriptor() const { return m_file.get(); }
    [[nodiscard]] const std::string &name() const { return m_name; }
    /// Closes the file, which keeps its temporary name. False with errno set.
    bool closeFile() { return m_file.close(); }
    /// Opens it again for reading and writing. False with errno set.
    bool reopenFile();
    /// Gives it its final name in the same folder, over a file or link of that name. False with errno set.
    bool rename(const std::string &name);
    void discard();

private:
    FileDescriptor m_file;
    std::string m_name;
    int m_folder = -1;
    bool m_named = false;
};

/// Raises the number of files that may be open to what the system allows, for deep trees.
void raiseOpenFileLimit();

} // namespace archiver
