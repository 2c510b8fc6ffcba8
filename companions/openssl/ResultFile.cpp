#include "ResultFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

std::string systemReason() { return std::generic_category().message(errno); }

} // namespace

ResultFile::ResultFile(const std::optional<std::string> &target)
    : m_name(target.value_or("the standard output")), m_descriptor(STDOUT_FILENO)
{
    if (target) m_staged.emplace(*target);
}

bool ResultFile::open()
{
    if (!m_staged) return true;
    m_descriptor = m_staged->descriptor();
    if (m_staged->isStaged()) return true;
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    m_unstaged = FileDescriptor(::open(m_staged->path().c_str(), flags, S_IRUSR | S_IWUSR));
    m_descriptor = m_unstaged.get();
    return m_unstaged.isOpen() || fail(systemReason());
}

bool ResultFile::write(Bytes bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) return fail(systemReason());
        if (count > 0) bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool ResultFile::commit()
{
    if (!m_unstaged.close()) return fail(systemReason());
    const std::error_code error = m_staged ? m_staged->commit() : std::error_code();
    return !error || fail(error.message());
}

bool ResultFile::fail(const std::string &reason)
{
    m_problem = "cannot write " + m_name + ": " + reason;
    return false;
}
