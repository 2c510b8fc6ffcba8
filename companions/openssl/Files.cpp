#include "Files.h"

#include "StopSignals.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>

namespace {

constexpr std::size_t bufferSize = 262144; // in bytes

std::string resolved(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? path : real.string();
}

/// False for what is open and has no name any more, to which only the kernel's links lead: a link in place of
/// which a file came would be lost.
bool hasName(const std::string &path, const struct stat &file)
{
    struct stat named {};
    return lstat(resolved(path).c_str(), &named) == 0 && base::isSame(named, file);
}

base::PassingNames passingNames(const std::string &name) { return {".openssl", name}; }

/// The bytes of an open file, which stays the caller's. A signal that asks to stop makes them end with a
/// fault.
class FileSource final : public ByteSource {
public:
    FileSource(int descriptor, Fault &fault) : m_descriptor(descriptor), m_fault(fault) {}

    [[nodiscard]] Bytes read() override
    {
        while (base::StopSignals::received() == 0) {
            const ssize_t count = ::read(m_descriptor, m_buffer.data(), m_buffer.size());
            if (count >= 0) return {m_buffer.data(), static_cast<std::size_t>(count)};
            if (errno == EINTR) continue;
            m_fault.report("cannot be read: " + systemReason(errno));
            return {};
        }
        m_fault.report("was not read to its end");
        return {};
    }

private:
    int m_descriptor;
    Fault &m_fault;
    base::WipedBytes m_buffer{bufferSize};
};

/// False has been told.
bool carryOut(const FilePair &files, const Conversion &conversion)
{
    // First of all: from here on no signal ends the program while a staged file is there.
    std::optional<base::StopSignals> signals(base::StopSignals::BrokenPipe::IsAnError);
    signals->watch(0); // no child: a signal makes the reading end
    ResultFile output(files);
    std::string problem;
    const base::FileDescriptor input = openInput(files, problem);
    bool isDone = problem.empty();
    if (isDone) {
        isDone = output.open() && output.openTarget();
        // Where nothing has to be removed nobody waits for a reader who reads no more.
        if (!output.isStaged()) signals.reset();
    }
    Fault fault;
    if (isDone) {
        FileSource source(files.input ? input.get() : STDIN_FILENO, fault);
        // Whoever asked to stop in the last moment expects no result.
        isDone = conversion(source, output, fault) && base::StopSignals::received() == 0 && output.commit();
    }
    if (isDone) return true;
    if (const int signal = base::StopSignals::received())
        return complain("stopped by " + base::signalName(signal));
    output.tellWhereFull();
    if (problem.empty()) problem = output.problem();
    if (problem.empty()) problem = files.input.value_or("the standard input") + " " + fault.predicate();
    return complain(problem);
}

} // namespace

std::string systemReason(int error) { return std::generic_category().message(error); }

bool complain(const std::string &message)
{
    std::fprintf(stderr, "openssl: %s\n", message.c_str());
    return false;
}

base::FileDescriptor openInput(const FilePair &files, std::string &problem)
{
    if (!files.input) return {};
    const std::string &path = *files.input;
    const int flags = O_RDONLY | O_CLOEXEC | (files.isOurs ? O_NOFOLLOW | O_NONBLOCK : 0);
    base::FileDescriptor file(open(path.c_str(), flags));
    const int error = errno;
    struct stat status {};
    const bool isThere =
        file ? fstat(file.get(), &status) == 0 : lstat(path.c_str(), &status) == 0; // a link, or a socket
    if (files.isOurs && isThere && !S_ISREG(status.st_mode)) {
        problem = "cannot read " + path + ": it is " + base::kindOf(status.st_mode);
        return {};
    }
    if (!file) problem = "cannot open " + path + ": " + systemReason(error);
    return file;
}

ResultFile::ResultFile(const FilePair &files)
    : m_path(files.output), m_isOurs(files.isOurs), m_descriptor(files.output ? -1 : STDOUT_FILENO)
{
}

bool ResultFile::open()
{
    if (!m_path) return true;
    if (mayReplace() && stage()) return true;
    return !m_isOurs || (m_problem.empty() && fail(errno));
}

/// False with errno set.
bool ResultFile::mayReplace()
{
    errno = EISDIR;
    if (m_path->empty() || m_path->ends_with('/')) return false;
    struct stat status {};
    const bool isThere = fstatat(AT_FDCWD, m_path->c_str(), &status, m_isOurs ? AT_SYMLINK_NOFOLLOW : 0) == 0;
    // A link that leads nowhere: writing makes the file that it names.
    if (!isThere) return m_isOurs || lstat(m_path->c_str(), &status) != 0;
    if (S_ISREG(status.st_mode)) {
        if (!m_isOurs && !hasName(*m_path, status)) return false;
        return access(m_path->c_str(), W_OK) == 0;
    }
    if (!m_isOurs || S_ISDIR(status.st_mode)) return false;
    if (!S_ISBLK(status.st_mode) && !S_ISCHR(status.st_mode)) return true;
    m_problem = "cannot write " + *m_path + ": it is " + base::kindOf(status.st_mode);
    return false;
}

/// False with errno set.
bool ResultFile::stage()
{
    const std::string path = m_isOurs ? *m_path : resolved(*m_path);
    m_name = base::nameIn(path);
    m_folder = base::openFolderOf(path);
    if (!m_folder) return false;
    base::removeLeftovers(m_folder.get(), passingNames(m_name));
    m_staged = base::StagedFile::create(m_folder.get(), passingNames(m_name));
    m_descriptor = m_staged.descriptor();
    return isStaged();
}

bool ResultFile::openTarget()
{
    if (isStaged() || !m_path) return true;
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    m_unstaged = base::FileDescriptor(::open(m_path->c_str(), flags, S_IRUSR | S_IWUSR));
    m_descriptor = m_unstaged.get();
    return m_unstaged || fail(errno);
}

bool ResultFile::write(Bytes bytes) { return base::writeFully(m_descriptor, bytes) || fail(errno); }

void ResultFile::tellWhereFull()
{
    if (std::exchange(m_isFull, false)) complain("there is next to no space left for " + *m_path);
}

bool ResultFile::commit()
{
    if (!isStaged()) return m_unstaged.close() || fail(errno);
    // On the disk before it has its name, and its name before anything that it replaces is removed.
    const bool isDone = base::syncToDisk(m_descriptor) && m_staged.publish(m_name, passingNames(m_name)) &&
                        base::syncToDisk(m_folder.get());
    return isDone || fail(errno);
}

bool ResultFile::fail(int error)
{
    m_isFull = error == ENOSPC && m_path;
    m_problem = "cannot write " + m_path.value_or("the standard output") + ": " + systemReason(error);
    return false;
}

int convert(const FilePair &files, const Conversion &conversion)
{
    const bool isDone = carryOut(files, conversion);
    if (const int signal = base::StopSignals::received()) base::endBySignal(signal);
    return isDone ? 0 : 1;
}
