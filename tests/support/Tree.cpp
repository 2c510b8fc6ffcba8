#include "Tree.h"

#include "TemporaryFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <system_error>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const fs::path &path)
{
    throw std::system_error(errno, std::generic_category(), path.string());
}

TreeEntry readEntry(const fs::path &path)
{
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) fail(path);
    TreeEntry entry;
    entry.seconds = status.st_mtim.tv_sec;
    entry.nanoseconds = status.st_mtim.tv_nsec;
    if (S_ISLNK(status.st_mode)) {
        entry.type = 'l';
        entry.target = fs::read_symlink(path).string();
        return entry;
    }
    entry.mode = status.st_mode & 07777u;
    entry.type = S_ISDIR(status.st_mode) ? 'd' : S_ISREG(status.st_mode) ? 'f' : 'o';
    if (entry.type != 'f') return entry;
    entry.size = static_cast<std::uint64_t>(status.st_size);
    entry.contentHash = std::hash<std::string>()(readFile(path));
    return entry;
}

std::string printable(const std::string &bytes)
{
    std::ostringstream text;
    for (const char byte : bytes)
        if (byte >= 0x20 && byte < 0x7f)
            text << byte;
        else
            text << "\\x" << std::hex << (byte & 0xff);
    return text.str();
}

/// As far as the comparison looks at it.
std::string describe(const TreeEntry &entry, const TreeComparison &comparison)
{
    std::ostringstream text;
    text << entry.type << ' ' << printable(entry.target) << entry.size << " bytes #" << entry.contentHash;
    if (comparison.modes) text << std::oct << " 0" << entry.mode << std::dec;
    if (entry.type == 'l' && !comparison.linkTimes) return text.str();
    text << ' ' << entry.seconds << " s";
    if (comparison.nanoseconds) text << ' ' << entry.nanoseconds << " ns";
    return text.str();
}

void setTime(const fs::path &path, std::int64_t seconds, std::int64_t nanoseconds)
{
    const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    if (utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0) fail(path);
}

void makeOddNames(const fs::path &folder)
{
    // Between the slashes; the last line has characters beyond ASCII, bytes that are no UTF-8, and characters
    // that may stand for such.
    std::istringstream names(
        "plain.txt/with space.txt/ leading space/trailing space "
        "/line\nbreak/-leading/--/*/*.txt/?/[a-z]/@list/"
        "#comment/;semicolon/$HOME/back\\slash/quote'\"/tab\there/~/.../.hidden/"
        "stra\xC3\x9F\x65 gr\xC3\xBCn.txt/\xE6\x97\xA5\xE6\x9C\xAC.txt/latin1 caf\xE9/\xFF\xFEraw/cut\xC3/"
        "\xEF\xBF\xBE marker/\xEE\x83\xBF private/private \xEE\x83\xA9 and \xE9/surrogate \xED\xA0\x80");
    for (std::string name; std::getline(names, name, '/');)
        writeFile(folder / name, "content of " + name);
    writeFile(folder / std::string(255, 'n'), "the longest name");
}

} // namespace

TreeSnapshot snapshotTree(const fs::path &folder)
{
    TreeSnapshot snapshot;
    snapshot["."] = readEntry(folder);
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder))
        snapshot[entry.path().lexically_relative(folder).string()] = readEntry(entry.path());
    return snapshot;
}

std::string treeDifference(const TreeSnapshot &expected, const TreeSnapshot &actual,
                           const TreeComparison &comparison)
{
    std::string text;
    for (const auto &[path, entry] : expected) {
        if (path == "." && !comparison.root) continue;
        const auto found = actual.find(path);
        const std::string was = describe(entry, comparison);
        const std::string is = found == actual.end() ? "nothing" : describe(found->second, comparison);
        if (was != is) text += printable(path) + ": " + was + " became " + is + "\n";
    }
    for (const auto &[path, entry] : actual)
        if (!expected.contains(path)) text += printable(path) + ": was not expected\n";
    return text;
}

std::string treeDifference(const fs::path &expected, const fs::path &actual, const TreeComparison &comparison)
{
    return treeDifference(snapshotTree(expected), snapshotTree(actual), comparison);
}

void makeSampleTree(const fs::path &folder)
{
    makeOddNames(folder / "names");
    fs::create_directories(folder / "empty");
    writeFile(folder / "caf\xE9" / "sub" / "file", "below a name that is not UTF-8\n");
    writeFile(folder / "deep" / "er" / "still deeper" / "-" / "*" / "bottom", "far below\n");
    writeFile(folder / "empty.bin", "");
    writeFile(folder / "one byte", "1");
    writeFile(folder / "zeros.bin", std::string(100'000, '\0'));
    writeFile(folder / "large.bin", randomBytes(1'572'865));
    writeFile(folder / "original", "two names for one file\n");
    fs::create_hard_link(folder / "original", folder / "second name");

    fs::create_symlink("plain.txt", folder / "names" / "relative link");
    fs::create_symlink("../../deep", folder / "deep" / "folder link");
    fs::create_symlink("/usr/bin/env", folder / "absolute link");
    fs::create_symlink("nowhere/at all", folder / "dangling link");
    fs::create_symlink("names/latin1 caf\xE9", folder / "link to latin1");

    for (const auto &[name, mode] :
         {std::pair{"private", 0600}, {"program", 0755}, {"read only", 0444}, {"everyone", 0777}}) {
        writeFile(folder / "modes" / name, name);
        fs::permissions(folder / "modes" / name, fs::perms(mode));
    }
    writeFile(folder / "read only folder" / "inside", "the folder can't be written to");
    fs::permissions(folder / "read only folder" / "inside", fs::perms(0400));

    setTime(folder / "one byte", 31'536'000, 1);                       // 1971
    setTime(folder / "names" / "plain.txt", 946'684'799, 999'999'999); // the end of 1999
    setTime(folder / "zeros.bin", 4'102'444'800, 500'000'000);         // 2100
    setTime(folder / "dangling link", 1'000'000'000, 123'456'789);
    setTime(folder / "empty", 1'200'000'000, 42);
    fs::permissions(folder / "empty", fs::perms(0700));
    fs::permissions(folder / "modes", fs::perms(01777));
    fs::permissions(folder / "read only folder", fs::perms(0555));
    setTime(folder, 1'400'000'000, 44);
}

std::string randomBytes(std::size_t size, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    std::string bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(generator() >> 24);
    return bytes;
}
