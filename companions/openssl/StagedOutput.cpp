#include "StagedOutput.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

// In bytes: less than this is what a file system has left after a write that it refused.
constexpr unsigned long long nextToNothing = 65536;

bool canBeReplaced(const std::string &path)
{
    struct stat status {};
    if (stat(path.c_str(), &status) == 0) return S_ISREG(status.st_mode) && access(path.c_str(), W_OK) == 0;
    // A symbolic link that leads nowhere: writing makes the file that it names.
    return lstat(path.c_str(), &status) != 0;
}

std::string resolved(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

} // namespace

StagedOutput::StagedOutput(const std::string &target) : m_target(target)
{
    if (target.empty() || target.ends_with('/') || !canBeReplaced(target)) return;
    const std::string real = resolved(target);
    const std::size_t slash = real.rfind('/');
    const std::string folder = slash == std::string::npos ? std::string() : real.substr(0, slash + 1);
    std::string name = folder + ".openssl-XXXXXX";
    FileDescriptor file(mkstemp(name.data()));
    if (!file.isOpen()) return;
    fcntl(file.get(), F_SETFD, FD_CLOEXEC);
    m_target = real;
    m_passingName = name;
    m_file = std::move(file);
}

StagedOutput::~StagedOutput()
{
    if (isStaged()) unlink(m_passingName.c_str());
}

bool StagedOutput::isFull() const
{
    struct statvfs status {};
    if (!isStaged() || fstatvfs(m_file.get(), &status) != 0) return false;
    return static_cast<unsigned long long>(status.f_bavail) * status.f_frsize < nextToNothing;
}

std::error_code StagedOutput::commit()
{
    if (!isStaged()) return {};
    if (!m_file.close() || std::rename(m_passingName.c_str(), m_target.c_str()) != 0)
        return {errno, std::generic_category()};
    m_passingName.clear();
    return {};
}
