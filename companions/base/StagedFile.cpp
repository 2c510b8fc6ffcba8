#include "StagedFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>

namespace base {

namespace {

constexpr unsigned mostNames = 100'000;

/// Whoever is at work on a file with a passing name holds its lock. File systems without locks do without.
bool isLockedByOther(int file) { return flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; }

bool removeLeftover(int folder, const std::string &name)
{
    const FileDescriptor file(openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file || fstat(file.get(), &status) != 0) return false;
    if (!S_ISREG(status.st_mode) || status.st_uid != geteuid() || status.st_nlink != 1) return false;
    return !isLockedByOther(file.get()) && unlinkat(folder, name.c_str(), 0) == 0;
}

/// Tries passing names, and those of killed runs again, until `attempt` doesn't meet an EEXIST.
template <typename Attempt>
std::string firstFree(int folder, const PassingNames &names, unsigned first, Attempt attempt)
{
    for (unsigned number = first; number < first + mostNames; ++number) {
        std::string name = names.name(number);
        if (attempt(name)) return name;
        if (errno != EEXIST) return {};
        if (removeLeftover(folder, name) && attempt(name)) return name;
    }
    errno = EEXIST;
    return {};
}

} // namespace

PassingNames::PassingNames(const std::string &program, const std::string &target)
{
    // FNV-1a: nobody has to be kept from finding two names with one value, they would only share passing
    // names.
    unsigned long long value = 0xcbf29ce484222325;
    for (const char letter : target)
        value = (value ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    std::array<char, 24> digits{};
    std::snprintf(digits.data(), digits.size(), "-%016llx-", value);
    m_start = program + digits.data();
}

void removeLeftovers(int folder, const PassingNames &names)
{
    for (const std::string &name :
         namesIn(folder, [&](const std::string &each) { return names.include(each); }))
        removeLeftover(folder, name);
}

bool StagedFile::openNameless()
{
    // Without /proc it could never get a name.
    static const bool hasProc = access("/proc/self/fd", X_OK) == 0;
    if (hasProc) m_file = FileDescriptor(openat(m_folder, ".", O_RDWR | O_TMPFILE | O_CLOEXEC, 0600));
    return static_cast<bool>(m_file);
}

bool StagedFile::createNamed(const PassingNames &names, unsigned number)
{
    m_passingName = firstFree(m_folder, names, number, [this](const std::string &name) {
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        m_file = FileDescriptor(openat(m_folder, name.c_str(), flags, 0600));
        return static_cast<bool>(m_file);
    });
    return !m_passingName.empty() && keep();
}

bool StagedFile::keep()
{
    flock(m_file.get(), LOCK_EX | LOCK_NB);
    return fstat(m_file.get(), &m_identity) == 0;
}

bool StagedFile::link(const PassingNames &names, unsigned number)
{
    m_passingName = firstFree(m_folder, names, number, [this](const std::string &name) {
        return linkat(AT_FDCWD, descriptorPath(m_file.get()).c_str(), m_folder, name.c_str(),
                      AT_SYMLINK_FOLLOW) == 0;
    });
    return !m_passingName.empty();
}

bool StagedFile::unpark()
{
    if (m_file) return true;
    m_file =
        FileDescriptor(openat(m_folder, m_passingName.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!m_file || fstat(m_file.get(), &status) != 0) return false;
    if (isSame(status, m_identity)) return true;
    m_file.close();
    errno = ESTALE;
    return false;
}

bool StagedFile::publish(const std::string &name, const PassingNames &names)
{
    // A link never replaces. Where there is nothing to replace, no passing name is seen by anybody.
    if (m_passingName.empty()) {
        const std::string path = descriptorPath(m_file.get());
        if (linkat(AT_FDCWD, path.c_str(), m_folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
        if (errno != EEXIST || !link(names, 0)) return false;
    }
    if (renameat(m_folder, m_passingName.c_str(), m_folder, name.c_str()) != 0) return false;
    releaseName();
    return true;
}

} // namespace base
