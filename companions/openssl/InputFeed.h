#pragma once

#include "FileDescriptor.h"
#include "ToolRun.h"

#include <poll.h>
#include <string>
#include <string_view>

/// Carries a stream to a child process, beginning with what was read of it before, one step at a time: so
/// that nobody waits for the child while the child waits to be read from.
class InputFeed {
public:
    InputFeed(const BegunStream &stream, base::FileDescriptor childInput);
    InputFeed(const InputFeed &) = delete;
    InputFeed &operator=(const InputFeed &) = delete;

    /// What the next step has to wait for; with descriptor -1: nothing is left to do.
    [[nodiscard]] pollfd awaited() const;
    void step();
    /// The errno value of reading the stream; 0: none.
    [[nodiscard]] int error() const { return m_error; }

private:
    void fill();
    void pour();

    int m_source;
    base::FileDescriptor m_sink;
    std::string m_buffer;
    std::string_view m_pending; ///< of the buffer
    int m_error = 0;
};
