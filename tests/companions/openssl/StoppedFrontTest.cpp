#include "Front.h"
#include "Shim.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

std::string processFile(pid_t process, const std::string &name)
{
    return readFile("/proc/" + std::to_string(process) + "/" + name);
}

/// The front's only child, as soon as it is the tool with arguments of its own (it begins as a copy of its
/// parent); 0 where the front does without one.
pid_t awaitTool(pid_t parent, bool hasTool)
{
    for (int attempt = 0; hasTool && attempt < 2000; ++attempt) {
        pid_t child = 0;
        std::istringstream children(processFile(parent, "task/" + std::to_string(parent) + "/children"));
        if (children >> child && processFile(child, "cmdline").find("fd:") != std::string::npos) return child;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return 0;
}

/// Starts the front, which is to read from a pipe of which the end never comes.
pid_t startFront(const TemporaryFolder &folder, const std::string &line,
                 const std::map<std::string, std::string> &environment)
{
    const pid_t process = fork();
    if (process != 0) return process;
    std::filesystem::current_path(folder.path());
    for (const auto &[name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<std::string> arguments = words(line);
    std::vector<char *> argv{const_cast<char *>("openssl")};
    for (std::string &argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    execv(OPENSSL_FRONT, argv.data());
    _exit(127);
}

TEST(StoppedFront, TakesTheToolAndItsTracesAlongAndShowsNoPassword)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", binaryData(400'000));
    const std::string request =
        "req -x509 -newkey rsa:2048 -nodes -keyout key -out cert -days 2 -subj /CN=test";
    ASSERT_EQ(runIn(folder, stock, request).status, 0);
    ASSERT_EQ(runIn(folder, stock, "smime -encrypt -binary -in F -out message cert").status, 0);
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::string message = readFile(folder / "message");
    const auto entries = entriesIn(folder);
    for (const std::string line :
         {"aes-256-cbc -pbkdf2 -in pipe -out G --pass=pass:hush-1 -k hush-2 -pass pass:hush-3",
          "smime -decrypt -inform SMIME -in pipe -out G -inkey key"})
        for (const auto &environment : {withShim(), withoutNamelessFiles()})
            for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
                SCOPED_TRACE(line + ", signal " + std::to_string(signal));
                const pid_t process = startFront(folder, line, environment);
                const int pipe = open((folder / "pipe").c_str(), O_WRONLY);
                // More than a pipe holds: once it is written, the front is at work on it.
                ASSERT_EQ(write(pipe, message.data(), 300'000), 300'000);
                const pid_t tool = awaitTool(process, line.starts_with("aes"));
                for (const pid_t shown : {process, tool})
                    EXPECT_EQ(processFile(shown > 0 ? shown : process, "cmdline").find("hush"),
                              std::string::npos);
                kill(process, signal);
                int status = 0;
                waitpid(process, &status, 0);
                close(pipe);
                EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
                for (int attempt = 0; tool > 0 && kill(tool, 0) == 0 && attempt < 2000; ++attempt)
                    std::this_thread::sleep_for(std::chrono::milliseconds(5)); // until somebody reaps it
                EXPECT_TRUE(tool == 0 || kill(tool, 0) != 0);
                const bool isLeft = signal == SIGKILL && environment.contains("SHIM_NO_NAMELESS");
                EXPECT_EQ(entriesIn(folder), entries + (isLeft ? 1 : 0));
                EXPECT_TRUE(isSilentSuccess(runIn(folder, front, "aes256 -pbkdf2 -in F -out G -k x")));
                std::filesystem::remove(folder / "G");
                EXPECT_EQ(entriesIn(folder), entries);
            }
}

} // namespace
