#include "Arguments.h"
#include "Commands.h"
#include "Diagnostics.h"
#include "Interrupt.h"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <new>
#include <sys/resource.h>

namespace {

constexpr int usageError = 7; // as other archivers have it
constexpr int failure = 3;

int run(std::span<const char *const> words, archiver::Diagnostics &diagnostics)
{
    const auto parsed = archiver::parseArguments(words);
    if (const auto *problem = std::get_if<std::string>(&parsed)) {
        diagnostics.report(*problem);
        std::fputs(archiver::usageText().c_str(), stderr);
        return usageError;
    }
    archiver::runCommand(std::get<archiver::Arguments>(parsed), diagnostics);
    // So that the parent learns of it.
    if (archiver::interrupted()) base::endBySignal(base::StopSignals::received());
    return diagnostics.silent() ? EXIT_SUCCESS : failure;
}

/// Volumes stay open until they get their names, and there may be thousands.
void raiseOpenFileLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, 65536);
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

int main(int count, char **arguments)
{
    // libarchive turns names of older archives into those of the locale.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    mallopt(M_MMAP_THRESHOLD, 256 << 10); // large buffers go back to the system at once, be it another's turn
    raiseOpenFileLimit();
    base::StopSignals signals(base::StopSignals::BrokenPipe::EndsIt);
    signals.watch(0); // no child: whoever is at work looks whether one came
    archiver::Diagnostics diagnostics;
    try {
        return run({arguments + 1, arguments + (count > 0 ? count : 1)}, diagnostics);
    } catch (const std::bad_alloc &) {
        diagnostics.report("Out of memory");
        return failure;
    }
}
