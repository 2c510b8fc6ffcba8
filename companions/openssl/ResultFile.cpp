#include "ResultFile.h"

#include "Complaint.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace {

std::string resolved(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

/// False for what is open and has no name any more, to which only the kernel's links lead: a link in place of
/// which a file came would be lost.
bool hasName(const std::string &path, const struct stat &file)
{
    struct stat named {};
    return lstat(resolved(path).c_str(), &named) == 0 && named.st_dev == file.st_dev &&
           named.st_ino == file.st_ino;
}

base::PassingNames passingNames(const std::string &name) { return {".openssl", name}; }

} // namespace

ResultFile::ResultFile(const std::optional<std::string> &path, Target target)
    : m_path(path), m_target(target), m_descriptor(path ? -1 : STDOUT_FILENO)
{
}

bool ResultFile::open()
{
    if (!m_path) return true;
    if (mayReplace() && stage()) return true;
    return m_target == Target::Opened || (m_problem.empty() && fail(errno));
}

/// False with errno set.
bool ResultFile::mayReplace()
{
    errno = EISDIR;
    if (m_path->empty() || m_path->ends_with('/')) return false;
    struct stat status {};
    const bool isThere =
        fstatat(AT_FDCWD, m_path->c_str(), &status, m_target == Target::Name ? AT_SYMLINK_NOFOLLOW : 0) == 0;
    // A link that leads nowhere: writing makes the file that it names.
    if (!isThere) return m_target == Target::Name || lstat(m_path->c_str(), &status) != 0;
    if (S_ISREG(status.st_mode)) {
        if (m_target == Target::Opened && !hasName(*m_path, status)) return false;
        return access(m_path->c_str(), W_OK) == 0;
    }
    if (m_target == Target::Opened || S_ISDIR(status.st_mode)) return false;
    if (!S_ISBLK(status.st_mode) && !S_ISCHR(status.st_mode)) return true;
    m_problem = "cannot write " + *m_path + ": it is " + base::kindOf(status.st_mode);
    return false;
}

/// False with errno set.
bool ResultFile::stage()
{
    const std::string path = m_target == Target::Name ? *m_path : resolved(*m_path);
    const std::size_t start = path.rfind('/') + 1;
    const std::string folder = start == 0 ? "." : path.substr(0, start);
    m_name = path.substr(start);
    m_folder = base::FileDescriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
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
    m_problem = "cannot write " + m_path.value_or("the standard output") + ": " +
                std::generic_category().message(error);
    return false;
}
