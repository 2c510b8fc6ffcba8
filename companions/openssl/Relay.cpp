#include "Relay.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 65536; // what a pipe holds

}

void Relay::forward(base::FileDescriptor childOutput, int to)
{
    m_drains.push_back({std::move(childOutput), [this, to](Bytes text) {
                            if (!std::exchange(m_result.printed, true)) m_beforeFirstWord();
                            (void)base::writeFully(to, text);
                            return true;
                        }});
}

void Relay::collect(base::FileDescriptor childOutput, ByteSink &sink)
{
    m_drains.push_back({std::move(childOutput),
                        [this, &sink](Bytes bytes) { return m_result.isWritten = sink.write(bytes); }});
}

Relay::Result Relay::run()
{
    m_buffer.resize(bufferSize);
    while (!isDone()) {
        std::vector<pollfd> ends;
        for (const Drain &each : m_drains)
            ends.push_back({each.source.get(), POLLIN, 0});
        if (poll(ends.data(), ends.size(), -1) < 0) {
            if (errno == EINTR) continue;
            break;
        }
        for (std::size_t i = 0; i < m_drains.size(); ++i)
            if (ends[i].revents) drain(m_drains[i]);
    }
    return m_result;
}

bool Relay::isDone() const
{
    return std::ranges::none_of(m_drains, [](const Drain &each) { return static_cast<bool>(each.source); });
}

void Relay::drain(Drain &drain)
{
    const ssize_t count = read(drain.source.get(), m_buffer.data(), m_buffer.size());
    if (count < 0 && errno == EINTR) return;
    const bool isOpen = count > 0 && drain.handOn({m_buffer.data(), static_cast<std::size_t>(count)});
    if (!isOpen) drain.source.close();
}
