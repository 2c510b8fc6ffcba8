#pragma once

/// A file descriptor that is closed at the end of its owner's life.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(other.m_descriptor)
    {
        other.m_descriptor = -1;
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }
    /// Closes it. False, with errno set: data written before could not be stored.
    bool close();

private:
    int m_descriptor = -1;
};

/// A pipe that programs started later do not inherit. Both ends closed, with errno set: there is none to be
/// had.
struct Pipe {
    FileDescriptor read;
    FileDescriptor write;

    static Pipe open();
    [[nodiscard]] bool isOpen() const { return read.isOpen(); }
};
