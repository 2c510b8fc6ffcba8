#pragma once

#include "Diagnostics.h"
#include "Headers.h"
#include "VolumeSource.h"

namespace archiver {

/// Walks through the headers of an archive, RAR 5 or of the format before, over all of its volumes, and hands
/// out the packed data of its entries. Whatever the bytes are, the walk stays within them: every fault ends
/// it with a message.
class ArchiveReader {
public:
    ArchiveReader(VolumeSource &volumes, Diagnostics &diagnostics)
        : m_volumes(volumes), m_diagnostics(diagnostics)
    {
    }

    /// Opens the first volume. False has been reported.
    [[nodiscard]] bool open();
    /// How its headers are written.
    [[nodiscard]] const HeaderFormat &format() const { return *m_format; }

    enum class Step { Entry, End, Failed };
    /// Goes to the next entry, past what is left of the present one. Failed has been reported.
    [[nodiscard]] Step next();
    /// The entry's header; after its last byte has been read, that of its last part.
    [[nodiscard]] const FileHeader &entry() const { return m_entry; }

    /// Goes past what is left of the entry's data, to the header of its last part. How much that was in all
    /// volumes; none has been reported.
    [[nodiscard]] std::optional<std::uint64_t> skipEntry();

    /// At least `wanted` bytes of the entry's packed data, from all volumes that it spans; fewer at its end
    /// only, and none after a fault (see failed()). They are valid until the next call.
    [[nodiscard]] Bytes packed(std::size_t wanted = 1);
    void consume(std::size_t count);
    /// Whether the walk has ended in a fault, which has been reported.
    [[nodiscard]] bool failed() const { return m_failed; }

private:
    bool fail(const std::string &message);
    bool cannotOpen(std::size_t index);
    bool openVolume(std::size_t index);
    bool readSignature();
    bool readMainHeader(std::size_t index);
    [[nodiscard]] std::optional<HeaderFrame> readFrame();
    bool acceptEntry(const HeaderFrame &frame);
    bool skipData(std::uint64_t count);
    bool finishPart();
    bool continueInNextVolume();
    bool findEndOfVolume();
    bool findContinuation();
    [[nodiscard]] Bytes available(std::size_t wanted);
    [[nodiscard]] Bytes gather(std::size_t wanted);

    VolumeSource &m_volumes;
    Diagnostics &m_diagnostics;
    const HeaderFormat *m_format = &presentFormat;
    SourceWindow m_window;
    std::size_t m_volume = 0;
    bool m_isVolume = false;
    bool m_failed = false;
    FileHeader m_entry;
    std::uint64_t m_partLeft = 0; ///< packed bytes of the entry still to read in this volume
    std::uint32_t m_partCrc = 0;  ///< of those read so far, where the entry goes on in the next volume
    bool m_partSkipped = false;   ///< some of them were not looked at
    ByteBuffer m_gathered;        ///< packed bytes from two volumes side by side
    std::size_t m_gatheredUsed = 0;
};

} // namespace archiver
