#pragma once

#include "StagedFile.h"
#include "smime/ByteReader.h"

/// Prints one line of the front's own to standard error. Always false.
bool complain(const std::string &message);
/// What the system says of an errno.
[[nodiscard]] std::string systemReason(int error);

/// What the front, or the tool under its eyes, reads and writes.
struct FilePair {
    std::optional<std::string> input{};  ///< nothing: standard input
    std::optional<std::string> output{}; ///< nothing: standard output
    /// Whether this is a command line of the program that these tools belong to: then names are but names,
    /// and nothing is opened through a link or a pipe that waits under one.
    bool isOurs = false;
};

/// Opens the input, where it is no standard stream. Where the files are `isOurs` it has to be a regular file
/// under that very name; what waits behind a link or a pipe could be anything, or nothing for ever. Where it
/// can't be read, `problem` is a sentence that says why.
[[nodiscard]] base::FileDescriptor openInput(const FilePair &files, std::string &problem);

/// Where a result goes: to a file, which appears under its name only once it is whole and on the disk, and is
/// its user's alone, or to standard output.
class ResultFile final : public ByteSink {
public:
    /// Where the files are `isOurs`, a link or a pipe under the name is nothing but a name, and goes. Else
    /// the result goes where a link leads; what is no regular file, or can't be replaced, is written to as it
    /// is.
    explicit ResultFile(const FilePair &files);

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
    bool m_isOurs;
    std::string m_name; ///< of the staged file, in its folder
    base::FileDescriptor m_folder;
    base::StagedFile m_staged;
    base::FileDescriptor m_unstaged;
    int m_descriptor;
    std::string m_problem;
    bool m_isFull = false;
};

/// Makes of all the bytes of the input all those of the output. False: the fault is set, or the output
/// failed. What the output got is worth nothing then.
using Conversion = std::function<bool(ByteSource &, ByteSink &, Fault &)>;

/// Carries it out. Where anything fails, standard error says why, and no result is left behind.
/// Returns the exit status for the program; a signal that asks to stop ends the program.
[[nodiscard]] int convert(const FilePair &files, const Conversion &conversion);
