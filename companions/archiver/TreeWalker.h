#pragma once

#include "ArchiveWriter.h"
#include "Arguments.h"
#include "FolderChain.h"

namespace archiver {

/// Adds a file, a link or a folder with all below it to an archive, a folder after its contents, and without
/// the archive itself. Pipes, sockets and
/// devices in a folder are passed over in silence: they have no content, and a home folder always has some.
/// What can't be read is reported, and the walk goes on behind it. Folders may be inside each other as deep
/// as the system lets them be: only names grow with it.
class TreeWalker {
public:
    /// `output`: where the writer puts it.
    TreeWalker(ArchiveWriter &writer, const OutputVolumes &output, const Arguments &arguments,
               Diagnostics &diagnostics);
    ~TreeWalker();

    /// False where the archive can't go on.
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

    ArchiveWriter &m_writer;
    const OutputVolumes &m_output;
    const Arguments &m_arguments;
    Diagnostics &m_diagnostics;
    std::string m_path; ///< of the present entry, as it is found
    std::string m_name; ///< as it is stored, with its path
    FolderChain m_folders;
    std::vector<Level> m_levels; ///< what is left to do in those folders
};

} // namespace archiver
