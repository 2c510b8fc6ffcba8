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

    /// Whether it says that entries share dictionaries.
    [[nodiscard]] bool isSolid() const { return m_isSolid; }

    enum class Step { Entry, End, Failed };
    /// Goes to the next entry, past what is left of the present one. Failed has been reported.
    [[nodiscard]] Step next();
    /// The entry's header; after its last byte has been read, that of its last part.
    [[nodiscard]] const FileHeader &entry() const { return m_entry; }

    /// Goes past what is left of the entry's data, to the header of its last part. How much that was in all
    /// volumes; none has been reported.
    [[nodiscard]] std::optional<std::uint64_t> skipEntry();

    /// Reads as much of the entry's packed data, from all volumes that it spans, as there is room for; less
    /// at its end only, and nothing after a fault (see failed()).
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> into);
    /// Up to `wanted` bytes of what comes next in this volume, without going past them. Valid until the next
    /// call.
    [[nodiscard]] Bytes peek(std::size_t wanted);
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
    bool cannotRead(const std::string &what = {});

    VolumeSource &m_volumes;
    Diagnostics &m_diagnostics;
    const HeaderFormat *m_format = &presentFormat;
    SourceWindow m_window;
    std::size_t m_volume = 0;
    bool m_isVolume = false;
    bool m_isSolid = false;
    bool m_failed = false;
    FileHeader m_entry;
    std::uint64_t m_partLeft = 0; ///< packed bytes of the entry still to read in this volume
    std::uint32_t m_partCrc = 0;  ///< of those read so far, where the entry goes on in the next volume
    bool m_partSkipped = false;   ///< some of them were not looked at
};

} // namespace archiver
