// What is called `openssl`: it takes passwords out of the system's list of processes, and starts the front.
// Every user can read the arguments of a program from the moment it begins, and loading the front's libraries
// takes hundreds of times longer than what is done here. So this is linked statically, and nothing is worked
// out: the true arguments go on through a file in memory, which has no name; in the list itself, what could
// be a password is missing.

#include "ArgumentHiding.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::string_view frontName = "openssl-inner";

int fail(const char *what)
{
    std::fprintf(stderr, "openssl: %s: %s\n", what, std::strerror(errno));
    return EXIT_FAILURE;
}

/// An open file with these bytes that the front inherits; -1, with errno set: there is none to be had.
int handOn(std::string_view bytes)
{
    const int file = memfd_create("arguments", 0);
    while (file >= 0 && !bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return -1;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return file;
}

/// The same for arguments that were too many to be hidden before.
int handOnLate(int argc, char **argv)
{
    const char *const end = argv[argc - 1] + std::strlen(argv[argc - 1]) + 1;
    const int file = handOn({argv[1], static_cast<std::size_t>(end - argv[1])});
    wipePasswords(argc, argv);
    return file;
}

/// Where the front is, beside this program. False, with errno set: the system doesn't tell.
bool findFront(char (&path)[PATH_MAX])
{
    const ssize_t size = readlink("/proc/self/exe", path, sizeof path);
    if (size < 0) return false;
    const std::size_t folder = std::string_view(path, static_cast<std::size_t>(size)).rfind('/') + 1;
    errno = ENAMETOOLONG;
    if (folder + frontName.size() >= sizeof path) return false;
    path[folder + frontName.copy(path + folder, frontName.size())] = '\0';
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const KeptArguments kept = keptArguments();
    const int arguments = kept.areKept ? handOn(kept.bytes) : handOnLate(argc, argv);
    if (arguments < 0) return fail("cannot hand on its arguments");
    char path[PATH_MAX];
    if (!findFront(path)) return fail("cannot find its other half");
    char option[32];
    std::snprintf(option, sizeof option, "--arguments=%d", arguments);

    // For whoever looks at the list, the others stay.
    char **const list = static_cast<char **>(std::calloc(static_cast<std::size_t>(argc) + 3, sizeof *list));
    if (!list) return fail("cannot start");
    list[0] = argc > 0 ? argv[0] : path;
    list[1] = option;
    for (int i = 1; i < argc; ++i)
        list[i + 1] = argv[i];
    execv(path, list);
    const int status = fail(path);
    std::free(list);
    return status;
}
