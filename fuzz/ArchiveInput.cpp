#include "ArchiveInput.h"

#include "FileDescriptor.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace archiver;

namespace {

class MemorySource final : public ByteSource {
public:
    explicit MemorySource(Bytes bytes) : m_bytes(bytes) {}
    ssize_t read(std::uint64_t offset, std::span<std::uint8_t> into) override
    {
        const Bytes rest = m_bytes.subspan(std::min<std::uint64_t>(offset, m_bytes.size()));
        const Bytes part = rest.first(std::min(rest.size(), into.size()));
        std::ranges::copy(part, into.begin());
        return static_cast<ssize_t>(part.size());
    }
    [[nodiscard]] std::uint64_t size() const override { return m_bytes.size(); }

private:
    Bytes m_bytes;
};

ByteBuffer readWhole(ByteSource &source)
{
    ByteBuffer bytes(source.size());
    const ssize_t count = source.read(0, bytes);
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

std::unique_ptr<ByteSource> MemoryVolumes::open(std::size_t index)
{
    if (index < m_volumes.size()) return std::make_unique<MemorySource>(m_volumes[index]);
    errno = ENOENT;
    return nullptr;
}

std::vector<ByteBuffer> writeVolumes(Bytes content, ArchiveWriter::Packing packing,
                                     std::optional<std::uint64_t> volumeSize, Diagnostics &diagnostics)
{
    static const TemporaryFolder folder;
    const base::FileDescriptor file(memfd_create("content", MFD_CLOEXEC));
    struct stat status {};
    if (!base::writeFullyAt(file.get(), content, 0) || fstat(file.get(), &status) != 0) std::abort();
    OutputVolumes output(folder / "a.rar", volumeSize, diagnostics);
    ArchiveWriter writer(output, packing, diagnostics);
    if (!output.begin() || !writer.addFile(file.get(), status, "file", "file") || !writer.finish() ||
        !output.finish())
        return {};
    std::vector<ByteBuffer> volumes;
    const std::unique_ptr<VolumeSource> written = output.written();
    while (const std::unique_ptr<ByteSource> volume = written->open(volumes.size()))
        volumes.push_back(readWhole(*volume));
    return volumes;
}
