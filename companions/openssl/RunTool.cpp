#include "RunTool.h"

#include "Complaint.h"
#include "FileSource.h"
#include "Relay.h"
#include "ResultFile.h"
#include "StopSignals.h"
#include "ToolProcess.h"
#include "WipedBytes.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int failure = 1;

/// A pipe with the password in it, as the one line that the tool reads. Closed, with errno set: it couldn't
/// be made.
base::FileDescriptor passwordPipe(Secret &password)
{
    base::Pipe pipe = base::Pipe::open();
    if (!pipe.read) return {};
    std::array<char, Secret::maximumSize + 1> line;
    const std::string_view text = password.text();
    std::memcpy(line.data(), text.data(), text.size());
    line[text.size()] = '\n';
    // It fits into any pipe, so this never waits for a reader.
    const ssize_t written = write(pipe.write.get(), line.data(), text.size() + 1);
    base::wipe(line.data(), line.size());
    password.wipe();
    return written == static_cast<ssize_t>(text.size() + 1) ? std::move(pipe.read) : base::FileDescriptor();
}

std::string systemReason(int error) { return std::generic_category().message(error); }

/// One run of the tool, with all that belongs to it.
class SupervisedRun {
public:
    SupervisedRun(const std::string &tool, const ToolRun &run)
        : m_tool(tool)
        , m_run(run)
        , m_output(run.output, run.isOurs ? ResultFile::Target::Name : ResultFile::Target::Opened)
    {
        // Before anything that the tool makes of it, which nobody would understand.
        m_relay.beforeFirstWord([this] { m_output.tellWhereFull(); });
    }

    int execute(Secret &password)
    {
        if (!prepareInput()) return failure;
        if (!m_output.open()) return tellOutputProblem();
        if (!start(password)) return failure;
        const Relay::Result relayed = m_relay.run();
        const int waitStatus = m_signals.waitForChild();
        m_output.tellWhereFull();
        if (!succeeded(waitStatus, relayed))
            return WIFEXITED(waitStatus) && WEXITSTATUS(waitStatus) != 0 ? WEXITSTATUS(waitStatus) : failure;
        return m_output.commit() ? 0 : tellOutputProblem();
    }

private:
    bool prepareInput()
    {
        if (!m_run.input) return true;
        std::string problem;
        m_input = openInput(*m_run.input, m_run.isOurs, problem);
        if (!m_input) complain(problem);
        return static_cast<bool>(m_input);
    }

    int tellOutputProblem()
    {
        m_output.tellWhereFull();
        complain(m_output.problem());
        return failure;
    }

    bool start(Secret &password)
    {
        base::FileDescriptor passwordEnd;
        if (m_run.hasPassword) {
            passwordEnd = passwordPipe(password);
            if (!passwordEnd) return cannotStart();
        }
        base::Pipe output = m_run.output ? base::Pipe::open() : base::Pipe();
        base::Pipe errors = base::Pipe::open();
        if (!errors.read || (m_run.output && !output.read)) return cannotStart();

        const ToolStreams streams{m_input.get(), output.write.get(), errors.write.get(), {passwordEnd.get()}};
        const pid_t child = startTool(m_tool, toolArguments(passwordEnd.get()), streams, m_signals);
        if (child < 0) return cannotStart();
        m_signals.watch(child);
        connect(std::move(output.read), std::move(errors.read));
        return true;
    }

    static bool cannotStart()
    {
        complain("cannot start the system's openssl program: " + systemReason(errno));
        return false;
    }

    /// The front writes the result file itself: where a disk is full for a moment the tool may lose a piece
    /// of what it writes, say nothing, and end well.
    [[nodiscard]] bool collectsOutput() const { return m_output.isStaged(); }

    [[nodiscard]] std::vector<std::string> toolArguments(int passwordEnd) const
    {
        std::vector<std::string> added;
        if (m_run.hasPassword) added.insert(added.end(), {"-pass", "fd:" + std::to_string(passwordEnd)});
        if (m_run.output && !collectsOutput()) added.insert(added.end(), {"-out", *m_run.output});
        std::vector<std::string> arguments = m_run.arguments;
        arguments.insert(arguments.begin() + 1, added.begin(), added.end());
        return arguments;
    }

    void connect(base::FileDescriptor output, base::FileDescriptor errors)
    {
        if (collectsOutput())
            m_relay.collect(std::move(output), m_output);
        else if (m_run.output)
            m_relay.forward(std::move(output), STDOUT_FILENO);
        m_relay.forward(std::move(errors), STDERR_FILENO);
    }

    /// Tells what went wrong where nobody else did.
    bool succeeded(int waitStatus, const Relay::Result &relayed) const
    {
        if (const int signal = base::StopSignals::received()) {
            complain("stopped by " + base::signalName(signal));
            return false;
        }
        if (!relayed.isWritten) {
            complain(m_output.problem());
            return false;
        }
        if (WIFSIGNALED(waitStatus)) {
            complain(m_tool + " was ended by " + base::signalName(WTERMSIG(waitStatus)));
            return false;
        }
        const bool isFailure = WEXITSTATUS(waitStatus) != 0;
        if (isFailure && !relayed.printed)
            complain(m_tool + " failed with exit status " + std::to_string(WEXITSTATUS(waitStatus)) +
                     " and no reason");
        return !isFailure && (!relayed.printed || m_run.mayPrint) && wasReadToEnd();
    }

    /// The tool read through a descriptor of ours, so ours stands where the tool stopped.
    bool wasReadToEnd() const
    {
        if (!m_input || m_run.mayPrint) return true;
        char byte = 0;
        const ssize_t count = pread(m_input.get(), &byte, 1, lseek(m_input.get(), 0, SEEK_CUR));
        if (count < 0) complain("cannot read " + *m_run.input + ": " + systemReason(errno));
        if (count > 0) complain(*m_run.input + " was not read to its end");
        return count == 0;
    }

    const std::string &m_tool;
    const ToolRun &m_run;
    // First of all: from here on no signal ends the program while a staged file is there.
    // A reader that went away must not end it before the child is waited for.
    base::StopSignals m_signals{base::StopSignals::BrokenPipe::IsAnError};
    ResultFile m_output;
    base::FileDescriptor m_input;
    Relay m_relay;
};

} // namespace

int runTool(const std::string &tool, const ToolRun &run, Secret &password)
{
    const int status = SupervisedRun(tool, run).execute(password);
    if (const int signal = base::StopSignals::received()) base::endBySignal(signal);
    return status;
}
