#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

class QSaveFile;

namespace plist {

/// New content of a file, readable and writable by the user alone, that lies on the disk beside the old one
/// until it takes its place in one step. What is not committed goes again. Where the path is a symbolic link,
/// it is about the file that it leads to (which need not exist), and the link stays.
class PendingFile {
public:
    PendingFile(const QString &path, const QByteArray &content);
    ~PendingFile();
    PendingFile(PendingFile &&) noexcept;
    PendingFile &operator=(PendingFile &&) noexcept;

    /// Why it can't be written, beginning with the file's path; empty where only the last step is left.
    [[nodiscard]] const QString &reason() const { return m_reason; }

    /// Takes the last step, once. Gives the reason where that failed, or what was before it.
    [[nodiscard]] QString commit();
    [[nodiscard]] bool isCommitted() const { return m_isCommitted; }

private:
    void prepare(const QByteArray &content);
    void fail(const QString &why);

    QString m_path;
    QString m_reason;
    bool m_isCommitted = false;
    std::unique_ptr<QSaveFile> m_file;
};

/// Puts `content` in place of the file, whole or not at all. Gives the reason where that failed, and the
/// empty string where it did not.
[[nodiscard]] QString replacePrivateFile(const QString &path, const QByteArray &content);

} // namespace plist
