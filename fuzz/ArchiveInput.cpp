#include "ArchiveInput.h"

#include "FileDescriptor.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace archiver;

namespace {

/// A file in memory, with that content.
FileSource memoryFile(Bytes content)
{
    base::FileDescriptor file(memfd_create("content", MFD_CLOEXEC));
    if (!base::writeFullyAt(file.get(), content, 0)) std::abort();
    const int descriptor = file.get();
    return {descriptor, content.size(), std::move(file)};
}

ByteBuffer readWhole(const FileSource &source)
{
    ByteBuffer bytes(source.size);
    const ssize_t count = base::readFullyAt(source.descriptor, bytes, 0);
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return bytes;
}

} // namespace

ArchiveInput ArchiveInput::parse(Bytes input)
{
    ByteReader reader(input);
    ArchiveInput parsed;
    parsed.flags = reader.u8();
    const std::size_t count = reader.u8() % mostVolumes + 1;
    while (parsed.volumes.size() + 1 < count) {
        const std::size_t low = reader.u8();
        const std::size_t size = low | std::size_t{reader.u8()} << 8;
        const Bytes volume = reader.take(std::min(size, reader.remaining()));
        parsed.volumes.emplace_back(volume.begin(), volume.end());
    }
    const Bytes last = reader.take(reader.remaining());
    parsed.volumes.emplace_back(last.begin(), last.end());
    return parsed;
}

ByteBuffer ArchiveInput::serialize(InputKind kind) const
{
    ByteBuffer bytes{static_cast<std::uint8_t>(kind), flags, static_cast<std::uint8_t>(volumes.size() - 1)};
    for (const ByteBuffer &volume : volumes) {
        if (&volume != &volumes.back()) {
            bytes.push_back(static_cast<std::uint8_t>(volume.size()));
            bytes.push_back(static_cast<std::uint8_t>(volume.size() >> 8));
        }
        putBytes(bytes, volume);
    }
    return bytes;
}

std::optional<FileSource> MemoryVolumes::open(std::size_t index)
{
    if (index < m_volumes.size()) return memoryFile(m_volumes[index]);
    errno = ENOENT;
    return std::nullopt;
}

std::vector<ByteBuffer> writeVolumes(Bytes content, ArchiveWriter::Packing packing,
                                     std::optional<std::uint64_t> volumeSize, Diagnostics &diagnostics)
{
    static const TemporaryFolder folder;
    const FileSource file = memoryFile(content);
    struct stat status {};
    if (fstat(file.descriptor, &status) != 0) std::abort();
    OutputVolumes output(folder / "a.rar", volumeSize, diagnostics);
    ArchiveWriter writer(output, packing, diagnostics);
    if (!output.begin() || !writer.addFile(file.descriptor, status, "file", "file") || !writer.finish() ||
        !output.finish())
        return {};
    std::vector<ByteBuffer> volumes;
    const std::unique_ptr<VolumeSource> written = output.written();
    while (const std::optional<FileSource> volume = written->open(volumes.size()))
        volumes.push_back(readWhole(*volume));
    return volumes;
}
