#include "Front.h"

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A message comes through a named pipe, and the rest of it never does.
TEST(StoppedDecryption, EndsByTheSignalAndLeavesNothing)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", binaryData(400'000));
    const std::string request =
        "req -x509 -newkey rsa:2048 -nodes -keyout key -out cert -days 2 -subj /CN=test";
    ASSERT_EQ(runIn(folder, stock, request).status, 0);
    ASSERT_EQ(runIn(folder, stock, "smime -encrypt -binary -in F -out G cert").status, 0);
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::string message = readFile(folder / "G");
    const auto entries = entriesIn(folder);

    const pid_t process = fork();
    if (process == 0) {
        std::filesystem::current_path(folder.path());
        execl(OPENSSL_FRONT, "openssl", "smime", "-decrypt", "-in", "pipe", "-out", "H", "-inkey", "key",
              nullptr);
        _exit(127);
    }
    const int pipe = open((folder / "pipe").c_str(), O_WRONLY);
    // More than a pipe holds: once it is written, the front is at work on it.
    ASSERT_EQ(write(pipe, message.data(), 300'000), 300'000);
    EXPECT_EQ(entriesIn(folder), entries + 1);
    kill(process, SIGTERM);
    close(pipe);
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_EQ(entriesIn(folder), entries);
}

} // namespace
