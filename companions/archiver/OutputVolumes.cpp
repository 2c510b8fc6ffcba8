#include "OutputVolumes.h"

#include "Interrupt.h"
#include "VolumeNames.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace archiver {

namespace {

constexpr std::size_t bufferSize = 512 << 10;
constexpr std::uint64_t smallestLastVolume = 512; // readers look for the signature of shorter files in vain

/// The written volumes under their temporary names; messages name the archive.
class WrittenVolumes final : public VolumeSource {
public:
    WrittenVolumes(int folder, std::vector<std::string> names, std::string archive)
        : m_folder(folder), m_names(std::move(names)), m_archive(std::move(archive))
    {
    }
    std::unique_ptr<ByteSource> open(std::size_t index) override
    {
        if (index < m_names.size()) return FileSource::openAt(m_folder, m_names[index]);
        errno = ENOENT;
        return nullptr;
    }
    [[nodiscard]] std::string name(std::size_t) const override { return m_archive; }

private:
    int m_folder;
    std::vector<std::string> m_names;
    std::string m_archive;
};

} // namespace

OutputVolumes::OutputVolumes(const std::string &archivePath, std::optional<std::uint64_t> volumeSize,
                             Diagnostics &diagnostics)
    : m_path(archivePath), m_volumeSize(volumeSize), m_diagnostics(diagnostics), m_buffer(bufferSize)
{
    const std::size_t slash = m_path.rfind('/');
    m_name = slash == std::string::npos ? m_path : m_path.substr(slash + 1);
}

bool OutputVolumes::cannotWrite() { return m_diagnostics.reportSystem("Cannot write " + printable(m_path)); }

bool OutputVolumes::openFolder()
{
    const std::string folder = m_path.substr(0, m_path.size() - m_name.size());
    m_folder =
        FileDescriptor(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!m_folder || fstat(m_folder.get(), &status) != 0)
        return m_diagnostics.reportSystem("Cannot create " + printable(m_path));
    m_folderDevice = status.st_dev;
    m_folderInode = status.st_ino;
    // Found out now rather than after all the work.
    if (m_name.empty() ||
        (fstatat(m_folder.get(), m_name.c_str(), &status, 0) == 0 && S_ISDIR(status.st_mode))) {
        errno = EISDIR;
        return m_diagnostics.reportSystem("Cannot create " + printable(m_path));
    }
    return true;
}

bool OutputVolumes::begin() { return openFolder() && beginVolume(); }

bool OutputVolumes::beginVolume()
{
    TemporaryFile file = TemporaryFile::create(m_folder.get());
    if (!file) return m_diagnostics.reportSystem("Cannot create " + printable(m_path));
    m_files.push_back(std::move(file));
    m_position = 0;
    ByteBuffer start(signature.begin(), signature.end());
    putMainHeader(start, {limited(), m_files.size() - 1});
    if (!append(start)) return false;
    m_dataStart = m_position;
    return true;
}

std::uint64_t OutputVolumes::room() const
{
    if (!m_volumeSize) return std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t needed = m_position + endHeaderSize;
    return *m_volumeSize > needed ? *m_volumeSize - needed : 0;
}

std::span<std::uint8_t> OutputVolumes::buffer() { return std::span(m_buffer).subspan(m_used); }

void OutputVolumes::commit(std::size_t count)
{
    m_used += count;
    m_position += count;
}

bool OutputVolumes::flush()
{
    if (interrupted()) return false;
    return m_writer.write(m_files.back().descriptor(), m_buffer, std::exchange(m_used, 0)) || cannotWrite();
}

bool OutputVolumes::flushAndWait() { return flush() && (m_writer.finish() || cannotWrite()); }

bool OutputVolumes::flushWhenFull()
{
    constexpr std::size_t tooLittle = 64 << 10; // a small read would cost as much as a large one
    return m_buffer.size() - m_used >= tooLittle || flush();
}

bool OutputVolumes::append(Bytes bytes)
{
    while (!bytes.empty()) {
        const std::span<std::uint8_t> space = buffer();
        const std::size_t count = std::min(space.size(), bytes.size());
        std::copy_n(bytes.begin(), count, space.begin());
        commit(count);
        bytes = bytes.subspan(count);
        if (m_used == m_buffer.size() && !flush()) return false;
    }
    return true;
}

bool OutputVolumes::patch(std::uint64_t offset, Bytes bytes)
{
    const std::uint64_t flushed = m_position - m_used;
    if (offset >= flushed) {
        std::ranges::copy(bytes, m_buffer.begin() + static_cast<std::ptrdiff_t>(offset - flushed));
        return true;
    }
    if (!flushAndWait()) return false;
    return writeFullyAt(m_files.back().descriptor(), bytes, offset) || cannotWrite();
}

bool OutputVolumes::endVolume(bool more)
{
    ByteBuffer end;
    putEndHeader(end, more);
    const std::uint64_t size = m_position + end.size();
    if (!more && m_files.size() > 1 && size < smallestLastVolume) end.resize(end.size() + smallestLastVolume);
    if (!append(end) || !flushAndWait()) return false;
    startWriteBack(m_files.back().descriptor());
    return m_files.back().closeFile() || cannotWrite();
}

bool OutputVolumes::nextVolume() { return endVolume(true) && beginVolume(); }

bool OutputVolumes::finish()
{
    if (limited() && m_files.size() == 1) {
        // All fits into the first volume: an ordinary archive, then. The header's length is the same.
        ByteBuffer header;
        putMainHeader(header, {});
        if (!patch(signature.size(), header)) return false;
    }
    return endVolume(false);
}

std::unique_ptr<VolumeSource> OutputVolumes::written() const
{
    std::vector<std::string> names;
    for (const TemporaryFile &file : m_files)
        names.push_back(file.name());
    return std::make_unique<WrittenVolumes>(m_folder.get(), std::move(names), m_path);
}

std::vector<std::string> OutputVolumes::finalNames() const
{
    if (m_files.size() == 1) return {m_name};
    const std::size_t digits = std::to_string(m_files.size()).size();
    std::vector<std::string> names;
    for (std::size_t number = 1; number <= m_files.size(); ++number)
        names.push_back(volumePath(withoutExtension(m_name), number, digits));
    return names;
}

bool OutputVolumes::complete(TemporaryFile &file, const std::optional<Timestamp> &time)
{
    if (!file.reopenFile()) return cannotWrite();
    if (time) {
        const timespec times[2] = {{0, UTIME_OMIT}, {time->seconds, time->nanoseconds}};
        if (futimens(file.descriptor(), times) != 0)
            return m_diagnostics.reportSystem("Cannot set the time of " + printable(m_path));
    }
    return (syncToDisk(file.descriptor()) && file.closeFile()) || cannotWrite();
}

bool OutputVolumes::publish(const std::optional<Timestamp> &time)
{
    const std::vector<std::string> names = finalNames();
    for (const std::string &name : names) {
        struct stat status {};
        if (fstatat(m_folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISDIR(status.st_mode))
            continue;
        errno = EISDIR;
        return m_diagnostics.reportSystem("Cannot create " + printable(name));
    }
    // Before the names, or a power cut would leave an empty archive where the one before is gone.
    for (TemporaryFile &file : m_files)
        if (!complete(file, time)) return false;
    for (std::size_t index = 0; index < names.size(); ++index)
        if (!m_files[index].rename(names[index]))
            return m_diagnostics.reportSystem("Cannot create " + printable(names[index]));
    if (!syncToDisk(m_folder.get())) return cannotWrite();
    if (limited()) removeStale(names);
    return true;
}

bool OutputVolumes::isStale(const std::string &name, const std::vector<std::string> &current) const
{
    const std::optional<VolumeName> volume = parseVolumeName(name);
    const bool ofThisArchive = name == m_name || (volume && volume->base == withoutExtension(m_name));
    return ofThisArchive && std::ranges::find(current, name) == current.end();
}

void OutputVolumes::removeStale(const std::vector<std::string> &current)
{
    const int folder = dup(m_folder.get());
    DIR *const entries = folder < 0 ? nullptr : fdopendir(folder);
    if (!entries) {
        if (folder >= 0) close(folder);
        return;
    }
    std::vector<std::string> stale;
    while (const dirent *entry = readdir(entries))
        if (isStale(entry->d_name, current)) stale.emplace_back(entry->d_name);
    closedir(entries);
    for (const std::string &name : stale)
        if (unlinkat(m_folder.get(), name.c_str(), 0) != 0 && errno != EISDIR)
            m_diagnostics.reportSystem("Cannot remove the older volume " + printable(name));
}

bool OutputVolumes::owns(dev_t folderDevice, ino_t folderInode, const std::string &name) const
{
    if (folderDevice != m_folderDevice || folderInode != m_folderInode) return false;
    if (name == m_name || (limited() && isStale(name, {}))) return true;
    return std::ranges::any_of(m_files, [&](const TemporaryFile &file) { return file.name() == name; });
}

} // namespace archiver
