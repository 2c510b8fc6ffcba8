#pragma once

#include "TemporaryFolder.h"

#include <fstream>
#include <sys/mount.h>

/// While it lives, the folder is a file system of its own, with what was in it and without room for a byte.
class FullDisk {
public:
    explicit FullDisk(std::filesystem::path folder) : m_folder(std::move(folder))
    {
        namespace fs = std::filesystem;
        const TemporaryFolder before;
        fs::copy(m_folder, before.path(), fs::copy_options::recursive);
        m_isMounted = mount("none", m_folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, "size=256k") == 0;
        if (!m_isMounted) return;
        fs::copy(before.path(), m_folder, fs::copy_options::recursive);
        std::ofstream filler(m_folder / "filler");
        while (filler << std::string(4096, 'x') << std::flush) {
        }
    }
    ~FullDisk()
    {
        if (m_isMounted) umount2(m_folder.c_str(), MNT_DETACH);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

    /// False where file systems can't be mounted.
    [[nodiscard]] bool isThere() const { return m_isMounted; }

private:
    const std::filesystem::path m_folder;
    bool m_isMounted = false;
};
