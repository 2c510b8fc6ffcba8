#include "SetReplacement.h"

#include "VolumeSource.h"

#include <fcntl.h>
#include <set>
#include <sstream>
#include <sys/file.h>

namespace archiver {

namespace {

/// A new file with its passing name; the number in the file system tells it from any other that has come to
/// be under one of its names since.
struct NewFile {
    std::string passingName;
    std::uint64_t inode;
};

/// What stands in the mark: the archive's name, which may hold a line break, then a line for each file.
std::string describe(const std::string &name, const std::vector<NewFile> &files)
{
    std::ostringstream text;
    text << name << '\0';
    for (const NewFile &file : files)
        text << file.inode << ' ' << file.passingName << '\n';
    return text.str();
}

/// Empty where `text` is none of the archive's that these names are of; `name` gets what it is called.
std::vector<NewFile> parse(const std::string &text, const base::PassingNames &names, std::string &name)
{
    name = text.substr(0, text.find('\0'));
    if (name.find('/') != std::string::npos || name.size() == text.size()) return {};
    if (passingNamesOf(withoutExtension(name)).name(0) != names.name(0)) return {};
    std::istringstream lines(text.substr(name.size() + 1));
    std::vector<NewFile> files;
    for (NewFile file; lines >> file.inode >> file.passingName; files.push_back(file))
        if (!names.include(file.passingName) || file.passingName.find('/') != std::string::npos) return {};
    return lines.eof() ? files : std::vector<NewFile>();
}

bool isAt(int folder, const std::string &name, const NewFile &file)
{
    struct stat status {};
    return fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && status.st_ino == file.inode;
}

/// Does what the mark says, and removes it. False with errno set. Where a new file is gone the mark is
/// outdated: somebody has come in between, and put the former files back, say.
bool carryOut(int folder, const std::string &name, const std::vector<NewFile> &files,
              Diagnostics &diagnostics)
{
    const std::vector<std::string> names = finalNames(name, files.size());
    std::vector<std::size_t> passing;
    bool areThere = true;
    for (std::size_t index = 0; index < files.size(); ++index)
        if (isAt(folder, files[index].passingName, files[index]))
            passing.push_back(index);
        else
            areThere = areThere && isAt(folder, names[index], files[index]);
    if (areThere) {
        for (const std::size_t index : passing)
            if (renameat(folder, files[index].passingName.c_str(), folder, names[index].c_str()) != 0)
                return false;
        if (!base::syncToDisk(folder)) return false;
        const std::vector<std::string> former = filesOfArchive(folder, name, names);
        for (const std::string &each : former)
            if (unlinkat(folder, each.c_str(), 0) != 0 && errno != EISDIR && errno != ENOENT)
                diagnostics.reportSystem("Cannot remove the older volume " + printable(each));
        // Had the mark gone before, what is left of the former set would stay for ever.
        if (!former.empty() && !base::syncToDisk(folder)) return false;
    }
    const std::string mark = passingNamesOf(withoutExtension(name)).special("set");
    return unlinkat(folder, mark.c_str(), 0) == 0 && base::syncToDisk(folder);
}

/// Waits until nobody else is at work with the mark. False with errno set.
bool lock(int mark)
{
    while (flock(mark, LOCK_EX) != 0) {
        if (errno == EINTR && !interrupted()) continue;
        return errno != EINTR && errno != EWOULDBLOCK; // a file system without locks
    }
    return true;
}

/// False has been reported.
bool finish(int folder, const std::string &base, Diagnostics &diagnostics)
{
    const base::PassingNames names = passingNamesOf(base);
    const base::FileDescriptor mark(
        openat(folder, names.special("set").c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!mark || fstat(mark.get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid())
        return true; // there is none, or none of ours
    if (!lock(mark.get())) return false;
    if (fstat(mark.get(), &status) != 0 || status.st_nlink != 1) return true; // done meanwhile
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t size =
        base::readFullyAt(mark.get(), {reinterpret_cast<std::uint8_t *>(text.data()), text.size()}, 0);
    std::string name;
    const std::vector<NewFile> files = parse(text, names, name);
    if (size < 0 || files.empty() || carryOut(folder, name, files, diagnostics)) return true;
    return diagnostics.reportSystem("Cannot finish the replacement of " + printable(name) +
                                    ", which an earlier run began");
}

} // namespace

base::PassingNames passingNamesOf(const std::string &base) { return {".rar", base}; }

std::vector<std::string> finalNames(const std::string &name, std::size_t count)
{
    if (count == 1) return {name};
    const std::size_t digits = std::to_string(count).size();
    std::vector<std::string> names;
    for (std::size_t number = 1; number <= count; ++number)
        names.push_back(volumePath(withoutExtension(name), number, digits));
    return names;
}

bool isFileOfArchive(const std::string &file, const std::string &name)
{
    if (file == name) return true;
    const std::optional<VolumeName> volume = parseVolumeName(file);
    return volume && volume->base == withoutExtension(name);
}

std::vector<std::string> filesOfArchive(int folder, const std::string &name,
                                        const std::vector<std::string> &current)
{
    const std::set<std::string> left(current.begin(), current.end());
    return base::namesIn(
        folder, [&](const std::string &file) { return isFileOfArchive(file, name) && !left.contains(file); });
}

bool replaceSet(int folder, const std::string &name, std::vector<base::StagedFile> &files,
                Diagnostics &diagnostics)
{
    const base::PassingNames names = passingNamesOf(withoutExtension(name));
    const auto failed = [&] { return diagnostics.reportSystem("Cannot create " + printable(name)); };
    std::vector<NewFile> listed;
    for (base::StagedFile &file : files) {
        if (!file.giveName(names, static_cast<unsigned>(listed.size()))) return failed();
        listed.push_back({file.passingName(), file.inode()});
    }
    const std::string text = describe(name, listed);
    base::StagedFile mark = base::StagedFile::create(folder, names, static_cast<unsigned>(listed.size()));
    const bool isMarked =
        mark && lock(mark.descriptor()) &&
        base::writeFully(mark.descriptor(),
                         {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()}) &&
        base::syncToDisk(mark.descriptor()) && base::syncToDisk(folder) &&
        mark.publish(names.special("set"), names) && base::syncToDisk(folder);
    if (!isMarked) return failed();
    for (base::StagedFile &file : files)
        file.releaseName();
    return carryOut(folder, name, listed, diagnostics) || failed();
}

bool finishReplacement(const std::string &path, Diagnostics &diagnostics)
{
    const base::FileDescriptor folder = base::openFolderOf(path);
    if (!folder) return true; // whoever goes on will see it
    const std::string name = base::nameIn(path);
    const std::optional<VolumeName> volume = parseVolumeName(name);
    return finish(folder.get(), withoutExtension(name), diagnostics) &&
           (!volume || finish(folder.get(), volume->base, diagnostics));
}

} // namespace archiver
