#include "Front.h"

#include <chrono>
#include <csignal>
#include <sstream>
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
/// parent).
pid_t awaitTool(pid_t front)
{
    for (int attempt = 0; attempt < 2000; ++attempt) {
        pid_t child = 0;
        std::istringstream children(processFile(front, "task/" + std::to_string(front) + "/children"));
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
        if (front > 0) stop(SIGKILL);
    }

    void start()
    {
        const std::string input = folder / "F";
        const std::string output = folder / "G";
        front = fork();
        ASSERT_GE(front, 0);
        if (front == 0) {
            execl(OPENSSL_FRONT, "openssl", "aes-256-cbc", "-pbkdf2", "-in", input.c_str(), "-out",
                  output.c_str(), "-pass", "pass:hush-hush", nullptr);
            _exit(127);
        }
        tool = awaitTool(front);
        ASSERT_GT(tool, 0);
    }

    int stop(int signal)
    {
        kill(front, signal);
        int status = 0;
        waitpid(front, &status, 0);
        front = 0;
        return status;
    }

    TemporaryFolder folder;
    pid_t front = 0;
    pid_t tool = 0;
};

TEST_F(RunningFront, ShowsNoPasswordAndTakesTheToolAndItsTracesAlong)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        start();
        for (const pid_t process : {front, tool}) {
            const std::string arguments = processFile(process, "cmdline");
            EXPECT_NE(arguments.find("aes-256-cbc"), std::string::npos);
            EXPECT_EQ(arguments.find("hush"), std::string::npos);
        }
        const int status = stop(signal);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_NE(kill(tool, 0), 0);
        EXPECT_EQ(entriesIn(folder), 1);
    }
}

} // namespace
