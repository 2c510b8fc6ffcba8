#include "FileDescriptor.h"

#include <array>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
    }
    return *this;
}

bool FileDescriptor::close()
{
    const int descriptor = std::exchange(m_descriptor, -1);
    return descriptor < 0 || ::close(descriptor) == 0;
}

Pipe Pipe::open()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe(ends.data()) != 0) return {};
    for (const int end : ends)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}
