#include "RunTool.h"

#include "FileDescriptor.h"
#include "Relay.h"
#include "StagedOutput.h"
#include "StopSignals.h"
#include "ToolProcess.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int failure = 1;

/// A pipe with the password in it, as the one line that the tool reads. Closed, with errno set: it couldn't
/// be made.
FileDescriptor passwordPipe(Secret &password)
{
    Pipe pipe = Pipe::open();
    if (!pipe.isOpen()) return {};
    std::array<char, Secret::maximumSize + 1> line;
    const std::string_view text = password.text();
    std::memcpy(line.data(), text.data(), text.size());
    line[text.size()] = '\n';
    // It fits into any pipe, so this never waits for a reader.
    const ssize_t written = write(pipe.write.get(), line.data(), text.size() + 1);
    wipeMemory(line.data(), line.size());
    password.wipe();
    return written == static_cast<ssize_t>(text.size() + 1) ? std::move(pipe.read) : FileDescriptor();
}

std::string systemReason(int error) { return std::generic_category().message(error); }

/// One run of the tool, with all that belongs to it.
class SupervisedRun {
public:
    SupervisedRun(const std::string &tool, const ToolRun &run) : m_tool(tool), m_run(run)
    {
        if (run.output) m_output.emplace(*run.output);
    }

    int execute(Secret &password)
    {
        if (!prepareInput() || !start(password)) return failure;
        const Relay::Result relayed = m_relay.run();
        const int waitStatus = m_signals.waitForChild();
        if (!succeeded(waitStatus, relayed)) {
            if (m_output && m_output->isFull())
                complain("there is next to no space left for " + *m_run.output);
            return WIFEXITED(waitStatus) && WEXITSTATUS(waitStatus) != 0 ? WEXITSTATUS(waitStatus) : failure;
        }
        return m_output ? commit() : 0;
    }

private:
    bool prepareInput()
    {
        if (!m_run.input) return true;
        m_input = FileDescriptor(open(m_run.input->c_str(), O_RDONLY | O_CLOEXEC));
        if (!m_input.isOpen()) complain("cannot open " + *m_run.input + ": " + systemReason(errno));
        return m_input.isOpen();
    }

    bool start(Secret &password)
    {
        FileDescriptor passwordEnd;
        if (m_run.hasPassword) {
            passwordEnd = passwordPipe(password);
            if (!passwordEnd.isOpen()) return cannotStart();
        }
        Pipe input = m_run.stream ? Pipe::open() : Pipe();
        Pipe output = m_output ? Pipe::open() : Pipe();
        Pipe errors = Pipe::open();
        if (!errors.isOpen() || (m_output && !output.isOpen()) || (m_run.stream && !input.isOpen()))
            return cannotStart();

        const ToolStreams streams{m_run.stream ? input.read.get() : m_input.get(), output.write.get(),
                                  errors.write.get(), passwordEnd.get()};
        const pid_t child = startTool(m_tool, toolArguments(passwordEnd.get()), streams, m_signals);
        if (child < 0) return cannotStart();
        m_signals.watch(child);
        connect(std::move(output.read), std::move(errors.read));
        if (m_run.stream) m_relay.feed(*m_run.stream, std::move(input.write));
        return true;
    }

    static bool cannotStart()
    {
        complain("cannot start the system's openssl program: " + systemReason(errno));
        return false;
    }

    [[nodiscard]] bool collectsOutput() const
    {
        return m_run.collectsOutput && m_output && m_output->isStaged();
    }

    [[nodiscard]] std::vector<std::string> toolArguments(int passwordEnd) const
    {
        std::vector<std::string> added;
        if (m_run.hasPassword) added.insert(added.end(), {"-pass", "fd:" + std::to_string(passwordEnd)});
        if (m_output && !collectsOutput()) added.insert(added.end(), {"-out", m_output->path()});
        std::vector<std::string> arguments = m_run.arguments;
        arguments.insert(arguments.begin() + 1, added.begin(), added.end());
        return arguments;
    }

    void connect(FileDescriptor output, FileDescriptor errors)
    {
        if (collectsOutput())
            m_relay.collect(std::move(output), m_output->descriptor());
        else if (m_output)
            m_relay.forward(std::move(output), STDOUT_FILENO);
        m_relay.forward(std::move(errors), STDERR_FILENO, m_run.knownLines);
    }

    /// Tells what went wrong where nobody else did.
    bool succeeded(int waitStatus, const Relay::Result &relayed) const
    {
        if (const int signal = StopSignals::received()) {
            complain("stopped by " + signalName(signal));
            return false;
        }
        if (relayed.outputError != 0) {
            complain("cannot write " + *m_run.output + ": " + systemReason(relayed.outputError));
            return false;
        }
        if (relayed.inputError != 0) {
            complain("cannot read the input: " + systemReason(relayed.inputError));
            return false;
        }
        if (WIFSIGNALED(waitStatus)) {
            complain(m_tool + " was ended by " + signalName(WTERMSIG(waitStatus)));
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
        if (!m_input.isOpen() || m_run.mayPrint) return true;
        char byte = 0;
        const ssize_t count = pread(m_input.get(), &byte, 1, lseek(m_input.get(), 0, SEEK_CUR));
        if (count < 0) complain("cannot read " + *m_run.input + ": " + systemReason(errno));
        if (count > 0) complain(*m_run.input + " was not read to its end");
        return count == 0;
    }

    int commit()
    {
        const std::error_code error = m_output->commit();
        if (error) complain("cannot write " + *m_run.output + ": " + error.message());
        return error ? failure : 0;
    }

    const std::string &m_tool;
    const ToolRun &m_run;
    // First of all: from here on no signal ends the program while a staged file is there.
    StopSignals m_signals;
    std::optional<StagedOutput> m_output;
    FileDescriptor m_input;
    Relay m_relay;
};

} // namespace

int runTool(const std::string &tool, const ToolRun &run, Secret &password)
{
    const int status = SupervisedRun(tool, run).execute(password);
    if (const int signal = StopSignals::received()) endBySignal(signal);
    return status;
}

void complain(const std::string &message) { std::fprintf(stderr, "openssl: %s\n", message.c_str()); }
