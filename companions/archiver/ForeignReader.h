#pragma once

#include "ArchiveReader.h"
#include "Content.h"

#include <archive.h>
#include <archive_entry.h>

namespace archiver {

/// Unpacks what archivers of RAR 3 and 4 packed, through libarchive. That can't read entries that are cut
/// into volumes everywhere, takes a cut archive for an ordinary end, and some checksums for none: so each
/// entry is handed to it as an archive of its own, in one piece, and all is compared here.
class ForeignReader {
public:
    /// `path`: the first volume.
    ForeignReader(const std::string &path, Diagnostics &diagnostics)
        : m_diagnostics(diagnostics), m_volumes(path), m_scout(m_volumes, diagnostics)
    {
    }

    /// The content of the entry that `reader` is at, number `index` from 0. False has been reported. Numbers
    /// have to rise.
    [[nodiscard]] bool unpack(std::size_t index, ArchiveReader &reader, ContentSink &sink)
    {
        const std::string name = printable(reader.entry().name);
        if (!std::exchange(m_isOpen, true) && !m_scout.open()) return false;
        for (; m_next <= index; ++m_next)
            if (m_scout.next() != ArchiveReader::Step::Entry) return false;
        const std::optional<std::uint64_t> size = m_scout.skipEntry();
        if (!size) return false;
        JoinedEntry joined{reader, {}};
        const Archive archive = openJoined(joined, *size, m_scout.entry());
        ByteBuffer chunk(chunkSize);
        ContentCheck check;
        check.begin(false);
        for (la_ssize_t count = 1; count > 0;) {
            if (interrupted()) return false;
            count = archive_read_data(archive.get(), chunk.data(), chunk.size());
            if (reader.failed()) return false; // which libarchive may take for an ordinary end
            if (count < 0) {
                const char *reason = archive_error_string(archive.get());
                return m_diagnostics.report(name + ": " + (reason ? printable(reason) : "can't be unpacked"));
            }
            const Bytes bytes = Bytes(chunk).first(static_cast<std::size_t>(count));
            check.add(bytes);
            if (!sink.write(bytes)) return false;
        }
        return check.fits(m_scout.entry()) || m_diagnostics.report(name + ": checksum error");
    }

    /// Whether the archive has a fault that no walk through it gets past.
    [[nodiscard]] bool failed() const { return m_scout.failed(); }

private:
    static constexpr std::size_t chunkSize = 256 << 10;

    /// An entry as an archive: headers of our own, with nothing that libarchive doesn't know, around its
    /// data.
    struct JoinedEntry {
        ArchiveReader &reader;
        ByteBuffer before;
        bool hasBegun = false;
        ByteBuffer data = ByteBuffer(chunkSize);

        static la_ssize_t read(archive *object, void *joined, const void **bytes)
        {
            auto &entry = *static_cast<JoinedEntry *>(joined);
            if (!std::exchange(entry.hasBegun, true)) {
                *bytes = entry.before.data();
                return static_cast<la_ssize_t>(entry.before.size());
            }
            const std::size_t count = entry.reader.read(entry.data);
            *bytes = entry.data.data();
            if (!entry.reader.failed()) return static_cast<la_ssize_t>(count);
            archive_set_error(object, EIO, "has been reported");
            return ARCHIVE_FATAL;
        }
    };

    using Archive = std::unique_ptr<archive, int (*)(archive *)>;

    /// `last`: the header of the entry's last part.
    static Archive openJoined(JoinedEntry &joined, std::uint64_t packedSize, const FileHeader &last)
    {
        FileHeader header = last;
        header.name = "file";
        header.packedSize = packedSize;
        header.continuesBefore = false;
        header.mode = 0100644;
        header.unixHost = true;
        const HeaderFormat &format = joined.reader.format();
        putBytes(joined.before, format.signature);
        format.putMain(joined.before, {});
        format.putFile(joined.before, header);
        Archive object(archive_read_new(), archive_read_free);
        archive_read_support_format_rar(object.get());
        archive_entry *entry = nullptr;
        if (archive_read_open(object.get(), &joined, nullptr, JoinedEntry::read, nullptr) == ARCHIVE_OK)
            archive_read_next_header(object.get(), &entry); // what fails shows when the data is read
        return object;
    }

    Diagnostics &m_diagnostics;
    VolumeFiles m_volumes;
    ArchiveReader m_scout; ///< it finds out how long an entry is in all volumes
    bool m_isOpen = false;
    std::size_t m_next = 0; ///< number of the entry that comes next
};

} // namespace archiver
