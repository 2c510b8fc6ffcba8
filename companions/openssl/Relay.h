#pragma once

#include "FileDescriptor.h"

#include <vector>

/// Carries what a child process writes to the outside, until the child has closed its ends.
class Relay {
public:
    struct Result {
        bool printed = false; ///< whether anything came by forward()
        int outputError = 0;  ///< the errno value of writing for collect(); 0: none
    };

    /// Hands on to `sink` what the child prints. Where nobody reads there, it is dropped.
    void forward(FileDescriptor childOutput, int sink);
    /// Writes the child's result to `sink`. On an error the child finds its output closed.
    void collect(FileDescriptor childOutput, int sink);

    [[nodiscard]] Result run();

private:
    struct Drain {
        FileDescriptor source;
        int sink;
        bool isResult;
    };

    [[nodiscard]] bool isDone() const;
    void drain(Drain &drain);

    Result m_result;
    std::vector<char> m_buffer;
    std::vector<Drain> m_drains;
};
