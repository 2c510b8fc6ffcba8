#pragma once

#include "BackgroundWriter.h"
#include "Diagnostics.h"
#include "File.h"
#include "Headers.h"
#include "VolumeSource.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace archiver {

/// The files of an archive that is being written: one, or volumes of a limited size. They have temporary
/// names in the archive's folder until publish(), and are gone again where that doesn't come. Functions that
/// give false have reported why.
class OutputVolumes {
public:
    /// `volumeSize`: most bytes of a volume; none for a single file of any size.
    OutputVolumes(const std::string &archivePath, std::optional<std::uint64_t> volumeSize,
                  Diagnostics &diagnostics);

    [[nodiscard]] bool begin();
    [[nodiscard]] bool limited() const { return m_volumeSize.has_value(); }
    /// Bytes that the present volume still takes, its end header not counted.
    [[nodiscard]] std::uint64_t room() const;
    /// Whether the present volume has nothing in it yet.
    [[nodiscard]] bool atStart() const { return m_position == m_dataStart; }
    /// Where the next byte goes, in the present volume.
    [[nodiscard]] std::uint64_t position() const { return m_position; }

    /// Space to put the next bytes into, at least one; commit() adds them.
    [[nodiscard]] std::span<std::uint8_t> buffer();
    void commit(std::size_t count);
    [[nodiscard]] bool append(Bytes bytes);
    /// Replaces bytes of the present volume.
    [[nodiscard]] bool patch(std::uint64_t offset, Bytes bytes);
    /// Makes sure that buffer() has space.
    [[nodiscard]] bool flushWhenFull();

    /// While this is on, buffers are written as others are filled: worth it for large files.
    void writeInBackground(bool on) { on ? m_writer.start() : m_writer.stop(); }

    [[nodiscard]] bool nextVolume();
    [[nodiscard]] bool finish();

    /// All that was written, to be read back; after finish().
    [[nodiscard]] std::unique_ptr<VolumeSource> written() const;
    /// Gives the files the time and, once they are on the disk, their final names. Volumes of an older set
    /// that the new one doesn't replace go.
    [[nodiscard]] bool publish(const std::optional<Timestamp> &time);

    /// Whether a name in the folder with that device and inode number is the archive's own, before or after
    /// publish().
    [[nodiscard]] bool owns(dev_t folderDevice, ino_t folderInode, const std::string &name) const;

private:
    [[nodiscard]] bool openFolder();
    [[nodiscard]] bool beginVolume();
    [[nodiscard]] bool flush();
    [[nodiscard]] bool flushAndWait();
    [[nodiscard]] bool endVolume(bool more);
    [[nodiscard]] std::vector<std::string> finalNames() const;
    [[nodiscard]] bool isStale(const std::string &name, const std::vector<std::string> &current) const;
    [[nodiscard]] bool complete(TemporaryFile &file, const std::optional<Timestamp> &time);
    void removeStale(const std::vector<std::string> &current);
    bool cannotWrite();

    std::string m_path;
    std::string m_name; ///< the archive's, in its folder
    std::optional<std::uint64_t> m_volumeSize;
    Diagnostics &m_diagnostics;
    FileDescriptor m_folder;
    dev_t m_folderDevice = 0;
    ino_t m_folderInode = 0;
    std::vector<TemporaryFile> m_files;
    BackgroundWriter m_writer; ///< behind the files, which it writes to
    ByteBuffer m_buffer;
    std::size_t m_used = 0;
    std::uint64_t m_position = 0;
    std::uint64_t m_dataStart = 0;
};

} // namespace archiver
