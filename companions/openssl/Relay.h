#pragma once

#include "FileDescriptor.h"
#include "smime/ByteStreams.h"

#include <functional>
#include <vector>

/// Carries what a child process writes to the outside, until the child has closed its ends.
class Relay {
public:
    struct Result {
        bool printed = false;  ///< whether anything came by forward()
        bool isWritten = true; ///< whether the sink of collect() took everything
    };

    /// Hands on to the descriptor `to` what the child prints. Where nobody reads there, it is dropped.
    void forward(base::FileDescriptor childOutput, int to);
    /// Writes the child's result to `sink`. Where that fails the child finds its output closed.
    void collect(base::FileDescriptor childOutput, ByteSink &sink);
    /// Is called before the first that is handed on.
    void beforeFirstWord(std::function<void()> call) { m_beforeFirstWord = std::move(call); }

    [[nodiscard]] Result run();

private:
    struct Drain {
        base::FileDescriptor source;
        std::function<bool(Bytes)> handOn;
    };

    [[nodiscard]] bool isDone() const;
    void drain(Drain &drain);

    Result m_result;
    std::vector<std::uint8_t> m_buffer;
    std::vector<Drain> m_drains;
    std::function<void()> m_beforeFirstWord = [] {};
};
