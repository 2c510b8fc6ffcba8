#include "ToolProcess.h"

#include "StopSignals.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

// The tool goes by its own name: under another one it would take the name for a command.
char toolName[] = "openssl";

/// The tool must not go on writing when nobody is left to judge its result.
void endWithParent([[maybe_unused]] pid_t parent)
{
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // The parent may have ended before the line above.
    if (getppid() != parent) _exit(127);
#endif
}

void useStream(int descriptor, int standardStream)
{
    if (descriptor >= 0) dup2(descriptor, standardStream);
}

} // namespace

void becomeTool(const std::string &tool, char **argv)
{
    argv[0] = toolName;
    execv(tool.c_str(), argv);
}

pid_t startTool(const std::string &tool, const std::vector<std::string> &arguments,
                const ToolStreams &streams, const base::StopSignals &signals)
{
    std::vector<char *> argv{toolName};
    for (const std::string &argument : arguments)
        argv.push_back(const_cast<char *>(argument.c_str()));
    argv.push_back(nullptr);

    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child != 0) return child;

    endWithParent(parent);
    useStream(streams.input, STDIN_FILENO);
    useStream(streams.output, STDOUT_FILENO);
    useStream(streams.errors, STDERR_FILENO);
    for (const int each : streams.inherited)
        if (each >= 0) fcntl(each, F_SETFD, 0);
    umask(S_IRWXG | S_IRWXO);
    signals.restoreInChild();
    becomeTool(tool, argv.data());
    std::fprintf(stderr, "openssl: cannot run %s: %s\n", tool.c_str(), std::strerror(errno));
    _exit(127);
}
