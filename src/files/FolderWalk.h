#pragma once

#include <dirent.h>
#include <functional>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <vector>

/// All that is below a folder, folders before what is in them, links not followed; of a file, the file
/// itself. What can't be read is left out. Names stay bytes: one that is not UTF-8 would be lost in a
/// QString.
class FolderWalk {
public:
    explicit FolderWalk(std::string path);

    /// Goes on to the next entry; false where there is none.
    [[nodiscard]] bool next();
    [[nodiscard]] const struct stat &attributes() const { return m_attributes; }
    [[nodiscard]] std::string path() const;

private:
    struct CloseFolder {
        void operator()(DIR *folder) const { closedir(folder); }
    };
    struct Open {
        std::unique_ptr<DIR, CloseFolder> folder;
        std::size_t pathLength; ///< of the folder's own, in `m_folder`
    };

    void enter(int descriptor);
    void leave();

    std::string m_folder; ///< the path of the innermost that is open
    std::string m_name;   ///< of the entry in it
    struct stat m_attributes {};
    std::vector<Open> m_open;
    bool m_isFile = false; ///< and has not been given yet
};
