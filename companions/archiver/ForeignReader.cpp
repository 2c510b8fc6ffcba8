#include "ForeignReader.h"

#include "Interrupt.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>

namespace archiver {

namespace {

constexpr std::size_t chunkSize = 256 << 10;

la_ssize_t readEntries(archive *object, void *entries, const void **bytes)
{
    auto &joined = *static_cast<JoinedEntries *>(entries);
    const Bytes piece = joined.read();
    *bytes = piece.data();
    if (!joined.failed()) return static_cast<la_ssize_t>(piece.size());
    archive_set_error(object, EIO, "has been reported");
    return ARCHIVE_FATAL;
}

} // namespace

ForeignReader::ForeignReader(const std::string &path, Diagnostics &diagnostics)
    : m_diagnostics(diagnostics)
    , m_entries(path, diagnostics)
    , m_archive(nullptr, [](archive *object) { archive_read_free(object); })
{
}

bool ForeignReader::cannotUnpack()
{
    if (m_entries.failed()) return false; // reported
    const char *reason = archive_error_string(m_archive.get());
    return m_diagnostics.report(printable(m_name) + ": " +
                                (reason ? printable(reason) : "can't be unpacked"));
}

bool ForeignReader::begin(std::size_t first)
{
    if (m_archive && first == m_first) return true;
    m_first = first;
    m_archive.reset(archive_read_new());
    if (!m_entries.begin(first)) return false;
    archive_read_support_format_rar(m_archive.get());
    archive_read_support_format_rar5(m_archive.get());
    return archive_read_open(m_archive.get(), &m_entries, nullptr, readEntries, nullptr) == ARCHIVE_OK ||
           cannotUnpack();
}

bool ForeignReader::goTo(std::size_t index)
{
    const std::string name = std::to_string(index);
    for (;;) {
        archive_entry *entry = nullptr;
        const int result = archive_read_next_header(m_archive.get(), &entry);
        if (result != ARCHIVE_OK && result != ARCHIVE_WARN) return cannotUnpack();
        const char *path = archive_entry_pathname(entry);
        if (path && path == name) return true;
    }
}

bool ForeignReader::unpack(Place place, const std::string &name, ContentSink &sink)
{
    m_name = name;
    if (!begin(place.dictionary) || !goTo(place.entry)) return false;
    const std::optional<FileHeader> header = m_entries.header(place.entry);
    return header ? unpackContent(*header, sink) : cannotUnpack();
}

bool ForeignReader::unpackContent(const FileHeader &expected, ContentSink &sink)
{
    ByteBuffer chunk(chunkSize);
    std::uint64_t size = 0;
    std::uint32_t crc = 0;
    for (;;) {
        if (interrupted()) return false;
        const la_ssize_t count = archive_read_data(m_archive.get(), chunk.data(), chunk.size());
        if (count < 0) return cannotUnpack();
        if (count == 0) break;
        const Bytes bytes = Bytes(chunk).first(static_cast<std::size_t>(count));
        size += bytes.size();
        crc = crc32(bytes, crc);
        if (!sink.write(bytes)) return false;
    }
    if (m_entries.failed()) return false; // which libarchive may take for an ordinary end
    if (!expected.sizeUnknown && size != expected.unpackedSize)
        return m_diagnostics.report(printable(expected.name) + ": Unexpected end of archive");
    if (expected.crc && *expected.crc != crc)
        return m_diagnostics.report(printable(expected.name) + ": checksum error");
    return true;
}

} // namespace archiver
