#pragma once

#include "ContentSink.h"
#include "Destination.h"
#include "FolderAttributes.h"
#include "StagedFile.h"

namespace archiver {

/// Makes an archive's entries below a folder, over what is there already, nothing of which is ever opened. A
/// file appears under its name only when it is complete. Times and modes of folders are set at the end, by
/// finish().
class Extractor final : public EntryReceiver, private ContentSink {
public:
    enum class Paths { Keep, Drop };
    /// `Paths::Drop` puts all files straight into the folder, and makes no folders.
    Extractor(Destination &destination, Paths paths, Diagnostics &diagnostics);

    void folder(const FileHeader &header) override;
    void link(const FileHeader &header) override;
    ContentSink *beginFile(const FileHeader &header) override;
    void finishFile(const FileHeader &header) override;
    void abandonFile() override;

    void finish();

private:
    bool write(Bytes bytes) override;
    [[nodiscard]] std::optional<std::vector<std::string>> place(const std::string &name);
    [[nodiscard]] int enter(const std::vector<std::string> &components, const FileHeader &header);
    void symbolicLink(const FileHeader &header);
    void copyOfEntry(const FileHeader &header);
    [[nodiscard]] bool copyContent(int from);
    [[nodiscard]] unsigned permissions(const FileHeader &header) const;
    bool cannotCreate(const std::string &name);

    Destination &m_destination;
    Paths m_paths;
    Diagnostics &m_diagnostics;
    unsigned m_umask;
    base::StagedFile m_file;
    std::string m_fileName; // its final one, in its folder
    std::string m_entryName;
    FolderAttributes m_folders;
};

} // namespace archiver
