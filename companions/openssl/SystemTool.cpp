#include "SystemTool.h"

#include "PassPhrase.h"
#include "StopSignals.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace {

constexpr int failure = 1;
constexpr std::size_t bufferSize = 65536; // what a pipe holds

// The tool goes by its own name: under another one it would take the name for a command.
char toolName[] = "openssl";

std::optional<FileIdentity> identityOf(const char *path)
{
    struct stat status {};
    if (stat(path, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

struct Pipe {
    base::FileDescriptor read;
    base::FileDescriptor write;
};

/// One that programs started later do not inherit. Both ends closed, with errno set: there is none to be had.
Pipe openPipe()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return {};
    return {base::FileDescriptor(ends[0]), base::FileDescriptor(ends[1])};
}

/// A pipe with the password in it, as the one line that the tool reads. Closed, with errno set: it couldn't
/// be made.
base::FileDescriptor passwordPipe(Secret &password)
{
    Pipe pipe = openPipe();
    if (!pipe.read) return {};
    const std::size_t size = password.text().size() + 1;
    const base::WipedBytes line(size);
    std::ranges::copy(password.text(), line.data());
    line.data()[size - 1] = '\n';
    // It fits into any pipe, so this never waits for a reader.
    const ssize_t written = write(pipe.write.get(), line.data(), size);
    password.wipe();
    return written == static_cast<ssize_t>(size) ? std::move(pipe.read) : base::FileDescriptor();
}

/// Starts `tool` with these arguments (without a program name) as a child process that ends with this program
/// and whose files are its user's alone. `streams`: its standard ones, where they aren't the program's own;
/// `inherited`: one more descriptor, under the same number; -1: none. Gives -1, with errno set, where no
/// process could be made. Where the tool itself can't be run, the child says so on its standard error and
/// exits with 127.
pid_t startTool(const std::string &tool, std::vector<std::string> arguments,
                const std::array<int, 3> &streams, int inherited, const base::StopSignals &signals)
{
    std::vector<char *> argv{toolName};
    for (std::string &argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child != 0) return child;

    // The tool must not go on writing when nobody is left to judge its result.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(127); // it may have ended before the line above
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream)
        if (const int own = streams[static_cast<std::size_t>(stream)]; own >= 0) dup2(own, stream);
    if (inherited >= 0) fcntl(inherited, F_SETFD, 0);
    umask(S_IRWXG | S_IRWXO);
    signals.restore();
    becomeTool(tool, argv.data());
    std::fprintf(stderr, "openssl: cannot run %s: %s\n", tool.c_str(), std::strerror(errno));
    _exit(127);
}

/// One run of the tool, with all that belongs to it.
class SupervisedRun {
public:
    SupervisedRun(const std::string &tool, const ToolRun &run) : m_tool(tool), m_run(run), m_output(run.files)
    {
    }

    int execute(Secret &password)
    {
        std::string problem;
        m_input = openInput(m_run.files, problem);
        if (!problem.empty()) {
            complain(problem);
            return failure;
        }
        if (!m_output.open()) return tellOutputProblem();
        if (!start(password)) {
            complain("cannot start the system's openssl program: " + systemReason(errno));
            return failure;
        }
        relay();
        const int waitStatus = m_signals.waitForChild();
        m_output.tellWhereFull();
        if (!succeeded(waitStatus))
            return WIFEXITED(waitStatus) && WEXITSTATUS(waitStatus) != 0 ? WEXITSTATUS(waitStatus) : failure;
        return m_output.commit() ? 0 : tellOutputProblem();
    }

private:
    int tellOutputProblem()
    {
        m_output.tellWhereFull();
        complain(m_output.problem());
        return failure;
    }

    /// False with errno set.
    bool start(Secret &password)
    {
        base::FileDescriptor passwordEnd;
        if (m_run.hasPassword && !(passwordEnd = passwordPipe(password))) return false;
        Pipe output = m_run.files.output ? openPipe() : Pipe();
        Pipe errors = openPipe();
        if (!errors.read || (m_run.files.output && !output.read)) return false;

        const pid_t child =
            startTool(m_tool, toolArguments(passwordEnd.get()),
                      {m_input.get(), output.write.get(), errors.write.get()}, passwordEnd.get(), m_signals);
        if (child < 0) return false;
        m_signals.watch(child);
        m_toolOutput = std::move(output.read);
        m_toolErrors = std::move(errors.read);
        return true;
    }

    /// The front writes the result file itself: where a disk is full for a moment the tool may lose a piece
    /// of what it writes, say nothing, and end well.
    [[nodiscard]] bool collectsOutput() const { return m_output.isStaged(); }

    [[nodiscard]] std::vector<std::string> toolArguments(int passwordEnd) const
    {
        std::vector<std::string> added;
        if (m_run.hasPassword) added.insert(added.end(), {"-pass", "fd:" + std::to_string(passwordEnd)});
        if (m_run.files.output && !collectsOutput()) added.insert(added.end(), {"-out", *m_run.files.output});
        std::vector<std::string> arguments = m_run.arguments;
        arguments.insert(arguments.begin() + 1, added.begin(), added.end());
        return arguments;
    }

    /// Carries to the outside what the tool writes, until it has closed its ends.
    void relay()
    {
        while (m_toolOutput || m_toolErrors) {
            std::array<pollfd, 2> ends{{{m_toolOutput.get(), POLLIN, 0}, {m_toolErrors.get(), POLLIN, 0}}};
            if (poll(ends.data(), ends.size(), -1) < 0) {
                if (errno == EINTR) continue;
                break;
            }
            if (ends[0].revents) drain(m_toolOutput, STDOUT_FILENO);
            if (ends[1].revents) drain(m_toolErrors, STDERR_FILENO);
        }
    }

    /// Closes the tool's end where it has, or where nobody takes its result: then it finds its output closed.
    void drain(base::FileDescriptor &from, int to)
    {
        const ssize_t count = read(from.get(), m_buffer.data(), m_buffer.size());
        if (count < 0 && errno == EINTR) return;
        bool isOpen = count > 0;
        const Bytes bytes = Bytes(m_buffer).first(isOpen ? static_cast<std::size_t>(count) : 0);
        if (isOpen && to == STDOUT_FILENO && collectsOutput())
            isOpen = m_isWritten = m_output.write(bytes);
        else if (isOpen)
            print(bytes, to);
        if (!isOpen) from.close();
    }

    /// Where nobody reads there, it is dropped.
    void print(Bytes text, int to)
    {
        // Before anything that the tool makes of it, which nobody would understand.
        if (!std::exchange(m_hasPrinted, true)) m_output.tellWhereFull();
        (void)base::writeFully(to, text);
    }

    /// Tells what went wrong where nobody else did.
    bool succeeded(int waitStatus) const
    {
        if (const int signal = base::StopSignals::received())
            return complain("stopped by " + base::signalName(signal));
        if (!m_isWritten) return complain(m_output.problem());
        if (WIFSIGNALED(waitStatus))
            return complain(m_tool + " was ended by " + base::signalName(WTERMSIG(waitStatus)));
        const bool isFailure = WEXITSTATUS(waitStatus) != 0;
        if (isFailure && !m_hasPrinted)
            complain(m_tool + " failed with exit status " + std::to_string(WEXITSTATUS(waitStatus)) +
                     " and no reason");
        return !isFailure && (!m_hasPrinted || m_run.mayPrint) && wasReadToEnd();
    }

    /// The tool read through a descriptor of ours, so ours stands where the tool stopped.
    bool wasReadToEnd() const
    {
        if (!m_input || m_run.mayPrint) return true;
        char byte = 0;
        const ssize_t count = pread(m_input.get(), &byte, 1, lseek(m_input.get(), 0, SEEK_CUR));
        if (count < 0) return complain("cannot read " + *m_run.files.input + ": " + systemReason(errno));
        return count == 0 || complain(*m_run.files.input + " was not read to its end");
    }

    const std::string &m_tool;
    const ToolRun &m_run;
    // First of all: from here on no signal ends the program while a staged file is there.
    // A reader that went away must not end it before the child is waited for.
    base::StopSignals m_signals{base::StopSignals::BrokenPipe::IsAnError};
    ResultFile m_output;
    base::FileDescriptor m_input;
    base::FileDescriptor m_toolOutput; ///< what comes from it
    base::FileDescriptor m_toolErrors;
    std::vector<std::uint8_t> m_buffer = std::vector<std::uint8_t>(bufferSize);
    bool m_hasPrinted = false;
    bool m_isWritten = true; ///< the result's file took everything
};

} // namespace

std::vector<FileIdentity> ownIdentities(const char *ownName)
{
    std::error_code error;
    std::filesystem::path file = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error && ownName && std::strchr(ownName, '/')) file = ownName;
    std::vector<FileIdentity> identities;
    if (file.empty()) return identities;
    for (const std::filesystem::path &path : {file, file.parent_path() / "openssl"})
        if (const auto identity = identityOf(path.c_str())) identities.push_back(*identity);
    return identities;
}

std::vector<std::string> toolCandidates(const char *searchPath)
{
    std::vector<std::string> candidates{"/usr/bin/openssl", "/usr/local/bin/openssl", "/bin/openssl"};
    std::string_view rest = searchPath ? searchPath : "";
    while (!rest.empty()) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        rest.remove_prefix(folder.size() == rest.size() ? rest.size() : folder.size() + 1);
        // A relative folder would make the tool depend on where the program happens to be started.
        if (folder.starts_with('/')) candidates.push_back(std::string(folder) + "/openssl");
    }
    return candidates;
}

std::optional<std::string> findTool(const std::vector<std::string> &candidates,
                                    const std::vector<FileIdentity> &own)
{
    for (const std::string &candidate : candidates) {
        const auto identity = identityOf(candidate.c_str());
        if (identity && !std::ranges::count(own, *identity) && access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return std::nullopt;
}

void becomeTool(const std::string &tool, char **argv)
{
    argv[0] = toolName;
    execv(tool.c_str(), argv);
}

int runTool(const std::string &tool, const ToolRun &run, Secret &password)
{
    const int status = SupervisedRun(tool, run).execute(password);
    if (const int signal = base::StopSignals::received()) base::endBySignal(signal);
    return status;
}
