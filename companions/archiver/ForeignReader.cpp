#include "ForeignReader.h"

#include "Interrupt.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

namespace archiver {

namespace {

constexpr std::size_t chunkSize = 256 << 10;

std::string entryPath(archive_entry *entry)
{
    if (const char *path = archive_entry_pathname_utf8(entry)) return path;
    if (const char *path = archive_entry_pathname(entry)) return path;
    return {};
}

FileHeader describe(archive_entry *entry)
{
    FileHeader header;
    header.name = entryPath(entry);
    header.mode = archive_entry_mode(entry);
    header.folder = archive_entry_filetype(entry) == S_IFDIR;
    header.unpackedSize = static_cast<std::uint64_t>(archive_entry_size(entry));
    header.sizeUnknown = !archive_entry_size_is_set(entry);
    if (archive_entry_mtime_is_set(entry))
        header.modified = Timestamp{archive_entry_mtime(entry),
                                    static_cast<std::uint32_t>(archive_entry_mtime_nsec(entry))};
    header.encrypted = archive_entry_is_encrypted(entry);
    const char *target = archive_entry_symlink_utf8(entry);
    if (!target) target = archive_entry_symlink(entry);
    if (archive_entry_filetype(entry) == S_IFLNK && target)
        header.link = LinkTarget{LinkTarget::Kind::Symbolic, false, target};
    return header;
}

} // namespace

ForeignReader::ForeignReader(std::vector<std::string> paths, Diagnostics &diagnostics)
    : m_paths(std::move(paths))
    , m_diagnostics(diagnostics)
    , m_archive(archive_read_new(), [](archive *object) { archive_read_free(object); })
{
}

ForeignReader::~ForeignReader() = default;

bool ForeignReader::failed(const std::string &name)
{
    const char *reason = archive_error_string(m_archive.get());
    return m_diagnostics.report(printable(name) + ": " + (reason ? printable(reason) : "can't be unpacked"));
}

bool ForeignReader::open()
{
    if (m_opened) return true;
    m_opened = true;
    archive_read_support_format_rar(m_archive.get());
    archive_read_support_format_rar5(m_archive.get());
    std::vector<const char *> paths;
    for (const std::string &path : m_paths)
        paths.push_back(path.c_str());
    paths.push_back(nullptr);
    if (archive_read_open_filenames(m_archive.get(), paths.data(), chunkSize) == ARCHIVE_OK) return true;
    return failed(m_paths.front());
}

ForeignReader::Step ForeignReader::next(FileHeader &header)
{
    if (!open()) return Step::Failed;
    archive_entry *entry = nullptr;
    const int result = archive_read_next_header(m_archive.get(), &entry);
    if (result == ARCHIVE_EOF) return Step::End;
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) return failed(m_paths.front()), Step::Failed;
    ++m_next;
    header = describe(entry);
    return Step::Entry;
}

bool ForeignReader::unpack(const FileHeader &expected, ContentSink &sink)
{
    ByteBuffer chunk(chunkSize);
    std::uint64_t size = 0;
    std::uint32_t crc = 0;
    for (;;) {
        if (interrupted()) return false;
        const la_ssize_t count = archive_read_data(m_archive.get(), chunk.data(), chunk.size());
        if (count < 0) return failed(expected.name);
        if (count == 0) break;
        const Bytes bytes = Bytes(chunk).first(static_cast<std::size_t>(count));
        size += bytes.size();
        crc = crc32(bytes, crc);
        if (!sink.write(bytes)) return false;
    }
    if (!expected.sizeUnknown && size != expected.unpackedSize)
        return m_diagnostics.report(printable(expected.name) + ": Unexpected end of archive");
    // A part's own checksum is of its packed bytes.
    if (expected.crc && !expected.continuesAfter && *expected.crc != crc)
        return m_diagnostics.report(printable(expected.name) + ": checksum error");
    return true;
}

bool ForeignReader::unpackEntry(std::size_t index, const FileHeader &expected, ContentSink &sink)
{
    FileHeader present;
    while (m_next <= index) {
        const Step step = next(present);
        if (step == Step::Failed) return false;
        if (step == Step::End)
            return m_diagnostics.report(printable(expected.name) + ": Unexpected end of archive");
    }
    if (present.unpackedSize != expected.unpackedSize)
        return m_diagnostics.report(printable(expected.name) + ": can't be unpacked");
    return unpack(expected, sink);
}

} // namespace archiver
