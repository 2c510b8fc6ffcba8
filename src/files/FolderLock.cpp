#include "files/FolderLock.h"

#include <QFile>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>
#include <utility>

FolderLock::~FolderLock()
{
    if (m_folder >= 0) close(m_folder);
}

FolderLock::FolderLock(FolderLock &&other) noexcept
    : m_folder(std::exchange(other.m_folder, -1)), m_isBusy(other.m_isBusy)
{
}

FolderLock &FolderLock::operator=(FolderLock &&other) noexcept
{
    std::swap(m_folder, other.m_folder);
    std::swap(m_isBusy, other.m_isBusy);
    return *this;
}

FolderLock FolderLock::take(const QString &folder)
{
    // Who only asks whether it is held holds it for a moment, as does a tool that is just being started.
    constexpr int tries = 10;
    FolderLock lock = tryTake(folder, LOCK_EX);
    for (int failed = 1; lock.isBusy() && failed < tries; ++failed) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        lock = tryTake(folder, LOCK_EX);
    }
    return lock;
}

bool FolderLock::isHeld(const QString &folder)
{
    // Shared: two that ask at once don't take each other for a run.
    return tryTake(folder, LOCK_SH).isBusy();
}

FolderLock FolderLock::tryTake(const QString &folder, int kind)
{
    FolderLock lock;
    lock.m_folder = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock.m_folder < 0 || flock(lock.m_folder, kind | LOCK_NB) == 0) return lock;
    lock.m_isBusy = errno == EWOULDBLOCK;
    close(std::exchange(lock.m_folder, -1));
    return lock;
}
