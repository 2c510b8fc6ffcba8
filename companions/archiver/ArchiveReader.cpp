#include "ArchiveReader.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace archiver {

namespace {

bool beginsWith(Bytes bytes, Bytes start)
{
    return bytes.size() >= start.size() && std::ranges::equal(bytes.first(start.size()), start);
}

} // namespace

bool ArchiveReader::fail(const std::string &message)
{
    m_failed = true;
    return m_diagnostics.report(message);
}

bool ArchiveReader::cannotOpen(std::size_t index)
{
    const std::string message = "Cannot open " + printable(m_volumes.name(index));
    if (errno == ENXIO) return fail(message + ": it is no file, but a pipe, a socket or a device");
    m_failed = true;
    return m_diagnostics.reportSystem(message);
}

bool ArchiveReader::cannotRead(const std::string &what)
{
    const std::string name = printable(m_volumes.name(m_volume));
    m_failed = true;
    if (m_window.error() == 0) return m_diagnostics.report(what + "Unexpected end of archive " + name);
    errno = m_window.error();
    return m_diagnostics.reportSystem("Cannot read " + name);
}

bool ArchiveReader::open()
{
    std::optional<FileSource> source = m_volumes.open(0);
    if (!source) return cannotOpen(0);
    m_window = SourceWindow(std::move(*source));
    if (beginsWith(m_window.peek(signature.size()), oldSignature)) m_format = &olderFormat;
    return readSignature() && readMainHeader(0);
}

bool ArchiveReader::readSignature()
{
    const std::size_t size = m_format->signature.size();
    if (!beginsWith(m_window.peek(size), m_format->signature))
        return fail(printable(m_volumes.name(m_volume)) + " is not a RAR archive");
    m_window.skip(size);
    return true;
}

bool ArchiveReader::readMainHeader(std::size_t index)
{
    const std::optional<HeaderFrame> frame = readFrame();
    if (!frame) return false;
    const std::string name = printable(m_volumes.name(index));
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

std::optional<HeaderFrame> ArchiveReader::readFrame()
{
    constexpr std::size_t shortest = 7; // of all headers; it has its size
    const Bytes start = m_window.peek(shortest);
    const auto damaged = [this] {
        fail("Corrupt header in " + printable(m_volumes.name(m_volume)) + ": checksum error");
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

bool ArchiveReader::skipData(std::uint64_t count)
{
    if (count > m_window.left())
        return fail("Unexpected end of archive " + printable(m_volumes.name(m_volume)));
    m_window.skip(count);
    return true;
}

ArchiveReader::Step ArchiveReader::next()
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

bool ArchiveReader::acceptEntry(const HeaderFrame &frame)
{
    std::optional<FileHeader> header = m_format->fileHeader(frame);
    if (!header) return fail("Corrupt file header in " + printable(m_volumes.name(m_volume)));
    if (header->continuesBefore)
        return fail(printable(header->name) + " begins in a volume before " +
                    printable(m_volumes.name(m_volume)) + ": start with the first one");
    if (header->continuesAfter && !m_isVolume)
        return fail("Corrupt file header of " + printable(header->name));
    m_entry = std::move(*header);
    m_isSolid = m_isSolid || m_entry.solid;
    m_partLeft = m_entry.packedSize;
    m_partCrc = 0;
    m_partSkipped = false;
    return true;
}

std::optional<std::uint64_t> ArchiveReader::skipEntry()
{
    for (std::uint64_t skipped = 0;;) {
        if (m_partLeft > 0) m_partSkipped = true;
        if (!skipData(m_partLeft)) return std::nullopt;
        skipped += std::exchange(m_partLeft, 0);
        if (!m_entry.continuesAfter) return skipped;
        if (!continueInNextVolume()) return std::nullopt;
    }
}

bool ArchiveReader::finishPart()
{
    if (m_partSkipped || !m_entry.crc || *m_entry.crc == m_partCrc) return true;
    return fail(printable(m_entry.name) + ": packed data checksum error in volume " +
                printable(m_volumes.name(m_volume)));
}

bool ArchiveReader::continueInNextVolume()
{
    return finishPart() && findEndOfVolume() && openVolume(m_volume + 1) && findContinuation();
}

bool ArchiveReader::findEndOfVolume()
{
    for (;;) {
        const std::optional<HeaderFrame> frame = readFrame();
        if (!frame) return false;
        if (frame->type == HeaderType::End) {
            if (m_format->endHeader(*frame).value_or(false)) return true;
            return fail("Unexpected end of archive " + printable(m_volumes.name(m_volume)));
        }
        if (frame->type == HeaderType::File)
            return fail("Corrupt volume " + printable(m_volumes.name(m_volume)) +
                        ": an entry is not at its end");
        if (!skipData(frame->dataSize)) return false;
    }
}

bool ArchiveReader::openVolume(std::size_t index)
{
    std::optional<FileSource> source = m_volumes.open(index);
    if (!source) {
        if (errno == ENOENT) return fail("Cannot find volume " + printable(m_volumes.name(index)));
        return cannotOpen(index);
    }
    m_window = SourceWindow(std::move(*source));
    m_volume = index;
    return readSignature() && readMainHeader(index);
}

bool ArchiveReader::findContinuation()
{
    for (;;) {
        const std::optional<HeaderFrame> frame = readFrame();
        if (!frame) return false;
        if (frame->type == HeaderType::Service && skipData(frame->dataSize)) continue;
        if (m_failed) return false;
        const std::optional<FileHeader> header =
            frame->type == HeaderType::File ? m_format->fileHeader(*frame) : std::nullopt;
        const bool same = header && header->continuesBefore && header->name == m_entry.name &&
                          header->unpackedSize == m_entry.unpackedSize && header->method == m_entry.method;
        if (!same)
            return fail(printable(m_volumes.name(m_volume)) + " does not continue " +
                        printable(m_entry.name) + ": it belongs to another set of volumes");
        m_entry.continuesAfter = header->continuesAfter;
        m_entry.crc = header->crc;
        m_partLeft = header->packedSize;
        m_partCrc = 0;
        m_partSkipped = false;
        return true;
    }
}

Bytes ArchiveReader::peek(std::size_t wanted)
{
    const Bytes bytes = m_window.peek(static_cast<std::size_t>(std::min<std::uint64_t>(wanted, m_partLeft)));
    return bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), m_partLeft)));
}

std::size_t ArchiveReader::read(std::span<std::uint8_t> into)
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

} // namespace archiver
