#include "StopSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace base {

namespace {

constexpr std::array stopSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler has nothing but global variables to look at.
std::atomic<pid_t> watchedChild{0};
std::atomic<int> receivedSignal{0};
static_assert(std::atomic<pid_t>::is_always_lock_free);
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void passOn(int signal)
{
    const int savedErrno = errno;
    receivedSignal = signal;
    if (const pid_t child = watchedChild) kill(child, signal);
    errno = savedErrno;
}

void setHandler(int signal, void (*handler)(int))
{
    struct sigaction former {};
    sigaction(signal, nullptr, &former);
    if (former.sa_handler == SIG_IGN) return;
    struct sigaction action {};
    action.sa_handler = handler;
    sigaction(signal, &action, nullptr);
}

} // namespace

StopSignals::StopSignals(BrokenPipe brokenPipe)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : stopSignals)
        sigaddset(&set, signal);
    sigprocmask(SIG_BLOCK, &set, &m_formerMask);
    receivedSignal = 0;
    for (const int signal : stopSignals)
        setHandler(signal, passOn);
    sigaction(SIGPIPE, nullptr, &m_formerPipe);
    if (brokenPipe == BrokenPipe::IsAnError) std::signal(SIGPIPE, SIG_IGN);
}

void StopSignals::restore() const
{
    for (const int signal : stopSignals)
        setHandler(signal, SIG_DFL);
    sigaction(SIGPIPE, &m_formerPipe, nullptr);
    sigprocmask(SIG_SETMASK, &m_formerMask, nullptr);
}

void StopSignals::watch(pid_t child)
{
    watchedChild = child;
    sigprocmask(SIG_SETMASK, &m_formerMask, nullptr);
}

int StopSignals::waitForChild()
{
    const pid_t child = watchedChild;
    // The process number must not be free for another process while a signal may still be sent to it.
    siginfo_t info{};
    while (waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
    }
    watchedChild = 0;
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

int StopSignals::received() { return receivedSignal; }

std::string signalName(int signal)
{
    return "signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
}

void endBySignal(int signal)
{
    std::signal(signal, SIG_DFL);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
    raise(signal);
    _exit(128 + signal);
}

} // namespace base
