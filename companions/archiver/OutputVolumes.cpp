#include "OutputVolumes.h"

#include "EntryName.h"
#include "SetReplacement.h"
#include "VolumeNames.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace archiver {

namespace {

constexpr std::size_t bufferSize = 512 << 10;
constexpr std::size_t worthNoCopy = 128 << 10;
constexpr std::uint64_t smallestLastVolume = 512; // readers look for the signature of shorter files in vain

/// The written volumes, read through the descriptors that they were written through; messages name the
/// archive.
class WrittenVolumes final : public VolumeSource {
public:
    WrittenVolumes(std::vector<base::StagedFile> &files, std::string archive)
        : m_files(files), m_archive(std::move(archive))
    {
    }
    std::optional<FileSource> open(std::size_t index) override
    {
        // Those with names were too many to be open together.
        if (index > 0 && !m_files[index - 1].passingName().empty() && !m_files[index - 1].park())
            return std::nullopt;
        errno = ENOENT;
        struct stat status {};
        if (index >= m_files.size() || !m_files[index].unpark() ||
            fstat(m_files[index].descriptor(), &status) != 0)
            return std::nullopt;
        return FileSource{m_files[index].descriptor(), static_cast<std::uint64_t>(status.st_size)};
    }
    [[nodiscard]] std::string name(std::size_t) const override { return m_archive; }

private:
    std::vector<base::StagedFile> &m_files;
    std::string m_archive;
};

/// How many volumes may be open at a time: half of what the system allows leaves enough for the sources.
std::size_t mostOpenVolumes()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 16;
    return static_cast<std::size_t>(std::max<rlim_t>(limit.rlim_cur / 2, 1));
}

} // namespace

void BackgroundWriter::start()
{
    if (m_thread) return;
    m_thread.emplace(1u, 1, [this](Filled &next) {
        next.error = writeNow(next.file, Bytes(next.buffer).first(next.size)) ? 0 : errno;
    });
}

void BackgroundWriter::stop()
{
    // What is being written is written to its end; the next finish() tells how that went.
    if (m_thread && !finish()) m_error = errno;
    m_thread.reset();
}

bool BackgroundWriter::writeNow(int file, Bytes bytes)
{
    // Not often, as each time costs a walk through what is in memory; often enough that little is left at the
    // end.
    constexpr std::size_t interval = 8 << 20;
    if (!base::writeFully(file, bytes)) return false;
    m_unsynced += bytes.size();
    if (m_unsynced >= interval) {
        base::startWriteBack(file);
        m_unsynced = 0;
    }
    return true;
}

bool BackgroundWriter::write(int file, ByteBuffer &buffer, std::size_t size)
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

bool BackgroundWriter::finish()
{
    if (const Filled *const written = m_thread ? m_thread->take() : nullptr) {
        m_error = written->error;
        m_thread->release();
    }
    const int error = std::exchange(m_error, 0);
    if (error != 0) errno = error;
    return error == 0;
}

OutputVolumes::OutputVolumes(const std::string &archivePath, std::optional<std::uint64_t> volumeSize,
                             Diagnostics &diagnostics)
    : m_path(archivePath)
    , m_name(nameIn(archivePath))
    , m_volumeSize(volumeSize)
    , m_diagnostics(diagnostics)
    , m_passingNames(passingNamesOf(withoutExtension(m_name)))
    , m_mostOpen(mostOpenVolumes())
    , m_buffer(bufferSize)
{
}

bool OutputVolumes::cannotCreate(const std::string &name)
{
    return m_diagnostics.reportSystem("Cannot create " + printable(name));
}

bool OutputVolumes::cannotWrite() { return m_diagnostics.reportSystem("Cannot write " + printable(m_path)); }

bool OutputVolumes::openFolder()
{
    const std::string folder = m_path.substr(0, m_path.size() - m_name.size());
    m_folder =
        base::FileDescriptor(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!m_folder || fstat(m_folder.get(), &m_folderStatus) != 0) return cannotCreate(m_path);
    // Found out now rather than after all the work.
    if (m_name.empty() || (fstatat(m_folder.get(), m_name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                           S_ISDIR(status.st_mode))) {
        errno = EISDIR;
        return cannotCreate(m_path);
    }
    return true;
}

bool OutputVolumes::begin()
{
    if (!openFolder() || !finishReplacement(m_path, m_diagnostics)) return false;
    base::removeLeftovers(m_folder.get(), m_passingNames);
    return beginVolume();
}

bool OutputVolumes::beginVolume()
{
    base::StagedFile file =
        base::StagedFile::create(m_folder.get(), m_passingNames, static_cast<unsigned>(m_files.size()));
    if (!file) return cannotCreate(m_path);
    m_files.push_back(std::move(file));
    m_position = 0;
    ByteBuffer start(signature.begin(), signature.end());
    presentFormat.putMain(start, {limited(), m_files.size() - 1, m_solid});
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
    if (bytes.size() >= worthNoCopy) {
        if (!flush()) return false;
        m_position += bytes.size();
        return m_writer.writeAtOnce(m_files.back().descriptor(), bytes) || cannotWrite();
    }
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
    return base::writeFullyAt(m_files.back().descriptor(), bytes, offset) || cannotWrite();
}

bool OutputVolumes::endVolume(bool more)
{
    ByteBuffer end;
    presentFormat.putEnd(end, more);
    const std::uint64_t size = m_position + end.size();
    if (!more && m_files.size() > 1 && size < smallestLastVolume) end.resize(end.size() + smallestLastVolume);
    if (!append(end) || !flushAndWait()) return false;
    base::startWriteBack(m_files.back().descriptor());
    return keepFewOpen() || cannotWrite();
}

bool OutputVolumes::keepFewOpen()
{
    base::StagedFile &file = m_files.back();
    return m_files.size() < m_mostOpen ||
           (file.giveName(m_passingNames, static_cast<unsigned>(m_files.size() - 1)) && file.park());
}

bool OutputVolumes::nextVolume() { return endVolume(true) && beginVolume(); }

bool OutputVolumes::finish()
{
    if (limited() && m_files.size() == 1) {
        // All fits into the first volume: an ordinary archive, then. The header's length is the same.
        ByteBuffer header;
        presentFormat.putMain(header, {.solid = m_solid});
        if (!patch(signature.size(), header)) return false;
    }
    return endVolume(false);
}

std::unique_ptr<VolumeSource> OutputVolumes::written()
{
    return std::make_unique<WrittenVolumes>(m_files, m_path);
}

bool OutputVolumes::complete(base::StagedFile &file, const std::optional<Timestamp> &time)
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

bool OutputVolumes::publish(const std::optional<Timestamp> &time)
{
    const std::vector<std::string> names = finalNames(m_name, m_files.size());
    for (const std::string &name : names) {
        struct stat status {};
        if (fstatat(m_folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISDIR(status.st_mode))
            continue;
        errno = EISDIR;
        return cannotCreate(name);
    }
    // Before the names, or a power cut would leave an empty archive where the one before is gone.
    for (base::StagedFile &file : m_files)
        if (!complete(file, time)) return false;
    const bool areSeveral =
        names.size() > 1 || (limited() && !filesOfArchive(m_folder.get(), m_name, names).empty());
    if (areSeveral) return replaceSet(m_folder.get(), m_name, m_files, m_diagnostics);
    if (!m_files.front().publish(m_name, m_passingNames)) return cannotCreate(m_name);
    return base::syncToDisk(m_folder.get()) || cannotWrite();
}

bool OutputVolumes::owns(const struct stat &folder, const std::string &name) const
{
    if (!base::isSame(folder, m_folderStatus)) return false;
    return name == m_name || m_passingNames.include(name) || (limited() && isFileOfArchive(name, m_name));
}

} // namespace archiver
