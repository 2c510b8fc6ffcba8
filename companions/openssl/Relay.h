#pragma once

#include "FileDescriptor.h"
#include "InputFeed.h"
#include "LineFilter.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Carries what a child process writes to the outside, and a stream to the child, until the child has closed
/// its ends.
class Relay {
public:
    struct Result {
        bool printed = false; ///< whether anything came by forward()
        int outputError = 0;  ///< the errno value of writing for collect(); 0: none
        int inputError = 0;   ///< the errno value of reading for feed(); 0: none
    };

    /// Hands on to `sink` what the child prints, but for these lines. Where nobody reads there, it is
    /// dropped.
    void forward(base::FileDescriptor childOutput, int sink, std::vector<std::string> droppedLines = {});
    /// Writes the child's result to `sink`. On an error the child finds its output closed.
    void collect(base::FileDescriptor childOutput, int sink);

    /// Gives the child all of the stream.
    void feed(const BegunStream &stream, base::FileDescriptor childInput);

    /// Is called before the first that is handed on to `sink`.
    void beforeFirstWord(std::function<void()> call) { m_beforeFirstWord = std::move(call); }

    [[nodiscard]] Result run();
    [[nodiscard]] int outputError() const { return m_result.outputError; } ///< so far

private:
    struct Drain {
        base::FileDescriptor source;
        int sink;
        bool isResult;
        LineFilter filter;
    };

    [[nodiscard]] bool isDone() const;
    void drain(Drain &drain);
    void handOn(const Drain &drain, std::string_view text);

    Result m_result;
    std::vector<char> m_buffer;
    std::vector<Drain> m_drains;
    std::optional<InputFeed> m_feed;
    std::function<void()> m_beforeFirstWord = [] {};
};
