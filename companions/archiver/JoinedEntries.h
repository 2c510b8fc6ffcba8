#pragma once

#include "ArchiveReader.h"

#include <deque>

namespace archiver {

/// A row of an archive's packed entries as the bytes of one archive in a single piece, whatever volumes it is
/// cut into and wherever: libarchive can't read volumes that end within the header of a packed block. It has
/// headers of our own, with nothing that libarchive doesn't know; each entry's name is its number. What is
/// held in memory does not grow with the archive.
class JoinedEntries {
public:
    /// `path`: of the archive's first volume. Faults are reported to `diagnostics`.
    JoinedEntries(const std::string &path, Diagnostics &diagnostics);

    /// Starts with entry `first`, counted from 0, which is packed; up to the next packed one that shares no
    /// dictionary with those before it. Numbers have to rise. False has been reported.
    [[nodiscard]] bool begin(std::size_t first);
    /// The next bytes, valid until the next call; none at the end and after a fault.
    [[nodiscard]] Bytes read();
    /// Whether there has been a fault in the archive.
    [[nodiscard]] bool failed() const { return m_failed; }
    /// The header of entry `index` as it is in the bytes read so far. It is asked for in the entries' order.
    [[nodiscard]] std::optional<FileHeader> header(std::size_t index);

private:
    /// One of the two walks through the archive, which is one entry ahead of the other: a header has the
    /// sizes of all parts, and stands before the first one's data.
    struct Walk {
        Walk(const std::string &path, Diagnostics &diagnostics) : files(path), reader(files, diagnostics) {}
        VolumeFiles files;
        ArchiveReader reader;
        std::size_t next = 0; ///< number of the entry that comes next
    };
    enum class State { Start, Entry, Data, End };

    [[nodiscard]] ArchiveReader::Step step(Walk &walk);
    [[nodiscard]] bool goTo(Walk &walk, std::size_t index);
    Bytes putStart();
    Bytes putEntry();
    Bytes putEnd();
    Bytes fail();

    Walk m_scout;
    Walk m_feeder;
    bool m_isOpen = false;
    bool m_failed = false;
    State m_state = State::End;
    std::size_t m_first = 0;
    std::size_t m_consumed = 0; ///< bytes of the feeder that the last read() gave
    ByteBuffer m_header;
    std::deque<std::pair<std::size_t, FileHeader>> m_given;
};

} // namespace archiver
