#include "Front.h"

#include <chrono>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

std::string processFile(pid_t process, const std::string &name)
{
    return readFile("/proc/" + std::to_string(process) + "/" + name);
}

/// The front's only child, as soon as it is the tool with arguments of its own (it begins as a copy of its
/// parent).
pid_t awaitTool(pid_t parent)
{
    for (int attempt = 0; attempt < 2000; ++attempt) {
        pid_t child = 0;
        std::istringstream children(processFile(parent, "task/" + std::to_string(parent) + "/children"));
        if (children >> child && processFile(child, "cmdline").find("fd:") != std::string::npos) return child;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return 0;
}

/// The front, encrypting from a named pipe to which nobody writes: it works until it is stopped.
class RunningFront : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(mkfifo((folder / "F").c_str(), 0600), 0); }
    void TearDown() override
    {
        if (process > 0) stop(SIGKILL);
    }

    void start()
    {
        const std::string input = folder / "F";
        const std::string output = folder / "G";
        process = fork();
        ASSERT_GE(process, 0);
        if (process == 0) {
            execl(OPENSSL_FRONT, "openssl", "aes-256-cbc", "-pbkdf2", "-in", input.c_str(), "-out",
                  output.c_str(), "-pass", "pass:hush-hush", nullptr);
            _exit(127);
        }
        tool = awaitTool(process);
        ASSERT_GT(tool, 0);
    }

    /// The signal that ended the front; 0 where it came to an end by itself.
    int stop(int signal)
    {
        kill(process, signal);
        int status = 0;
        waitpid(std::exchange(process, 0), &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    TemporaryFolder folder;
    pid_t process = 0;
    pid_t tool = 0;
};

TEST_F(RunningFront, ShowsNoPasswordAndTakesTheToolAndItsTracesAlong)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        ASSERT_NO_FATAL_FAILURE(start());
        for (const pid_t shown : {process, tool}) {
            const std::string arguments = processFile(shown, "cmdline");
            EXPECT_NE(arguments.find("aes-256-cbc"), std::string::npos);
            EXPECT_EQ(arguments.find("hush"), std::string::npos);
        }
        EXPECT_EQ(stop(signal), signal);
        EXPECT_NE(kill(tool, 0), 0);
        EXPECT_EQ(entriesIn(folder), 1);
    }
}

} // namespace
