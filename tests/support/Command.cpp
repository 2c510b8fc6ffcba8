#include "Command.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace {

struct Pipe {
    int read = -1;
    int write = -1;

    Pipe()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::system_error(errno, std::generic_category(), "pipe2");
        read = ends[0];
        write = ends[1];
    }
    ~Pipe()
    {
        closeEnd(read);
        closeEnd(write);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    static void closeEnd(int &end)
    {
        if (end >= 0) close(end);
        end = -1;
    }
};

/// Reads until the last writer is gone.
void readAll(int end, std::string &into)
{
    std::array<char, 65536> buffer;
    for (ssize_t count = 1; count > 0 || (count < 0 && errno == EINTR);) {
        count = read(end, buffer.data(), buffer.size());
        if (count > 0) into.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

/// Writes all, as far as the reader takes it.
void writeAll(Pipe &pipe, const std::string &bytes)
{
    for (std::size_t written = 0; written < bytes.size();) {
        const ssize_t count = write(pipe.write, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno != EINTR) break; // it went away
        if (count > 0) written += static_cast<std::size_t>(count);
    }
    Pipe::closeEnd(pipe.write);
}

/// In the child of a fork.
[[noreturn]] void becomeProgram(const std::vector<std::string> &arguments, const CommandOptions &options,
                                std::array<int, 3> descriptors)
{
    for (int standard = 0; standard < 3; ++standard)
        dup2(descriptors[static_cast<std::size_t>(standard)], standard);
    if (!options.folder.empty() && chdir(options.folder.c_str()) != 0) _exit(126);
    for (const auto &[name, value] : options.environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char *> argv;
    for (const std::string &argument : arguments)
        argv.push_back(const_cast<char *>(argument.c_str()));
    argv.push_back(nullptr);
    execvp(argv.front(), argv.data());
    _exit(127);
}

pid_t forkOrThrow()
{
    const pid_t child = fork();
    if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
    return child;
}

} // namespace

BackgroundProgram::BackgroundProgram(const std::vector<std::string> &arguments, const CommandOptions &options,
                                     const std::string &log)
{
    Pipe input; // what is written must fit into it
    writeAll(input, options.input);
    const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    m_process = forkOrThrow();
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        becomeProgram(arguments, options, {input.read, output, output});
    }
    close(output);
}

BackgroundProgram::~BackgroundProgram()
{
    if (m_process <= 0) return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
}

bool BackgroundProgram::hasEnded()
{
    if (m_process > 0 && waitpid(m_process, nullptr, WNOHANG) == m_process) m_process = -1;
    return m_process < 0;
}

void BackgroundProgram::signal(int number) const
{
    if (m_process > 0) kill(m_process, number);
}

CommandResult runCommand(const std::vector<std::string> &arguments, const CommandOptions &options)
{
    Pipe input;
    Pipe output;
    Pipe errors;
    const pid_t child = forkOrThrow();
    if (child == 0) becomeProgram(arguments, options, {input.read, output.write, errors.write});
    Pipe::closeEnd(output.write);
    Pipe::closeEnd(errors.write);

    Pipe::closeEnd(input.read);

    // A program that does not read its input must not end the test.
    signal(SIGPIPE, SIG_IGN);

    CommandResult result;
    {
        const std::jthread feeding([&] { writeAll(input, options.input); });
        const std::jthread listening([&] { readAll(errors.read, result.errors); });
        readAll(output.read, result.output);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    result.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return result;
}
