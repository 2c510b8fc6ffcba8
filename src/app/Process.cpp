#include "app/Process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void prepareProcess(bool keepInput)
{
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
