#pragma once

#include <csignal>
#include <string>
#include <sys/types.h>

namespace base {

/// Passes on to a child process the signals that ask the program to stop (SIGTERM, SIGINT, SIGHUP), so that
/// the program can put things in order once the child is gone. Signals that the program was started to ignore
/// stay ignored. From its construction until watch(), the signals wait. There is one of it at a time.
class StopSignals {
public:
    /// What becomes of the program when it writes to a reader that went away.
    enum class BrokenPipe { EndsIt, IsAnError };
    explicit StopSignals(BrokenPipe brokenPipe);
    ~StopSignals() { restore(); }
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// Everything about signals as the program found it, as a child needs it between fork and exec.
    void restore() const;
    /// From now on signals go to this child; one that came in the meantime goes there at once. 0: there is no
    /// child, and received() tells.
    void watch(pid_t child);
    /// Waits for the end of the watched child and returns its status, as waitpid() gives it.
    [[nodiscard]] int waitForChild();
    /// The signal that asked to stop; 0: none did.
    [[nodiscard]] static int received();

private:
    sigset_t m_formerMask;
    struct sigaction m_formerPipe {};
};

/// The signal by number and name, as in "signal 15 (Terminated)".
[[nodiscard]] std::string signalName(int signal);

/// Ends the program the way the signal would have done.
[[noreturn]] void endBySignal(int signal);

} // namespace base
