#include "FileSource.h"

#include "StopSignals.h"
#include "smime/Fault.h"

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::size_t bufferSize = 262144; // in bytes

}

base::FileDescriptor openInput(const std::string &path, bool isOurs, std::string &problem)
{
    const int flags = O_RDONLY | O_CLOEXEC | (isOurs ? O_NOFOLLOW | O_NONBLOCK : 0);
    base::FileDescriptor file(open(path.c_str(), flags));
    const int error = errno;
    struct stat status {};
    const bool isThere =
        file ? fstat(file.get(), &status) == 0 : lstat(path.c_str(), &status) == 0; // a link, or a socket
    if (isOurs && isThere && !S_ISREG(status.st_mode)) {
        problem = "cannot read " + path + ": it is " + base::kindOf(status.st_mode);
        return {};
    }
    if (!file) problem = "cannot open " + path + ": " + std::generic_category().message(error);
    return file;
}

FileSource::FileSource(int descriptor, Fault &fault)
    : m_descriptor(descriptor), m_fault(fault), m_buffer(bufferSize)
{
}

Bytes FileSource::read()
{
    while (base::StopSignals::received() == 0) {
        const ssize_t count = ::read(m_descriptor, m_buffer.data(), m_buffer.size());
        if (count >= 0) return {m_buffer.data(), static_cast<std::size_t>(count)};
        if (errno == EINTR) continue;
        m_fault.report("cannot be read: " + std::generic_category().message(errno));
        return {};
    }
    m_fault.report("was not read to its end");
    return {};
}
