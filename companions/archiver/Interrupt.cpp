#include "Interrupt.h"

#include <array>
#include <atomic>
#include <csignal>

namespace archiver {

namespace {

constexpr std::array<int, 3> signals{SIGTERM, SIGINT, SIGHUP};
std::atomic<int> caught = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler can use nothing else");

void remember(int signal) { caught = signal; }

} // namespace

void catchInterrupts()
{
    for (const int signal : signals) {
        struct sigaction present {};
        sigaction(signal, nullptr, &present);
        if (present.sa_handler == SIG_IGN) continue; // nohup: the caller wants it to go on
        struct sigaction action {};
        action.sa_handler = remember;
        sigaction(signal, &action, nullptr);
    }
}

bool interrupted() { return caught.load(std::memory_order_relaxed) != 0; }

void endByCaughtSignal()
{
    if (!interrupted()) return;
    std::signal(caught, SIG_DFL);
    std::raise(caught);
}

} // namespace archiver
