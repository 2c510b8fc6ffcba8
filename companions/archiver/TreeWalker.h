#pragma once

#include "Diagnostics.h"
#include "File.h"

#include <string>
#include <sys/stat.h>

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
/// devices are passed over in silence: they have no content, and a home folder always has some. What can't be
/// read is reported, and the walk goes on behind it.
class TreeWalker {
public:
    enum class Links { Keep, Follow };
    enum class Names { Path, Bare };
    TreeWalker(TreeVisitor &visitor, Links links, Names names, Diagnostics &diagnostics)
        : m_visitor(visitor), m_links(links), m_names(names), m_diagnostics(diagnostics)
    {
    }

    /// False where the visitor has ended the walk.
    [[nodiscard]] bool walk(const std::string &source);

private:
    struct Place {
        int folder;            ///< open
        std::string entry;     ///< in that folder
        unsigned char type;    ///< as in a folder's listing; DT_UNKNOWN where it isn't known
        bool followed = false; ///< the target of a link
    };

    [[nodiscard]] bool visit(const Place &place, const std::string &path, const std::string &name);
    [[nodiscard]] bool visitFile(const Place &place, const std::string &path, const std::string &name);
    [[nodiscard]] bool visitFolder(const Place &place, const std::string &path, const std::string &name);
    [[nodiscard]] bool visitContents(FileDescriptor folder, const struct stat &status,
                                     const std::string &path, const std::string &name);
    [[nodiscard]] bool visitLink(const Place &place, const std::string &path, const std::string &name);
    [[nodiscard]] std::string entryName(const std::string &parent, const std::string &entry) const;
    void cannotOpen(const std::string &path);

    TreeVisitor &m_visitor;
    Links m_links;
    Names m_names;
    Diagnostics &m_diagnostics;
};

} // namespace archiver
