#pragma once

#include "EntryWriter.h"
#include "OrderedWork.h"
#include "Piece.h"

#include <unordered_map>

namespace archiver {

/// Adds entries one behind the other, with no need to know a file's content or final size before. What is to
/// be packed is read in pieces, which are packed on all cores and written in their order.
///
/// Each function gives false when the archive can't go on. What is wrong with a source file alone is
/// reported, and nothing else happens.
class ArchiveWriter {
public:
    struct Packing {
        unsigned method = 0; ///< 0: content stays as it is; 1 to 5: the higher, the smaller and the slower
        /// Files are packed with what those before hold, in groups that begin afresh: a damaged place costs
        /// no more than the rest of its group.
        bool solid = false;
    };

    ArchiveWriter(OutputVolumes &output, Packing packing, Diagnostics &diagnostics)
        : m_output(output), m_entries(output, diagnostics), m_packing(packing), m_diagnostics(diagnostics)
    {
    }

    /// The regular file open as `file`; `path` is its name for messages. A file that grows meanwhile is taken
    /// with the size that `status` has.
    [[nodiscard]] bool addFile(int file, const struct stat &status, const std::string &name,
                               const std::string &path);
    [[nodiscard]] bool addFolder(const struct stat &status, const std::string &name);
    [[nodiscard]] bool addLink(const struct stat &status, const std::string &name, const std::string &target);

    /// Writes what is still being packed, behind the last entry, and gives the memory back.
    [[nodiscard]] bool finish();

    /// Time of the newest file or link; without any, of the newest folder.
    [[nodiscard]] std::optional<Timestamp> newest() const
    {
        return m_newestFile ? m_newestFile : m_newestFolder;
    }

private:
    /// What is left to read of the present file, and how it is called.
    struct Source {
        int file;
        FileHeader header;
        std::uint64_t left;
        bool sizeKnown;
        const std::string &path;
    };

    [[nodiscard]] bool packs() const { return m_packing.method > 0; }
    [[nodiscard]] bool addWithoutData(const FileHeader &header);
    [[nodiscard]] bool addStored(Source &source);
    [[nodiscard]] bool storeContent(Source &source);
    [[nodiscard]] bool addWhole(Source &source);
    [[nodiscard]] bool addLarge(Source &source, Coding coding);
    void addPart(Source &source, std::size_t size, Coding coding);
    [[nodiscard]] bool joinGroupIfWorthIt();
    Part takeLastPart();
    [[nodiscard]] bool joinGroupWithTwin(std::size_t place);
    [[nodiscard]] bool addToGroup(FileHeader header, Bytes content);
    [[nodiscard]] bool beginGroupFor(std::uint64_t size);
    [[nodiscard]] bool endGroup();
    [[nodiscard]] bool putAside(Part part, Bytes content);
    void joinGroup(FileHeader &header, std::uint64_t size);
    [[nodiscard]] bool openPiece(std::size_t size);
    enum class History { Keep, Drop };
    void givePiece(History history);
    [[nodiscard]] bool writePieces();
    [[nodiscard]] bool writeOldestPiece();
    [[nodiscard]] bool writePart(const Piece &piece, Part &part);
    void describePacking(Part &part);
    /// Reads up to `into.size()` bytes; 0 after a fault as well, which has been reported.
    [[nodiscard]] std::size_t read(Source &source, std::span<std::uint8_t> into);

    OutputVolumes &m_output;
    EntryWriter m_entries;
    Packing m_packing;
    Diagnostics &m_diagnostics;

    std::uint64_t m_size = 0; ///< of the content of the entry that is being written, so far
    std::uint32_t m_crc = 0;
    std::optional<Timestamp> m_newestFile;
    std::optional<Timestamp> m_newestFolder;

    std::unique_ptr<base::OrderedWork<Piece>> m_work; ///< none before there is anything to pack
    Piece *m_piece = nullptr;                         ///< that is being filled; none is open
    ByteBuffer m_history;                             ///< the end of the piece before, where matches reach it
    std::uint64_t m_groupSize = 0;                    ///< content of the present solid group
    ByteBuffer m_aside;                               ///< content of what comes behind it
    std::vector<Part> m_asideParts;
    /// By size and checksum, where in m_aside there is, or was, such content.
    std::unordered_map<std::uint64_t, std::size_t> m_twins;
};

} // namespace archiver
