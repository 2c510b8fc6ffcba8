#pragma once

#include "FileDescriptor.h"
#include "StagedOutput.h"
#include "smime/ByteStreams.h"

#include <optional>
#include <string>

/// Where a result is written to: a file, which appears under its name once it is whole, or standard output.
class ResultFile final : public ByteSink {
public:
    /// Nothing: standard output.
    explicit ResultFile(const std::optional<std::string> &target);

    /// False: there is nowhere to write to; problem() says why.
    [[nodiscard]] bool open();
    [[nodiscard]] bool write(Bytes bytes) override;
    /// Gives the file its name. False: problem() says why not.
    [[nodiscard]] bool commit();
    /// What went wrong; empty: nothing.
    [[nodiscard]] const std::string &problem() const { return m_problem; }

private:
    bool fail(const std::string &reason);

    std::string m_name;
    std::optional<StagedOutput> m_staged;
    FileDescriptor m_unstaged;
    int m_descriptor;
    std::string m_problem;
};
