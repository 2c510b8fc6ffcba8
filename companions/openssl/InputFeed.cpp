#include "InputFeed.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 65536; // what a pipe holds

bool isPassing(int error) { return error == EINTR || error == EAGAIN; }

} // namespace

InputFeed::InputFeed(const BegunStream &stream, base::FileDescriptor childInput)
    : m_source(stream.descriptor), m_sink(std::move(childInput)), m_buffer(stream.head), m_pending(m_buffer)
{
    fcntl(m_sink.get(), F_SETFL, O_NONBLOCK);
}

pollfd InputFeed::awaited() const
{
    if (!m_sink) return {-1, 0, 0};
    if (m_pending.empty()) return {m_source, POLLIN, 0};
    return {m_sink.get(), POLLOUT, 0};
}

void InputFeed::step()
{
    if (m_pending.empty())
        fill();
    else
        pour();
}

void InputFeed::fill()
{
    m_buffer.resize(bufferSize);
    const ssize_t count = read(m_source, m_buffer.data(), m_buffer.size());
    if (count > 0) m_pending = std::string_view(m_buffer).substr(0, static_cast<std::size_t>(count));
    if (count > 0 || (count < 0 && isPassing(errno))) return;
    if (count < 0) m_error = errno;
    m_sink.close();
}

void InputFeed::pour()
{
    const ssize_t count = write(m_sink.get(), m_pending.data(), m_pending.size());
    if (count >= 0)
        m_pending.remove_prefix(static_cast<std::size_t>(count));
    else if (!isPassing(errno))
        m_sink.close(); // the child reads no further, and knows why
}
