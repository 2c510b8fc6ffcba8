#include "app/Process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

/// Whether a debugger has started the program, or is at it. Who does that could have it load anything.
[[maybe_unused]] bool isTraced()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("TracerPid:")) return line.find_first_of("123456789") != std::string::npos;
    return false;
}

/// There are passwords in this memory: no other program of the user's looks into it, and a crash leaves no
/// image of it. The tools that it starts can be looked at, and their figures read, as always.
void closeMemory()
{
#ifdef __linux__
    if (isTraced()) return;
    prctl(PR_SET_DUMPABLE, 0);
#endif
    rlimit limit{};
    getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = 0;
    setrlimit(RLIMIT_CORE, &limit);
}

} // namespace

void prepareProcess(bool keepInput)
{
    closeMemory();
    umask(077);
    signal(SIGPIPE, SIG_IGN);
    // Without a terminal ssh would ask for a password, or for trust in a server, in a window of its own.
    setenv("SSH_ASKPASS_REQUIRE", "never", 1);
    if (!keepInput) detachInput();
}

void detachInput()
{
    const int nothing = open("/dev/null", O_RDONLY);
    if (nothing < 0 || nothing == STDIN_FILENO) return;
    dup2(nothing, STDIN_FILENO);
    close(nothing);
}
