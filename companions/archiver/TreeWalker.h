#pragma once

#include "Diagnostics.h"
#include "FolderChain.h"

#include <string>
#include <sys/stat.h>
#include <vector>

namespace archiver {

/// Takes what TreeWalker finds. False ends the walk.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;
    /// A regular file, open for reading; `path` is where it was found.
    virtual bool file(int descriptor, const struct stat &status, const std::string &name,
                      const std::string &path) = 0;
    virtual bool folder(const struct stat &status, const std::string &name) = 0;
    virtual bool link(const struct stat &status, const std::string &name, const std::string &target) = 0;
    /// Whether an entry of the folder with that status is left out.
    virtual bool excluded(const struct stat &folder, const std::string &name) = 0;
};

/// Goes through a file, a link or a folder with all below it, a folder after its contents. Pipes, sockets and
/// devices in a folder are passed over in silence: they have no content, and a home folder always has some.
/// What can't be read is reported, and the walk goes on behind it. Folders may be inside each other as deep
/// as the system lets them be: only names grow with it.
class TreeWalker {
public:
    enum class Links { Keep, Follow };
    enum class Names { Path, Bare };
    TreeWalker(TreeVisitor &visitor, Links links, Names names, Diagnostics &diagnostics);
    ~TreeWalker();

    /// False where the visitor has ended the walk.
    [[nodiscard]] bool walk(const std::string &source);

private:
    struct Place {
        int folder;            ///< open
        std::string entry;     ///< in that folder
        unsigned char type;    ///< as in a folder's listing; DT_UNKNOWN where it isn't known
        bool followed = false; ///< the target of a link
    };
    struct Level;

    [[nodiscard]] bool visit(const Place &place);
    [[nodiscard]] bool visitFile(const Place &place);
    [[nodiscard]] bool visitLink(const Place &place);
    void enterFolder(const Place &place);
    [[nodiscard]] bool goOn();
    [[nodiscard]] bool leaveFolder();
    [[nodiscard]] std::string storedName() const;
    void cannotOpen();
    void refuse(mode_t mode);

    TreeVisitor &m_visitor;
    Links m_links;
    Names m_names;
    Diagnostics &m_diagnostics;
    std::string m_path; ///< of the present entry, as it is found
    std::string m_name; ///< as it is stored, with its path
    FolderChain m_folders;
    std::vector<Level> m_levels; ///< what is left to do in those folders
};

} // namespace archiver
