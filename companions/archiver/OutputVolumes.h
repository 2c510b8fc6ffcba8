#pragma once

#include "Diagnostics.h"
#include "Headers.h"
#include "OrderedWork.h"
#include "StagedFile.h"
#include "VolumeSource.h"

#include <memory>

namespace archiver {

/// Writes buffers to files, in a thread of its own on demand, one at a time, so that the next one can be
/// filled meanwhile.
class BackgroundWriter {
public:
    /// The thread exists from start() to stop() only: as long as there is one, each of the system's calls
    /// that deals with a file costs more, which is felt with many small files. Without it write() does the
    /// work itself.
    void start()
    {
        if (m_thread) return;
        m_thread.emplace(1u, 1, [this](Filled &next) {
            next.error = writeNow(next.file, Bytes(next.buffer).first(next.size)) ? 0 : errno;
        });
    }

    void stop()
    {
        // What is being written is written to its end; the next finish() tells how that went.
        if (m_thread && !finish()) m_error = errno;
        m_thread.reset();
    }

    /// Takes the first `size` bytes of `buffer`, to be written where `file` stands, and gives back a buffer
    /// as long, whose content doesn't matter. False with errno set where the write before has failed.
    [[nodiscard]] bool write(int file, ByteBuffer &buffer, std::size_t size)
    {
        if (size == 0) return true;
        if (!finish()) return false;
        if (!m_thread) return writeNow(file, Bytes(buffer).first(size));
        Filled &next = *m_thread->free();
        next.file = file;
        next.size = size;
        next.buffer.resize(buffer.size());
        std::swap(next.buffer, buffer);
        m_thread->give();
        return true;
    }

    /// Writes, behind all before, bytes that stay the caller's.
    [[nodiscard]] bool writeAtOnce(int file, Bytes bytes) { return finish() && writeNow(file, bytes); }
    /// Waits until all is written. False with errno set where that failed, once.
    [[nodiscard]] bool finish()
    {
        if (const Filled *const written = m_thread ? m_thread->take() : nullptr) {
            m_error = written->error;
            m_thread->release();
        }
        const int error = std::exchange(m_error, 0);
        if (error != 0) errno = error;
        return error == 0;
    }

private:
    struct Filled {
        int file = -1;
        ByteBuffer buffer;
        std::size_t size = 0;
        int error = 0; ///< errno of the writing
    };

    [[nodiscard]] bool writeNow(int file, Bytes bytes)
    {
        // Not often, as each time costs a walk through what is in memory; often enough that little is left at
        // the end.
        constexpr std::size_t interval = 8 << 20;
        if (!base::writeFully(file, bytes)) return false;
        m_unsynced += bytes.size();
        if (m_unsynced >= interval) {
            base::startWriteBack(file);
            m_unsynced = 0;
        }
        return true;
    }

    std::size_t m_unsynced = 0;
    int m_error = 0; ///< of what was written last
    std::optional<base::OrderedWork<Filled>> m_thread;
};

/// The files of an archive that is being written: one, or volumes of a limited size. They have no names of
/// their own until publish(), and are gone again where that doesn't come. Functions that give false have
/// reported why.
class OutputVolumes {
public:
    /// `volumeSize`: most bytes of a volume; none for a single file of any size.
    OutputVolumes(const std::string &archivePath, std::optional<std::uint64_t> volumeSize,
                  Diagnostics &diagnostics);

    /// Says in the volumes' headers, if called before begin(), that files are packed with those before.
    void markSolid() { m_solid = true; }
    /// Before anything else: finishes what an earlier run for this archive has begun, and removes what it
    /// left.
    [[nodiscard]] bool begin();
    [[nodiscard]] bool limited() const { return m_volumeSize.has_value(); }
    /// Bytes that the present volume still takes, its end header not counted.
    [[nodiscard]] std::uint64_t room() const
    {
        if (!m_volumeSize) return std::numeric_limits<std::uint64_t>::max();
        const std::uint64_t needed = m_position + endHeaderSize;
        return *m_volumeSize > needed ? *m_volumeSize - needed : 0;
    }

    /// Whether the present volume has nothing in it yet.
    [[nodiscard]] bool atStart() const { return m_position == m_dataStart; }
    /// Where the next byte goes, in the present volume.
    [[nodiscard]] std::uint64_t position() const { return m_position; }

    /// Space to put the next bytes into, at least one; commit() adds them.
    [[nodiscard]] std::span<std::uint8_t> buffer() { return std::span(m_buffer).subspan(m_used); }

    void commit(std::size_t count)
    {
        m_used += count;
        m_position += count;
    }

    [[nodiscard]] bool append(Bytes bytes);
    /// Replaces bytes of the present volume.
    [[nodiscard]] bool patch(std::uint64_t offset, Bytes bytes)
    {
        const std::uint64_t flushed = m_position - m_used;
        if (offset >= flushed) {
            std::ranges::copy(bytes, m_buffer.begin() + static_cast<std::ptrdiff_t>(offset - flushed));
            return true;
        }
        if (!flushAndWait()) return false;
        return base::writeFullyAt(m_files.back().descriptor(), bytes, offset) || cannotWrite();
    }

    /// Makes sure that buffer() has space.
    [[nodiscard]] bool flushWhenFull()
    {
        constexpr std::size_t tooLittle = 64 << 10; // a small read would cost as much as a large one
        return m_buffer.size() - m_used >= tooLittle || flush();
    }

    /// While this is on, buffers are written as others are filled: worth it for large files.
    void writeInBackground(bool on) { on ? m_writer.start() : m_writer.stop(); }

    [[nodiscard]] bool nextVolume() { return endVolume(true) && beginVolume(); }

    [[nodiscard]] bool finish()
    {
        if (limited() && m_files.size() == 1) {
            // All fits into the first volume: an ordinary archive, then. The header's length is the same.
            ByteBuffer header;
            presentFormat.putMain(header, {.solid = m_solid});
            if (!patch(signature.size(), header)) return false;
        }
        return endVolume(false);
    }

    /// All that was written, to be read back; after finish().
    [[nodiscard]] std::unique_ptr<VolumeSource> written();
    /// Gives the files the time and, once they are on the disk, their final names. Where there are volumes,
    /// all of an older set go.
    [[nodiscard]] bool publish(const std::optional<Timestamp> &time);

    /// Whether a name in the folder with that status is the archive's own, before or after publish().
    [[nodiscard]] bool owns(const struct stat &folder, const std::string &name) const;

private:
    [[nodiscard]] bool isFolder(const std::string &name) const;
    [[nodiscard]] bool beginVolume();

    [[nodiscard]] bool flush()
    {
        if (interrupted()) return false;
        return m_writer.write(m_files.back().descriptor(), m_buffer, std::exchange(m_used, 0)) ||
               cannotWrite();
    }

    [[nodiscard]] bool flushAndWait() { return flush() && (m_writer.finish() || cannotWrite()); }

    [[nodiscard]] bool endVolume(bool more)
    {
        constexpr std::uint64_t smallestLastVolume =
            512; // readers look for a signature in shorter ones in vain
        ByteBuffer end;
        presentFormat.putEnd(end, more);
        const std::uint64_t size = m_position + end.size();
        if (!more && m_files.size() > 1 && size < smallestLastVolume)
            end.resize(end.size() + smallestLastVolume);
        if (!append(end) || !flushAndWait()) return false;
        base::StagedFile &file = m_files.back();
        base::startWriteBack(file.descriptor());
        const bool isParked =
            m_files.size() < m_mostOpen ||
            (file.giveName(m_passingNames, static_cast<unsigned>(m_files.size() - 1)) && file.park());
        return isParked || cannotWrite();
    }

    [[nodiscard]] bool complete(base::StagedFile &file, const std::optional<Timestamp> &time)
    {
        const bool isParked = !file;
        if (!file.unpark()) return cannotWrite();
        if (time) {
            const timespec times[2] = {{0, UTIME_OMIT}, {time->seconds, time->nanoseconds}};
            if (futimens(file.descriptor(), times) != 0)
                return m_diagnostics.reportSystem("Cannot set the time of " + printable(m_path));
        }
        return (base::syncToDisk(file.descriptor()) && (!isParked || file.park())) || cannotWrite();
    }

    bool cannotWrite() { return m_diagnostics.reportSystem("Cannot write " + printable(m_path)); }

    bool cannotCreate(const std::string &name)
    {
        return m_diagnostics.reportSystem("Cannot create " + printable(name));
    }

    std::string m_path;
    std::string m_name; ///< the archive's, in its folder
    std::optional<std::uint64_t> m_volumeSize;
    bool m_solid = false;
    Diagnostics &m_diagnostics;
    base::FileDescriptor m_folder;
    struct stat m_folderStatus {};
    base::PassingNames m_passingNames;
    std::vector<base::StagedFile> m_files;
    std::size_t m_mostOpen;
    BackgroundWriter m_writer; ///< behind the files, which it writes to
    ByteBuffer m_buffer;
    std::size_t m_used = 0;
    std::uint64_t m_position = 0;
    std::uint64_t m_dataStart = 0;
};

} // namespace archiver
