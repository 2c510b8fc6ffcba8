#pragma once

#include "FileDescriptor.h"
#include "ToolRun.h"

#include <optional>
#include <string>

/// An input of which the first bytes are known before the tool reads it.
class PeekedInput {
public:
    /// Nothing: standard input. `isOurs`: as for openInput().
    PeekedInput(const std::optional<std::string> &path, bool isOurs);

    /// Why it can't be opened; empty: it is open.
    [[nodiscard]] const std::string &problem() const { return m_problem; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// The bytes that it begins with, up to 128; fewer only where there are no more, or it can't be read.
    [[nodiscard]] const std::string &head() const { return m_head; }
    /// What is to be handed to the tool in the place of a stream, of which the head is gone. Nothing: it can
    /// be read again.
    [[nodiscard]] std::optional<BegunStream> stream() const;

private:
    base::FileDescriptor m_file;
    std::string m_problem;
    int m_descriptor;
    bool m_isStream = false;
    std::string m_head;
};

/// The bytes that a base64 text stands for, as far as its groups of four letters are whole; line breaks don't
/// count. Empty: it is no such text.
[[nodiscard]] std::string decodeBase64(const std::string &text);
