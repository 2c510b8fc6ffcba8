#include "FileSource.h"

#include "StopSignals.h"
#include "smime/Fault.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::size_t bufferSize = 262144; // in bytes

}

FileSource::FileSource(int descriptor, Fault &fault)
    : m_descriptor(descriptor), m_fault(fault), m_buffer(bufferSize)
{
}

Bytes FileSource::read()
{
    while (StopSignals::received() == 0) {
        const ssize_t count = ::read(m_descriptor, m_buffer.data(), m_buffer.size());
        if (count >= 0) return {m_buffer.data(), static_cast<std::size_t>(count)};
        if (errno == EINTR) continue;
        m_fault.report("cannot be read: " + std::generic_category().message(errno));
        return {};
    }
    m_fault.report("was not read to its end");
    return {};
}
