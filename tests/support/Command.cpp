#include "Command.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
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

/// Appends what is there to read; closes the end when the writer is gone.
void drain(int &end, std::string &into)
{
    std::array<char, 65536> buffer;
    const ssize_t count = read(end, buffer.data(), buffer.size());
    if (count > 0)
        into.append(buffer.data(), static_cast<std::size_t>(count));
    else if (count == 0 || errno != EINTR)
        Pipe::closeEnd(end);
}

void feed(int &end, const std::string &input, std::size_t &written)
{
    const ssize_t count = write(end, input.data() + written, input.size() - written);
    if (count > 0)
        written += static_cast<std::size_t>(count);
    else if (errno != EINTR && errno != EAGAIN)
        written = input.size(); // the reader went away
    if (written == input.size()) Pipe::closeEnd(end);
}

[[noreturn]] void becomeProgram(const std::vector<std::string> &arguments, const CommandOptions &options)
{
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

} // namespace

CommandResult runCommand(const std::vector<std::string> &arguments, const CommandOptions &options)
{
    Pipe input;
    Pipe output;
    Pipe errors;
    const pid_t child = fork();
    if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
    if (child == 0) {
        dup2(input.read, STDIN_FILENO);
        dup2(output.write, STDOUT_FILENO);
        dup2(errors.write, STDERR_FILENO);
        becomeProgram(arguments, options);
    }
    Pipe::closeEnd(input.read);
    Pipe::closeEnd(output.write);
    Pipe::closeEnd(errors.write);

    // A blocking write of more than the pipe holds would keep the program's output waiting, and so the
    // program.
    fcntl(input.write, F_SETFL, O_NONBLOCK);

    // A program that does not read its input must not end the test.
    signal(SIGPIPE, SIG_IGN);

    CommandResult result;
    std::size_t written = 0;
    if (options.input.empty()) Pipe::closeEnd(input.write);
    while (output.read >= 0 || errors.read >= 0 || input.write >= 0) {
        std::array<pollfd, 3> ends{pollfd{output.read, POLLIN, 0}, pollfd{errors.read, POLLIN, 0},
                                   pollfd{input.write, POLLOUT, 0}};
        if (poll(ends.data(), ends.size(), -1) < 0 && errno != EINTR) break;
        if (ends[0].revents) drain(output.read, result.output);
        if (ends[1].revents) drain(errors.read, result.errors);
        if (ends[2].revents) feed(input.write, options.input, written);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    result.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return result;
}
