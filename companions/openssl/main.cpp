// Takes the arguments of the system's `openssl` program and runs it with them, adding what its users expect
// of files that are to be kept: today's key derivation, ciphers that it hides, messages of any size, results
// that are whole or not there at all.

#include "CommandPlan.h"
#include "PassPhrase.h"

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

constexpr int failure = 1;
constexpr std::string_view option = "--arguments=";

bool isTraced()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("TracerPid:")) return line.find_first_of("123456789") != std::string::npos;
    return false;
}
/// For a program that holds secrets: no other program of the user's can look into this one's memory, and it
/// leaves no image of it when it crashes. One that a debugger has started stays open to it: who does that
/// could have the program load anything.
void closeMemory()
{
    if (isTraced()) return;
    prctl(PR_SET_DUMPABLE, 0);
    rlimit limit{};
    getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = 0;
    setrlimit(RLIMIT_CORE, &limit);
}

/// The program's arguments, its name first and a null at the end, as for execv(). The program that starts
/// this one hides them from the list of processes: then the first in `argv` is "--arguments=N", and the open
/// file N holds the true ones, each with a NUL at its end. It is closed. They stay for as long as the program
/// runs, can be written over, and are in memory nowhere else. None, with errno set: they can't be read.
std::optional<std::vector<char *>> takeArguments(int argc, char **argv)
{
    const std::string_view first = argc > 1 ? argv[1] : "";
    const bool areHanded = first.starts_with(option);
    std::vector<char *> arguments(argv, argv + (areHanded ? 1 : argc));
    if (areHanded) {
        int number = -1;
        std::from_chars(first.data() + option.size(), first.data() + first.size(), number);
        const base::FileDescriptor file(number);
        struct stat status {};
        if (fstat(file.get(), &status) != 0) return std::nullopt;
        const auto size = static_cast<std::size_t>(status.st_size);
        // The file itself, and no copy: what is written over here is gone.
        void *const memory =
            size > 0 ? mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, number, 0) : nullptr;
        if (memory == MAP_FAILED) return std::nullopt;
        const std::span<char> bytes(static_cast<char *>(memory), size);
        errno = EINVAL;
        if (!bytes.empty() && bytes.back() != '\0') return std::nullopt;
        for (char *next = bytes.data(); next != bytes.data() + size; next += std::strlen(next) + 1)
            arguments.push_back(next);
    }
    arguments.resize(std::max<std::size_t>(arguments.size(), 1) + 1);
    return arguments;
}

/// What to do for this command line (without the program's name). A password in it moves to `password` and is
/// overwritten in the memory of the arguments, so that the system's list of processes shows it no longer.
CommandPlan planCommand(std::span<char *const> arguments, Secret &password)
{
    if (arguments.empty()) return PassThrough{};
    if (auto plan = planCipherCommand(arguments, password)) return std::move(*plan);
    if (auto plan = planSmimeCommand(arguments, password)) return std::move(*plan);
    return PassThrough{};
}

int carryOut(const CommandPlan &plan, char **argv, Secret &password)
{
    if (const Refusal *const refusal = std::get_if<Refusal>(&plan)) {
        complain(refusal->message);
        return failure;
    }
    if (const OwnRun *const run = std::get_if<OwnRun>(&plan)) return (*run)();
    const auto tool = findTool(toolCandidates(std::getenv("PATH")), ownIdentities(argv[0]));
    if (!tool) {
        complain("the system has no openssl program: install its package");
        return failure;
    }
    if (const ToolRun *const run = std::get_if<ToolRun>(&plan)) return runTool(*tool, *run, password);
    becomeTool(*tool, argv);
    complain("cannot run " + *tool + ": " + systemReason(errno));
    return failure;
}

} // namespace

int main(int argc, char **argv)
{
    // Before anything else, so that the password is within reach of others for as short as can be.
    closeMemory();
    std::optional<std::vector<char *>> arguments = takeArguments(argc, argv);
    if (!arguments) {
        complain("cannot read its arguments: " + systemReason(errno));
        return failure;
    }
    Secret password;
    const CommandPlan plan = planCommand(std::span(*arguments).subspan(1, arguments->size() - 2), password);
    return carryOut(plan, arguments->data(), password);
}
