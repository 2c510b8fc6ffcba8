#include "Command.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

/// A nameless file, which goes with the object.
class Scratch {
public:
    explicit Scratch(const std::string &bytes = {}) : m_file(memfd_create("scratch", MFD_CLOEXEC))
    {
        if (write(m_file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()) ||
            lseek(m_file, 0, SEEK_SET) != 0)
            throw std::system_error(errno, std::generic_category(), "scratch");
    }
    ~Scratch() { close(m_file); }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;

    [[nodiscard]] int descriptor() const { return m_file; }
    [[nodiscard]] std::string content() const
    {
        std::string bytes(static_cast<std::size_t>(lseek(m_file, 0, SEEK_END)), '\0');
        const ssize_t count = pread(m_file, bytes.data(), bytes.size(), 0);
        return bytes.substr(0, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }

private:
    int m_file;
};

std::vector<char *> pointersTo(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Starts a program with its standard input, output and errors. What another thread of the test has open
/// would keep its room on a disk for as long as anybody has it, so the program gets nothing else.
pid_t start(std::vector<std::string> arguments, const CommandOptions &options,
            const std::array<int, 3> &descriptors)
{
    std::map<std::string, std::string> all = options.environment;
    for (char **entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        all.try_emplace(text.substr(0, text.find('=')), text.substr(text.find('=') + 1));
    }
    std::vector<std::string> environment;
    for (const auto &[name, value] : all)
        environment.push_back(name + '=' + value);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (int standard = 0; standard < 3; ++standard)
        posix_spawn_file_actions_adddup2(&actions, descriptors[static_cast<std::size_t>(standard)], standard);
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    if (!options.folder.empty()) posix_spawn_file_actions_addchdir_np(&actions, options.folder.c_str());
    pid_t child = -1;
    const int error = posix_spawnp(&child, arguments.front().c_str(), &actions, nullptr,
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error) throw std::system_error(error, std::generic_category(), arguments.front());
    return child;
}

} // namespace

BackgroundProgram::BackgroundProgram(const std::vector<std::string> &arguments, const CommandOptions &options,
                                     const std::string &log)
{
    const Scratch input(options.input);
    const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    std::vector<std::string> mortal{"setpriv", "--pdeathsig", "KILL", "--"};
    mortal.insert(mortal.end(), arguments.begin(), arguments.end());
    m_process = start(mortal, options, {input.descriptor(), output, output});
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
    const Scratch input(options.input), output, errors;
    const pid_t child =
        start(arguments, options, {input.descriptor(), output.descriptor(), errors.descriptor()});
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return {WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status), output.content(),
            errors.content()};
}

void waitUntil(const std::string &what, const std::function<bool()> &condition)
{
    for (int tries = 0; !condition(); ++tries) {
        if (tries > 6000) throw std::runtime_error(what + " did not come");
        usleep(5000);
    }
}
