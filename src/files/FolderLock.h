#pragma once

#include <QString>

/// A hold on a folder that keeps other processes' runs out of it, without a file that anybody sees. It ends
/// with the last descriptor: tools that inherit it hold the folder for as long as they write there, even
/// where this program is killed.
class FolderLock {
public:
    FolderLock() = default; ///< holds nothing
    ~FolderLock();
    FolderLock(FolderLock &&other) noexcept;
    FolderLock &operator=(FolderLock &&other) noexcept;
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    /// A file system that knows no locks gives one that holds nothing, as does a folder that can't be opened.
    /// Blocks for a fraction of a second where somebody else holds it.
    [[nodiscard]] static FolderLock take(const QString &folder);
    /// Whether anybody holds the folder, this program included.
    [[nodiscard]] static bool isHeld(const QString &folder);

    /// Whether somebody else holds the folder.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    /// For tools to inherit; -1 where nothing is held.
    [[nodiscard]] int descriptor() const { return m_folder; }

private:
    [[nodiscard]] static FolderLock tryTake(const QString &folder, int kind);

    int m_folder = -1;
    bool m_isBusy = false;
};
