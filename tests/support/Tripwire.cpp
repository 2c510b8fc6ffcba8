// A library that is loaded before all others into a program and the tools it runs, and does one deed in one
// of them, at one moment. QUILLORENT_TRIPWIRE holds, in lines: the executable's path; a word that is among
// its arguments; the moment; the deed; what the deed needs.
//   start, end     before main(), at exit
//   change N       before the N-th call that changes names or makes changes durable
// Deeds:
//   kill SIGNAL            the process itself
//   parent SIGNAL          the process that started it, which for a tool is the program
//   hang SIGNAL            the same, then it waits for ever
//   exit STATUS            without a word
//   say TEXT               on standard error
//   limit BYTES, full BYTES  a file that grows over them ends the process by a signal, or gives a write error
//   gap BYTES              the same error, once: afterwards there is room again
//   late                   from now on, what is written fails when it is to be made durable
//   fill FOLDER            leaves no room on its file system; the file is called "filler"
//   folder PATH, fifo PATH, link PATH TARGET  puts such a thing there, in place of a file
//   mode OCTAL PATH        takes permissions away
//
// QUILLORENT_TRIPWIRE_LOG names a file that tells in which order all of them did what matters when the power
// fails: "safe INODE PATH", "named INODE PATH" and "gone INODE PATH", a line each.
//
// With QUILLORENT_NO_NAMELESS every file must have a name, as on some file systems.
//
// QUILLORENT_OTHER_SYSTEMS names a folder that is as if on a disk of other systems: no folder keeps its
// rights, there are no links, and the archiver's file is found by its name in upper case.

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

struct Plan {
    std::string moment;
    std::string deed;
    std::string first;
    std::string second;
};

Plan *plan = nullptr; // stays for the whole process: it is looked at until the last moment

void limitFiles(const std::string &bytes, void (*onSignal)(int))
{
    const rlimit limit{std::stoul(bytes), RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, onSignal);
}

void liftLimit(int)
{
    const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &none);
}

void fill(const std::string &folder)
{
    const int file = open((folder + "/filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    static const std::array<char, 4096> block{};
    while (write(file, block.data(), block.size()) > 0) {
    }
    close(file);
}

void act()
{
    const std::string &deed = plan->deed;
    const char *path = plan->first.c_str();
    const auto number = [] { return std::stoi(plan->first); };
    if (deed == "kill") std::signal(number(), SIG_DFL), raise(number());
    if (deed == "parent" || deed == "hang") kill(getppid(), number());
    while (deed == "hang")
        pause();
    if (deed == "exit") _exit(number());
    if (deed == "say" && write(STDERR_FILENO, path, plan->first.size()) < 0) _exit(1);
    if (deed == "limit") limitFiles(plan->first, SIG_DFL);
    if (deed == "full") limitFiles(plan->first, SIG_IGN);
    if (deed == "gap") limitFiles(plan->first, liftLimit);
    if (deed == "fill") fill(plan->first);
    if (deed == "mode") chmod(plan->second.c_str(), mode_t(std::stoul(plan->first, nullptr, 8)));
    if (deed == "folder" || deed == "fifo" || deed == "link") unlink(path);
    if (deed == "folder") mkdir(path, 0700);
    if (deed == "fifo") mkfifo(path, 0600);
    if (deed == "link" && symlink(plan->second.c_str(), path) != 0) _exit(1);
}

void actAt(const std::string &moment)
{
    if (plan && plan->moment == moment) act();
}

void countChange()
{
    static int count = 0;
    if (plan && plan->moment.starts_with("change")) actAt("change " + std::to_string(++count));
}

std::string pathOf(int folder, const char *name)
{
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    if (name[0] == '/' || readlink(link.c_str(), path.data(), path.size() - 1) < 0) return name;
    return std::string(path.data()) + "/" + name;
}

/// `newName`: what the line is about, where it isn't the file's own name.
void note(const char *event, int folder, const char *name, int flags, const std::string &newName = {})
{
    const char *log = getenv("QUILLORENT_TRIPWIRE_LOG");
    struct stat status {};
    if (!log || fstatat(folder, name, &status, flags) != 0) return;
    const std::string line = std::string(event) + " " + std::to_string(status.st_ino) + " " +
                             (newName.empty() ? pathOf(folder, name) : newName) + "\n";
    const int file = open(log, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (write(file, line.data(), line.size()) < 0) _exit(1);
    close(file);
}

/// Calls the function that this library stands in front of.
template <class... Types>
int passOn(const char *name, Types... values)
{
    countChange();
    return reinterpret_cast<int (*)(Types...)>(dlsym(RTLD_NEXT, name))(values...);
}

int passOnSync(const char *name, int file)
{
    note("safe", file, "", AT_EMPTY_PATH);
    if (plan && plan->deed == "late") return errno = ENOSPC, -1;
    return passOn(name, file);
}

bool isOfOtherSystems(int folder, const char *name)
{
    const char *disk = getenv("QUILLORENT_OTHER_SYSTEMS");
    return disk && pathOf(folder, name).starts_with(disk);
}

__attribute__((constructor)) void begin(int argc, char **argv)
{
    const char *text = getenv("QUILLORENT_TRIPWIRE");
    std::array<char, 4096> self{};
    if (!text || readlink("/proc/self/exe", self.data(), self.size() - 1) < 0) return;
    std::array<std::string, 6> lines;
    std::istringstream stream(text);
    for (std::string &line : lines)
        std::getline(stream, line);
    if (lines[0] != self.data()) return;
    for (int i = 1; i < argc; ++i)
        if (lines[1] == argv[i]) plan = new Plan{lines[2], lines[3], lines[4], lines[5]};
    actAt("start");
}

__attribute__((destructor)) void end() { actAt("end"); }

} // namespace

extern "C" {
// NOLINTBEGIN: the C library's own names
int renameat2(int a, const char *b, int c, const char *d, unsigned e) noexcept
{
    return note("named", a, b, AT_SYMLINK_NOFOLLOW, pathOf(c, d)), passOn("renameat2", a, b, c, d, e);
}
int renameat(int a, const char *b, int c, const char *d) noexcept { return renameat2(a, b, c, d, 0); }
int rename(const char *a, const char *b) noexcept { return renameat2(AT_FDCWD, a, AT_FDCWD, b, 0); }
int linkat(int a, const char *b, int c, const char *d, int e) noexcept
{
    return note("named", a, b, e & AT_EMPTY_PATH, pathOf(c, d)), passOn("linkat", a, b, c, d, e);
}
int link(const char *a, const char *b) noexcept { return linkat(AT_FDCWD, a, AT_FDCWD, b, 0); }
int unlinkat(int a, const char *b, int c) noexcept
{
    return note("gone", a, b, AT_SYMLINK_NOFOLLOW), passOn("unlinkat", a, b, c);
}
int unlink(const char *a) noexcept { return unlinkat(AT_FDCWD, a, 0); }
int remove(const char *a) noexcept
{
    return note("gone", AT_FDCWD, a, AT_SYMLINK_NOFOLLOW), passOn("remove", a);
}
int mkdirat(int a, const char *b, mode_t c) noexcept
{
    const int result = passOn("mkdirat", a, b, c);
    if (result == 0 && isOfOtherSystems(a, b)) fchmodat(a, b, 0777, 0);
    return result;
}
int mkdir(const char *a, mode_t b) noexcept { return mkdirat(AT_FDCWD, a, b); }
int symlinkat(const char *a, int b, const char *c) noexcept
{
    if (isOfOtherSystems(b, c)) return errno = EPERM, -1;
    return passOn("symlinkat", a, b, c);
}
int faccessat(int a, const char *b, int c, int d) noexcept
{
    const bool isArchiversFile = std::strncmp(b, ".RAR-", 5) == 0;
    return isArchiversFile && isOfOtherSystems(a, b) ? 0 : passOn("faccessat", a, b, c, d);
}
int statfs64(const char *a, struct statfs64 *b) noexcept
{
    const int result = passOn("statfs64", a, b);
    constexpr auto fat = 0x4d44;
    if (result == 0 && isOfOtherSystems(AT_FDCWD, a)) b->f_type = fat;
    return result;
}
int fsync(int a) { return passOnSync("fsync", a); }
int fdatasync(int a) { return passOnSync("fdatasync", a); }
int openat64(int a, const char *b, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & (O_CREAT | __O_TMPFILE) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if ((flags & O_TMPFILE) == O_TMPFILE && getenv("QUILLORENT_NO_NAMELESS")) return errno = EOPNOTSUPP, -1;
    return reinterpret_cast<int (*)(int, const char *, int, ...)>(dlsym(RTLD_NEXT, "openat64"))(a, b, flags,
                                                                                                mode);
}
// NOLINTEND
}
