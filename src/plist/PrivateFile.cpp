#include "plist/PrivateFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <optional>
#include <unistd.h>

namespace plist {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(plist)
};

// As many as the Linux kernel follows before it calls them a loop.
constexpr int maximumLinks = 40;

// The end of a chain of links need not exist: a link into a folder of kept settings may come before its file.
std::optional<QString> targetOf(const QString &path)
{
    QFileInfo file(path);
    for (int links = 0; links < maximumLinks && file.isSymLink(); ++links)
        file.setFile(file.symLinkTarget());
    if (file.isSymLink()) return std::nullopt;
    return file.filePath();
}

// commit() overlooks this one, too; and a disk may tell only now that it is full. Some file systems can't
// sync.
int failureOfSync(int file)
{
    if (fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP) return 0;
    return errno;
}

} // namespace

PendingFile::PendingFile(const QString &path, const QByteArray &content) : m_path(path) { prepare(content); }

PendingFile::~PendingFile() = default;
PendingFile::PendingFile(PendingFile &&) noexcept = default;
PendingFile &PendingFile::operator=(PendingFile &&) noexcept = default;

void PendingFile::fail(const QString &why)
{
    m_reason = Words::tr("%1: it can't be written: %2").arg(m_path, why);
    m_file.reset();
}

void PendingFile::prepare(const QByteArray &content)
{
    const auto target = targetOf(m_path);
    if (!target) return fail(Words::tr("its links lead in a circle"));
    m_file = std::make_unique<QSaveFile>(*target);

    if (!m_file->open(QIODevice::WriteOnly)) return fail(m_file->errorString());
    // Before anything is in it: a new file would have the process's mode, a replaced one that of the old.
    if (!m_file->setPermissions(QFile::ReadOwner | QFile::WriteOwner)) return fail(m_file->errorString());
    // Flushed here: commit() overlooks what fails on the way out of the buffer, and would put half a file in
    // place.
    if (m_file->write(content) != content.size() || !m_file->flush()) return fail(m_file->errorString());
    if (const int error = failureOfSync(m_file->handle())) fail(qt_error_string(error));
}

QString PendingFile::commit()
{
    if (!m_file) return m_reason;
    m_isCommitted = m_file->commit();
    if (!m_isCommitted) fail(m_file->errorString());
    m_file.reset();
    return m_reason;
}

QString replacePrivateFile(const QString &path, const QByteArray &content)
{
    return PendingFile(path, content).commit();
}

} // namespace plist
