// How long the list of processes shows a password that is given to a front on its command line.
//
// usage: watch-password RUNS FRONT…
//
// The fronts run in turn, each encrypting a small file, so that a machine whose speed drifts slows all of
// them. Of every run, /proc/PID/cmdline is read over and over from before the front begins. This knows the
// process before it is anything, and has a processor for itself where the machine has two and it may ask for
// that (as root): nobody sees more. What it calls "shown" is the time from the last look before the password
// to the first one after it.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sched.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr std::string_view mark = "seen-by-everybody";

struct Sight {
    Microseconds shown{}; ///< 0: the password was never seen
    Microseconds whole{}; ///< from the fork to the end
};

[[noreturn]] void give(const char *problem)
{
    std::perror(problem);
    std::exit(EXIT_FAILURE);
}

/// Other programs do not get in between, as far as the system allows that.
void takeProcessor(unsigned number)
{
    if (std::thread::hardware_concurrency() < 2) return;
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(number, &processors);
    const sched_param priority{.sched_priority = 1};
    if (sched_setscheduler(0, SCHED_FIFO, &priority) == 0)
        sched_setaffinity(0, sizeof processors, &processors);
}

/// Begins once there is a byte in the pipe.
pid_t start(const std::string &front, const std::string &folder, int signal)
{
    const std::string input = folder + "/in";
    const std::string output = folder + "/out";
    const std::string password = "pass:" + std::string(mark);
    // The child begins where its parent is.
    takeProcessor(1);
    const pid_t child = fork();
    if (child != 0) {
        takeProcessor(0);
        return child;
    }
    char isWatched = 0;
    if (read(signal, &isWatched, 1) != 1) give("cannot wait");
    execl(front.c_str(), "openssl", "aes-256-cbc", "-a", "-salt", "-pbkdf2", "-iter", "1", "-in",
          input.c_str(), "-out", output.c_str(), "-pass", password.c_str(), nullptr);
    give(front.c_str());
}

bool hasEnded(pid_t process)
{
    siginfo_t info{};
    return waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           info.si_pid != 0;
}

Microseconds watch(int list, pid_t process)
{
    std::array<char, 4096> text{};
    Clock::time_point before = Clock::now();
    std::optional<Clock::time_point> first;
    Clock::time_point after;
    bool wasSeen = false;
    for (;;) {
        const ssize_t size = pread(list, text.data(), text.size(), 0);
        // There are no arguments at the end, and while one program gives way to another.
        if (size <= 0 && hasEnded(process)) break;
        const bool isSeen =
            std::string_view(text.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))).find(mark) !=
            std::string_view::npos;
        const Clock::time_point now = Clock::now();
        if (isSeen && !first) first = before;
        if (isSeen || wasSeen) after = now;
        wasSeen = isSeen;
        before = now;
    }
    return first ? after - *first : Microseconds{};
}

Sight watchRun(const std::string &front, const std::string &folder)
{
    const Clock::time_point began = Clock::now();
    int signal[2];
    if (pipe2(signal, O_CLOEXEC) != 0) give("no pipe");
    const pid_t child = start(front, folder, signal[0]);
    const int list = open(("/proc/" + std::to_string(child) + "/cmdline").c_str(), O_RDONLY | O_CLOEXEC);
    if (child < 0 || list < 0) give("cannot watch");
    if (write(signal[1], "", 1) != 1) give("cannot begin");
    const Microseconds shown = watch(list, child);
    for (const int each : {list, signal[0], signal[1]})
        close(each);
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", front.c_str());
        std::exit(EXIT_FAILURE);
    }
    return {shown, Clock::now() - began};
}

double median(const std::vector<Sight> &sights, Microseconds Sight::*figure)
{
    std::vector<double> values;
    values.reserve(sights.size());
    for (const Sight &sight : sights)
        values.push_back((sight.*figure).count());
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values[values.size() / 2];
}

void printRow(const std::string &front, const std::vector<Sight> &sights)
{
    const auto seen =
        std::ranges::count_if(sights, [](const Sight &sight) { return sight.shown.count() > 0; });
    const double longest = std::ranges::max(sights, {}, &Sight::shown).shown.count();
    std::printf("| %s | %td of %zu | %.0f µs | %.0f µs | %.2f ms |\n", front.c_str(), seen, sights.size(),
                median(sights, &Sight::shown), longest, median(sights, &Sight::whole) / 1000);
}

} // namespace

int main(int argc, char **argv)
{
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    if (runs < 1) {
        std::fprintf(stderr, "usage: watch-password RUNS FRONT…\n");
        return 64;
    }
    const std::vector<std::string> fronts(argv + 2, argv + argc);
    std::string folder = (std::filesystem::temp_directory_path() / "watch-password-XXXXXX").string();
    if (!mkdtemp(folder.data())) give(folder.c_str());
    std::ofstream(folder + "/in") << "a small file\n";

    std::vector<std::vector<Sight>> sights(fronts.size());
    for (int run = 0; run < runs; ++run)
        for (std::size_t i = 0; i < fronts.size(); ++i)
            sights[i].push_back(watchRun(fronts[i], folder));
    std::printf(
        "| front | password seen | median | longest | whole run |\n| --- | --- | --- | --- | --- |\n");
    for (std::size_t i = 0; i < fronts.size(); ++i)
        printRow(fronts[i], sights[i]);
    std::filesystem::remove_all(folder);
    return 0;
}
