#include "Command.h"

#include <array>
#include <cerrno>
#include <csignal>
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

/// All that a child needs, made before the fork: behind it nothing may be allocated, for another thread may
/// have been at that, whose lock would stay locked.
class Launch {
public:
    Launch(const std::vector<std::string> &arguments, const CommandOptions &options)
        : m_folder(options.folder), m_arguments(arguments)
    {
        std::map<std::string, std::string> environment = options.environment;
        for (char **entry = environ; *entry; ++entry) {
            const std::string text = *entry;
            const std::size_t sign = text.find('=');
            if (sign != std::string::npos)
                environment.try_emplace(text.substr(0, sign), text.substr(sign + 1));
        }
        for (const auto &[name, value] : environment)
            m_environment.push_back(name + '=' + value);
        m_argumentPointers = pointersTo(m_arguments);
        m_environmentPointers = pointersTo(m_environment);
    }

    [[noreturn]] void become(std::array<int, 3> descriptors)
    {
        for (int standard = 0; standard < 3; ++standard)
            dup2(descriptors[static_cast<std::size_t>(standard)], standard);
        // What another thread of the test has open keeps its room on a disk for as long as anybody has it.
        closefrom(STDERR_FILENO + 1);
        if (!m_folder.empty() && chdir(m_folder.c_str()) != 0) _exit(126);
        environ = m_environmentPointers.data(); // where the program is looked for, too
        execvp(m_argumentPointers.front(), m_argumentPointers.data());
        _exit(127);
    }

private:
    static std::vector<char *> pointersTo(std::vector<std::string> &texts)
    {
        std::vector<char *> pointers;
        for (std::string &text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    std::string m_folder;
    std::vector<std::string> m_arguments;
    std::vector<std::string> m_environment;
    std::vector<char *> m_argumentPointers;
    std::vector<char *> m_environmentPointers;
};

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
    Launch launch(arguments, options);
    m_process = forkOrThrow();
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        launch.become({input.read, output, output});
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
    Launch launch(arguments, options);
    const pid_t child = forkOrThrow();
    if (child == 0) launch.become({input.read, output.write, errors.write});
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
