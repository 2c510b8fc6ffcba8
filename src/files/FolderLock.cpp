#include "files/FolderLock.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
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
    FolderLock lock;
    lock.m_folder = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock.m_folder < 0 || flock(lock.m_folder, LOCK_EX | LOCK_NB) == 0) return lock;
    lock.m_isBusy = errno == EWOULDBLOCK;
    close(std::exchange(lock.m_folder, -1));
    return lock;
}
