#pragma once

#include <QString>
#include <optional>
#include <string>
#include <sys/types.h>

/// What tells a file from another one that has come to bear its name.
struct FileIdentity {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 bytes = 0;
    qint64 modified = 0; ///< nanoseconds since 1970

    /// Whether it is the same file, though it may have changed.
    [[nodiscard]] bool isSameFile(const FileIdentity &other) const
    {
        return device == other.device && inode == other.inode;
    }
    friend bool operator==(const FileIdentity &, const FileIdentity &) = default;
};

/// What stands under a name, links not followed.
struct FileEntry {
    enum class Kind { File, Folder, Link, Other }; ///< Other: a FIFO, a socket or a device

    Kind kind = Kind::File;
    FileIdentity identity{};
    qint64 changed = 0; ///< seconds since 1970: when its content, its name or its rights last changed

    [[nodiscard]] bool isFile() const { return kind == Kind::File; }
};

/// None where nothing is there, or where it can't be looked at.
[[nodiscard]] std::optional<FileEntry> entryAt(const QString &path);

/// "a folder", "a link" and the like, for a sentence.
[[nodiscard]] QString describeKind(FileEntry::Kind kind);

/// Gives an entry of an open folder other rights, where that can be done: what needs them fails otherwise,
/// and tells it.
void tryToSetRights(int folder, const std::string &name, mode_t rights);

/// Waits until a file's content, or a folder's names, are on the disk; the reason where that failed, else
/// empty. What is no file or folder is not opened.
[[nodiscard]] QString syncToDisk(const QString &path);
