// Comes before the C library in a program under test (LD_PRELOAD): notes the calls on which it depends what a
// killed run or a power cut leaves, ends the program before one of them, and plays a file system that has no
// files without names.

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

template <typename Function>
Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

/// A letter a call goes into the file $SHIM_LOG. Before call number $SHIM_KILL_AT the program is killed.
void note(char letter)
{
    static int calls = 0;
    const char *const last = std::getenv("SHIM_KILL_AT");
    if (last && ++calls == std::atoi(last)) raise(SIGKILL);
    const char *const log = std::getenv("SHIM_LOG");
    const int file = log ? open(log, O_WRONLY | O_CREAT | O_APPEND, 0600) : -1;
    if (file >= 0 && write(file, &letter, 1) == 1) close(file);
}

} // namespace

extern "C" int fsync(int file)
{
    struct stat status {};
    fstat(file, &status);
    note(S_ISDIR(status.st_mode) ? 'D' : 'F');
    return next<int(int)>("fsync")(file);
}

extern "C" int linkat(int from, const char *old, int to, const char *name, int flags) noexcept
{
    note('L');
    return next<int(int, const char *, int, const char *, int)>("linkat")(from, old, to, name, flags);
}

extern "C" int renameat(int from, const char *old, int to, const char *name) noexcept
{
    note('R');
    return next<int(int, const char *, int, const char *)>("renameat")(from, old, to, name);
}

extern "C" int unlinkat(int folder, const char *name, int flags) noexcept
{
    note('U');
    return next<int(int, const char *, int)>("unlinkat")(folder, name, flags);
}

extern "C" int openat64(int folder, const char *name, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & (O_CREAT | __O_TMPFILE) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if ((flags & O_TMPFILE) == O_TMPFILE && std::getenv("SHIM_NO_NAMELESS")) return errno = EOPNOTSUPP, -1;
    return next<int(int, const char *, int, ...)>("openat64")(folder, name, flags, mode);
}
