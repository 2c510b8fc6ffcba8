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
    [[nodiscard]] bool open() { return openVolume(0); }
    /// How its headers are written.
    [[nodiscard]] const HeaderFormat &format() const { return *m_format; }

    /// Whether it says that entries share dictionaries.
    [[nodiscard]] bool isSolid() const { return m_isSolid; }

    enum class Step { Entry, End, Failed };
    /// Goes to the next entry, past what is left of the present one. Failed has been reported.
    [[nodiscard]] Step next()
    {
        if (m_failed || !skipEntry()) return Step::Failed;
        for (;;) {
            const std::optional<HeaderFrame> frame = readFrame();
            if (!frame) return Step::Failed;
            if (frame->type == HeaderType::File) return acceptEntry(*frame) ? Step::Entry : Step::Failed;
            if (frame->type == HeaderType::End) {
                const std::optional<bool> more = m_format->endHeader(*frame);
                if (!more) return fail("Corrupt end of archive"), Step::Failed;
                if (!*more) return Step::End;
                if (!openVolume(m_volume + 1)) return Step::Failed;
                continue;
            }
            if (frame->type == HeaderType::Encryption)
                return fail(printable(m_volumes.name(0)) +
                            " is encrypted by the archiver, which is not supported"),
                       Step::Failed;
            if (!skipData(frame->dataSize)) return Step::Failed;
        }
    }

    /// The entry's header; after its last byte has been read, that of its last part.
    [[nodiscard]] const FileHeader &entry() const { return m_entry; }

    /// Goes past what is left of the entry's data, to the header of its last part. How much that was in all
    /// volumes; none has been reported.
    [[nodiscard]] std::optional<std::uint64_t> skipEntry()
    {
        for (std::uint64_t skipped = 0;;) {
            if (m_partLeft > 0) m_partSkipped = true;
            if (!skipData(m_partLeft)) return std::nullopt;
            skipped += std::exchange(m_partLeft, 0);
            if (!m_entry.continuesAfter) return skipped;
            if (!continueInNextVolume()) return std::nullopt;
        }
    }

    /// Reads as much of the entry's packed data, from all volumes that it spans, as there is room for; less
    /// at its end only, and nothing after a fault (see failed()).
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> into)
    {
        std::size_t done = 0;
        while (done < into.size() && !m_failed) {
            if (m_partLeft == 0) {
                if (!m_entry.continuesAfter || !continueInNextVolume()) break;
                continue;
            }
            const std::uint64_t most = std::min<std::uint64_t>(into.size() - done, m_partLeft);
            const std::span<std::uint8_t> part = into.subspan(done, static_cast<std::size_t>(most));
            const std::size_t count = m_window.read(part);
            if (m_entry.continuesAfter) m_partCrc = crc32(part.first(count), m_partCrc);
            m_partLeft -= count;
            done += count;
            if (count < part.size()) cannotRead(printable(m_entry.name) + ": ");
        }
        return m_failed ? 0 : done;
    }

    /// Up to `wanted` bytes of what comes next in this volume, without going past them. Valid until the next
    /// call.
    [[nodiscard]] Bytes peek(std::size_t wanted)
    {
        const Bytes bytes =
            m_window.peek(static_cast<std::size_t>(std::min<std::uint64_t>(wanted, m_partLeft)));
        return bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), m_partLeft)));
    }

    /// Whether the walk has ended in a fault, which has been reported.
    [[nodiscard]] bool failed() const { return m_failed; }

private:
    static bool beginsWith(Bytes bytes, Bytes start)
    {
        return bytes.size() >= start.size() && std::ranges::equal(bytes.first(start.size()), start);
    }

    bool fail(const std::string &message)
    {
        m_failed = true;
        return m_diagnostics.report(message);
    }

    bool failSystem(const std::string &message, int error)
    {
        m_failed = true;
        errno = error;
        return m_diagnostics.reportSystem(message);
    }

    bool openVolume(std::size_t index)
    {
        std::optional<FileSource> source = m_volumes.open(index);
        const int error = errno;
        const std::string name = printable(m_volumes.name(index));
        if (!source && error == ENOENT && index > 0) return fail("Cannot find volume " + name);
        if (!source && error == ENXIO)
            return fail("Cannot open " + name + ": it is no file, but a pipe, a socket or a device");
        if (!source) return failSystem("Cannot open " + name, error);
        m_window = SourceWindow(std::move(*source));
        m_volume = index;
        if (index == 0 && beginsWith(m_window.peek(signature.size()), oldSignature)) m_format = &olderFormat;
        const Bytes expected = m_format->signature;
        if (!beginsWith(m_window.peek(expected.size()), expected))
            return fail(name + " is not a RAR archive");
        m_window.skip(expected.size());
        return readMainHeader(index, name);
    }

    bool readMainHeader(std::size_t index, const std::string &name)
    {
        const std::optional<HeaderFrame> frame = readFrame();
        if (!frame) return false;
        const std::optional<MainHeader> header = m_format->mainHeader(*frame);
        if (frame->type == HeaderType::Encryption || (header && header->encrypted))
            return fail(name + " is encrypted by the archiver, which is not supported");
        if (!header) return fail(name + " has a damaged main header");
        const std::uint64_t told = header->volumeIndex.value_or(index);
        if (index == 0 && told > 0) return fail(name + " is not the first volume: start with the first one");
        if (told != index)
            return fail(name + " is volume " + std::to_string(told + 1) + " of a set, where volume " +
                        std::to_string(index + 1) + " was expected");
        m_isVolume = header->volume;
        m_isSolid = m_isSolid || header->solid;
        return skipData(frame->dataSize);
    }

    [[nodiscard]] std::optional<HeaderFrame> readFrame()
    {
        constexpr std::size_t shortest = 7; // of all headers; it has its size
        const Bytes start = m_window.peek(shortest);
        const auto damaged = [this] {
            fail("Corrupt header in " + volumeName() + ": checksum error");
            return std::nullopt;
        };
        if (start.size() < shortest) return cannotRead(), std::nullopt;
        const std::optional<std::size_t> length = m_format->length(start);
        if (!length) return damaged();
        const Bytes bytes = m_window.peek(*length);
        if (bytes.size() < *length) return cannotRead(), std::nullopt;
        std::optional<HeaderFrame> frame = m_format->frame(bytes.first(*length));
        if (!frame) return damaged();
        m_window.skip(*length); // the bytes stay where they are until the next peek
        return frame;
    }

    bool acceptEntry(const HeaderFrame &frame)
    {
        std::optional<FileHeader> header = m_format->fileHeader(frame);
        if (!header) return fail("Corrupt file header in " + volumeName());
        if (header->continuesBefore)
            return fail(printable(header->name) + " begins in a volume before " + volumeName() +
                        ": start with the first one");
        if (header->continuesAfter && !m_isVolume)
            return fail("Corrupt file header of " + printable(header->name));
        m_entry = std::move(*header);
        m_isSolid = m_isSolid || m_entry.solid;
        return beginPart(m_entry);
    }

    /// Always true.
    bool beginPart(const FileHeader &header)
    {
        m_partLeft = header.packedSize;
        m_partCrc = 0;
        m_partSkipped = false;
        return true;
    }

    bool skipData(std::uint64_t count)
    {
        if (count > m_window.left()) return fail("Unexpected end of archive " + volumeName());
        m_window.skip(count);
        return true;
    }

    bool continueInNextVolume()
    {
        if (!m_partSkipped && m_entry.crc && *m_entry.crc != m_partCrc)
            return fail(printable(m_entry.name) + ": packed data checksum error in volume " + volumeName());
        return findEndOfVolume() && openVolume(m_volume + 1) && findContinuation();
    }

    bool findEndOfVolume()
    {
        for (;;) {
            const std::optional<HeaderFrame> frame = readFrame();
            if (!frame) return false;
            if (frame->type == HeaderType::End) {
                if (m_format->endHeader(*frame).value_or(false)) return true;
                return fail("Unexpected end of archive " + volumeName());
            }
            if (frame->type == HeaderType::File)
                return fail("Corrupt volume " + volumeName() + ": an entry is not at its end");
            if (!skipData(frame->dataSize)) return false;
        }
    }

    bool findContinuation()
    {
        for (;;) {
            const std::optional<HeaderFrame> frame = readFrame();
            if (!frame) return false;
            if (frame->type == HeaderType::Service && skipData(frame->dataSize)) continue;
            if (m_failed) return false;
            const std::optional<FileHeader> header =
                frame->type == HeaderType::File ? m_format->fileHeader(*frame) : std::nullopt;
            const bool same = header && header->continuesBefore && header->name == m_entry.name &&
                              header->unpackedSize == m_entry.unpackedSize &&
                              header->method == m_entry.method;
            if (!same)
                return fail(volumeName() + " does not continue " + printable(m_entry.name) +
                            ": it belongs to another set of volumes");
            m_entry.continuesAfter = header->continuesAfter;
            m_entry.crc = header->crc;
            return beginPart(*header);
        }
    }

    bool cannotRead(const std::string &what = {})
    {
        if (m_window.error() == 0) return fail(what + "Unexpected end of archive " + volumeName());
        return failSystem("Cannot read " + volumeName(), m_window.error());
    }
    [[nodiscard]] std::string volumeName() const { return printable(m_volumes.name(m_volume)); }

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
