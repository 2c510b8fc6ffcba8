#pragma once

#include "StagedFile.h"
#include "smime/ByteStreams.h"

#include <optional>
#include <string>

/// Where a result goes: to a file, which appears under its name only once it is whole and on the disk, and is
/// its user's alone, or to standard output.
class ResultFile final : public ByteSink {
public:
    /// What becomes of a target that is there already.
    enum class Target {
        Name,  ///< a link or a pipe is nothing but a name, and goes
        Opened ///< where a link leads the result goes; what is no regular file, or can't be replaced, is
               ///< written to as it is
    };
    /// Nothing: standard output.
    ResultFile(const std::optional<std::string> &path, Target target);

    /// False: there is nowhere to write to; problem() says why.
    [[nodiscard]] bool open();
    [[nodiscard]] bool isStaged() const { return static_cast<bool>(m_staged); }
    /// Opens a target that isn't staged. False: problem() says why.
    [[nodiscard]] bool openTarget();
    [[nodiscard]] bool write(Bytes bytes) override;
    /// Says, once, where there was no room for it; nothing where there was.
    void tellWhereFull();
    /// Gives a staged file its name, in the place of an older one. False: problem() says why not.
    [[nodiscard]] bool commit();
    /// What went wrong, as a sentence; empty: nothing.
    [[nodiscard]] const std::string &problem() const { return m_problem; }

private:
    bool fail(int error);
    [[nodiscard]] bool mayReplace();
    [[nodiscard]] bool stage();

    std::optional<std::string> m_path;
    Target m_target;
    std::string m_name; ///< of the staged file, in its folder
    base::FileDescriptor m_folder;
    base::StagedFile m_staged;
    base::FileDescriptor m_unstaged;
    int m_descriptor;
    std::string m_problem;
    bool m_isFull = false;
};
