#include "Relay.h"

#include <cerrno>
#include <cstddef>
#include <poll.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 65536; // what a pipe holds

/// 0, or the errno value of the write that failed.
int writeAll(int sink, std::string_view text)
{
    const base::Bytes bytes(reinterpret_cast<const std::uint8_t *>(text.data()), text.size());
    return base::writeFully(sink, bytes) ? 0 : errno;
}

} // namespace

void Relay::forward(base::FileDescriptor childOutput, int sink, std::vector<std::string> droppedLines)
{
    m_drains.push_back({std::move(childOutput), sink, false, LineFilter(std::move(droppedLines))});
}

void Relay::collect(base::FileDescriptor childOutput, int sink)
{
    m_drains.push_back({std::move(childOutput), sink, true, LineFilter({})});
}

void Relay::feed(const BegunStream &stream, base::FileDescriptor childInput)
{
    m_feed.emplace(stream, std::move(childInput));
}

Relay::Result Relay::run()
{
    m_buffer.resize(bufferSize);
    while (!isDone()) {
        std::vector<pollfd> ends;
        for (const Drain &each : m_drains)
            ends.push_back({each.source.get(), POLLIN, 0});
        if (m_feed) ends.push_back(m_feed->awaited());
        if (poll(ends.data(), ends.size(), -1) < 0) {
            if (errno == EINTR) continue;
            break;
        }
        for (std::size_t i = 0; i < m_drains.size(); ++i)
            if (ends[i].revents) drain(m_drains[i]);
        if (m_feed && ends.back().revents) m_feed->step();
    }
    if (m_feed) m_result.inputError = m_feed->error();
    return m_result;
}

bool Relay::isDone() const
{
    for (const Drain &each : m_drains)
        if (each.source) return false;
    return true;
}

void Relay::drain(Drain &drain)
{
    const ssize_t count = read(drain.source.get(), m_buffer.data(), m_buffer.size());
    if (count <= 0) {
        if (count < 0 && errno == EINTR) return;
        drain.source.close();
        if (!drain.isResult) handOn(drain, drain.filter.rest());
        return;
    }
    const std::string_view piece{m_buffer.data(), static_cast<std::size_t>(count)};
    if (!drain.isResult) {
        handOn(drain, drain.filter.pass(piece));
    } else if (const int error = writeAll(drain.sink, piece)) {
        m_result.outputError = error;
        drain.source.close();
    }
}

void Relay::handOn(const Drain &drain, std::string_view text)
{
    if (text.empty()) return;
    if (!std::exchange(m_result.printed, true)) m_beforeFirstWord();
    writeAll(drain.sink, text);
}
